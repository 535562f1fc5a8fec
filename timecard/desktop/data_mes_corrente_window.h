#pragma once

#include "foundation/desktop/screen_window.h"
#include "timecard/data_mes_corrente.h"

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QVBoxLayout;

namespace winvrx {

class HolidayGrid;
class WrappedCheckBox;

/// The work month's window. "Confirma" closes it with QDialog::Accepted.
class DataMesCorrenteWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// Opens the command's month. `command` outlives the window.
    explicit DataMesCorrenteWindow(DataMesCorrente& command, QWidget* parent = nullptr);

  protected:
    bool mayClose() override;

  private:
    struct NumberWidgets {
        QLineEdit* edit = nullptr;
        QLabel* hint = nullptr;
    };

    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildMonthColumn();
    [[nodiscard]] QWidget* buildHolidayList();
    [[nodiscard]] QWidget* buildRulesColumn();
    void addClosing(QVBoxLayout& column);
    void addOvertime(QVBoxLayout& column);
    void addTotals(QVBoxLayout& column);
    void addNumber(QGridLayout& grid, int row, int column, std::size_t field);
    [[nodiscard]] QRadioButton* addChoice(const QString& caption, const QString& objectName);
    void connectMonth();
    void connectRules();

    void showMonths();
    void showMonth();
    void showHolidays();
    void showRules();
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
    QRadioButton* fixedMonth_ = nullptr;
    QRadioButton* startDay_ = nullptr;
    WrappedCheckBox* differentiated_ = nullptr;
    QRadioButton* bothLevels_ = nullptr;
    QRadioButton* singleLevel_ = nullptr;
    QLabel* modeNotice_ = nullptr;
    QRadioButton* clockTotals_ = nullptr;
    QRadioButton* decimalTotals_ = nullptr;
    std::array<NumberWidgets, kMonthNumberFields.size()> numbers_{};
};

}  // namespace winvrx
