#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/menu/menu.h"
#include "foundation/menu/month_calendar.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QComboBox;
class QFrame;
class QLabel;
class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace winvrx {

/// How far the month that is worked on is, where one is; nullopt when no company is selected.
using ProgressOfMonth = std::function<std::optional<MonthProgress>(std::optional<WorkMonth> month)>;

class BodyArea;
class CommandBoard;
class MonthView;
class SearchBox;

/// The main window: companies at the left, commands by subject in the middle, today, the month
/// and the data folder at the right.
class MenuWindow : public QWidget {
    Q_OBJECT

  public:
    MenuWindow(Menu& menu, const Workplace& at, const MonthCalendar& calendar, MenuEntries entries,
               ProgressOfMonth progress);

    /// Start-up with its messages. False when the program is to end at once.
    [[nodiscard]] bool start();

    /// Shows the rules' present state again.
    void refresh();
    /// Reads the companies again and shows all anew: for whoever brings other records into the
    /// folder.
    void reload();
    /// Puts a part of another room below the data folder in use.
    void addToSide(QWidget& part);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildTitleBand(QVBoxLayout& frame);
    [[nodiscard]] QWidget* buildCompanies();
    [[nodiscard]] QWidget* buildCommands();
    [[nodiscard]] QWidget* buildOverview();
    [[nodiscard]] QWidget* buildDataFolder();

    void fillCompanies();
    void showCompany();
    void filterCompanies(const QString& wanted);
    void selectCompany();
    void enterCompany();
    void confirmMonth();
    void showOverview();
    void showTiles();
    void showDrive();
    void open(const MenuEntry& entry);

    Menu& menu_;
    Workplace at_;
    const MonthCalendar& calendar_;
    MenuEntries entries_;
    ProgressOfMonth progress_;
    std::optional<WorkMonth> inWork_;
    bool started_ = false;

    BodyArea* body_ = nullptr;
    CommandBoard* commands_ = nullptr;
    QLabel* companyName_ = nullptr;
    QLabel* today_ = nullptr;
    SearchBox* search_ = nullptr;
    QListWidget* companies_ = nullptr;
    QComboBox* shift_ = nullptr;
    MonthView* month_ = nullptr;
    QLabel* monthName_ = nullptr;
    QPushButton* offered_ = nullptr;
    QLabel* counts_ = nullptr;
    QLabel* notices_ = nullptr;
    QComboBox* drive_ = nullptr;
    QLabel* folder_ = nullptr;
    QFrame* side_ = nullptr;
};

}  // namespace winvrx
