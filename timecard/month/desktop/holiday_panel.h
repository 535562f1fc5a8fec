#pragma once

#include "timecard/month/data_mes_corrente.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QTreeWidget;
class QVBoxLayout;

namespace winvrx {

class HolidayGrid;

/// The holidays of the month shown: the calendar to tick them in, the counts, the list "Feriados:"
/// with its commands, and what is offered and not ticked. F8 or a click on the notice ticks it.
class HolidayPanel : public QWidget {
    Q_OBJECT

  public:
    explicit HolidayPanel(DataMesCorrente& command, QWidget* parent = nullptr);

    /// Shows the command's month.
    void refresh();

  signals:
    /// The operator changed something; the command holds it already.
    void edited();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildList();
    [[nodiscard]] QWidget* buildCommands();
    void showHolidays();
    void showUnticked();
    void showUnread();
    void give(void (DataMesCorrente::*act)());
    void takeNote();

    DataMesCorrente& command_;
    QLabel* heading_ = nullptr;
    QLabel* notice_ = nullptr;
    HolidayGrid* grid_ = nullptr;
    QLabel* counts_ = nullptr;
    QTreeWidget* holidays_ = nullptr;
    QCheckBox* recordTicks_ = nullptr;
    QLabel* unticked_ = nullptr;
    QLabel* unread_ = nullptr;
};

}  // namespace winvrx
