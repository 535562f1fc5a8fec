#pragma once

#include "personnel/payroll/pay_sheet.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QTreeWidget;

namespace winvrx {

/// The events of an employee's month: amounts that can be typed over, their totals, and below them
/// how the amount of the event in hand came about.
class PaySheetPanel : public QWidget {
    Q_OBJECT

  public:
    explicit PaySheetPanel(QWidget* parent);

    /// The event in hand stays; nullptr shows no events. `now` has the amounts of a recorded month
    /// as they would be computed now, and may be nullptr.
    void showSheet(const PaySheet* sheet, const PaySheet* now);
    /// Of the event in hand.
    void showMemo(const QStringList& lines);
    [[nodiscard]] int current() const;
    void focusEvents();
    void focusMemo();

  signals:
    /// Another event is in hand.
    void turnedTo(int line);
    /// An amount as typed; an empty one asks for the computed one. The editor is still closing: no
    /// box may open now.
    void amountTyped(int line, const QString& amount);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildTotals();
    void buildMemo();
    void editCurrent();

    QTreeWidget* events_ = nullptr;
    QLabel* credits_ = nullptr;
    QLabel* debits_ = nullptr;
    QLabel* net_ = nullptr;
    QPlainTextEdit* memo_ = nullptr;
};

}  // namespace winvrx
