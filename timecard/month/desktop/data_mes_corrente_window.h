#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "timecard/month/data_mes_corrente.h"

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QToolButton;

namespace winvrx {

class HolidayPanel;
class MonthRulesPanel;

/// The work month's window. "Confirma" closes it with QDialog::Accepted.
class DataMesCorrenteWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `command` is open and outlives the window.
    explicit DataMesCorrenteWindow(DataMesCorrente& command, QWidget* parent = nullptr);

    /// To be called when the list of the town's and the state's holidays may have changed.
    void refreshHolidays();

  signals:
    /// Asks for that list's window.
    void localHolidaysRequested();

  protected:
    [[nodiscard]] bool mayClose() override { return command_.mayLeave(); }
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildMonthColumn();
    void addCommands();
    void connectMonth();

    void showMonths();
    void showMonth();
    void showState();
    void recordMonth();
    void updateAll();

    DataMesCorrente& command_;
    QHBoxLayout* columns_ = nullptr;
    QComboBox* month_ = nullptr;
    QToolButton* offeredRules_ = nullptr;
    QCheckBox* reference_ = nullptr;
    HolidayPanel* holidays_ = nullptr;
    MonthRulesPanel* rules_ = nullptr;
};

}  // namespace winvrx
