#pragma once

#include "foundation/menu/desktop/menu_entry.h"
#include "foundation/menu/menu.h"
#include "foundation/menu/month_calendar.h"

#include <QWidget>

#include <map>
#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QListWidget;
class QVBoxLayout;

namespace winvrx {

class CommandTile;
class MonthView;
class SearchBox;

/// The main window: companies at the left, commands by subject in the middle, today, the month
/// and the data folder at the right.
class MenuWindow : public QWidget {
    Q_OBJECT

  public:
    MenuWindow(Menu& menu, const Workplace& at, const MonthCalendar& calendar,
               std::vector<MenuEntry> entries, NextStep nextStep);

    /// Start-up with its messages. False when the program is to end at once.
    [[nodiscard]] bool start();

    /// Shows the rules' present state again.
    void refresh();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildTitleBand(QVBoxLayout& frame);
    [[nodiscard]] QWidget* buildCompanies();
    [[nodiscard]] QWidget* buildCommands();
    [[nodiscard]] QWidget* buildOverview();
    [[nodiscard]] QWidget* buildDataFolder();
    [[nodiscard]] QWidget* buildBackup();
    void addGroup(QVBoxLayout& column, const QString& group);
    void addTile(QGridLayout& grid, const MenuEntry& entry);

    void fillCompanies();
    void filterCompanies(const QString& wanted);
    void selectCompany();
    void showOverview();
    void showTiles();
    void showDrive();
    void open(const MenuEntry& entry);

    Menu& menu_;
    Workplace at_;
    const MonthCalendar& calendar_;
    std::vector<MenuEntry> entries_;
    NextStep nextStep_;
    bool started_ = false;

    QLabel* companyName_ = nullptr;
    QLabel* today_ = nullptr;
    SearchBox* search_ = nullptr;
    QListWidget* companies_ = nullptr;
    QComboBox* shift_ = nullptr;
    MonthView* month_ = nullptr;
    QLabel* monthName_ = nullptr;
    QLabel* counts_ = nullptr;
    QLabel* notices_ = nullptr;
    QComboBox* drive_ = nullptr;
    QLabel* folder_ = nullptr;
    std::map<MenuCommand, CommandTile*> tiles_;
};

}  // namespace winvrx
