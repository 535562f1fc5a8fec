#pragma once

#include "foundation/desktop/screen_window.h"
#include "timecard/data_mes_corrente.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;

namespace winvrx {

class HolidayGrid;
class MonthRulesPanel;

/// The work month's window. "Confirma" closes it with QDialog::Accepted.
class DataMesCorrenteWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `command` is open and outlives the window.
    explicit DataMesCorrenteWindow(DataMesCorrente& command, QWidget* parent = nullptr);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildMonthColumn();
    [[nodiscard]] QWidget* buildHolidayList();
    void connectMonth();

    void showMonths();
    void showMonth();
    void showHolidays();
    void showState();
    void recordMonth();
    void confirmMonth();

    DataMesCorrente& command_;
    QComboBox* month_ = nullptr;
    QCheckBox* reference_ = nullptr;
    QLabel* heading_ = nullptr;
    HolidayGrid* grid_ = nullptr;
    QListWidget* holidays_ = nullptr;
    QCheckBox* recordTicks_ = nullptr;
    QLabel* counts_ = nullptr;
    MonthRulesPanel* rules_ = nullptr;
};

}  // namespace winvrx
