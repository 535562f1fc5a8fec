#pragma once

#include "foundation/command.h"
#include "foundation/desktop/message_box_operator.h"
#include "foundation/menu.h"
#include "output/report_engine.h"
#include "timecard/month_overview.h"

#include <QString>

#include <filesystem>
#include <functional>
#include <memory>

class QWidget;

namespace winvrx {

class MenuWindow;
struct MenuEntry;

/// What the program takes from its surroundings. main() gives the real ones; the example gives a
/// folder for a drive and a clock that stands still.
struct Surroundings {
    const Drives& drives;
    const Clock& clock;
    Log& log;
    SingleInstance& instance;
    std::filesystem::path programFolder;  ///< layouts/ and help/ lie in it
    /// Where pages go: takes the program's own engine and may put another before it.
    std::function<std::unique_ptr<ReportEngine>(std::unique_ptr<ReportEngine>)> engine = nullptr;
};

/// Joins rules, adapters and windows into the running program.
class Program {
  public:
    explicit Program(const Surroundings& surroundings);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Opens the main window; false when another copy is running.
    [[nodiscard]] bool start();
    [[nodiscard]] MenuWindow& window() { return *window_; }

  private:
    [[nodiscard]] std::vector<MenuEntry> entries();
    [[nodiscard]] std::vector<MenuEntry> registerEntries();
    [[nodiscard]] std::vector<MenuEntry> cardEntries();
    [[nodiscard]] std::vector<MenuEntry> personnelEntries();
    [[nodiscard]] std::vector<MenuEntry> toolEntries();
    void openCompanies(QWidget* parent);
    void openEmployees(QWidget* parent);
    void openWorkMonth(QWidget* parent);
    void openTimeCard(QWidget* parent);
    void openCards(QWidget* parent);
    void openStocks(QWidget* parent);

    Surroundings surroundings_;
    std::unique_ptr<FileSystem> files_;
    std::unique_ptr<Browser> browser_;
    MessageBoxOperator person_;
    Session session_;
    Workplace at_;
    TimecardCalendar calendar_;
    std::unique_ptr<ReportEngine> engine_;
    Menu menu_;
    std::unique_ptr<MenuWindow> window_;
};

}  // namespace winvrx
