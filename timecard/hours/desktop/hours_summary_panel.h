#pragma once

#include "timecard/hours/hours_summary.h"

#include <QWidget>

class QTableWidget;
class QTimer;

namespace winvrx {

/// "Resumo das Horas": nine figures of each half and of the month. A click or ENTER on a figure
/// tells what makes it up; a double click or F2 on a figure of extra hours asks for its percentage.
class HoursSummaryPanel : public QWidget {
    Q_OBJECT

  public:
    explicit HoursSummaryPanel(QWidget* parent = nullptr);

    /// `owner` says whose hours they are and in which month.
    void showHours(HoursSummary hours, const QString& owner);
    /// Leaves out the half that is not looked at; nullopt shows both.
    void showOnly(std::optional<HalfMonth> half);

  signals:
    /// The operator typed another percentage for a category of extra hours.
    void percentTyped(winvrx::HourCategory category, const QString& typed);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void buildTable();
    void layOutTable();
    void showFigures();
    void showFigure(int row, int column);
    void makeRoomForCaptions();
    void waitForSecondClick(int row, int column);
    void explain(int row, int column);
    void askPercent(int row);

    HoursSummary hours_;
    QString owner_;
    QTableWidget* table_;
    QTimer* secondClick_;
};

}  // namespace winvrx
