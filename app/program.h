#pragma once

#include "foundation/copies/daily_copy_files.h"
#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/desk/command.h"
#include "foundation/desk/data_version.h"
#include "foundation/desk/desktop/message_box_operator.h"
#include "foundation/desk/month_progress.h"
#include "foundation/desk/text_editor.h"
#include "foundation/desk/user_settings.h"
#include "foundation/desk/word_processor.h"
#include "foundation/menu/menu.h"
#include "report/printers.h"
#include "report/report_engine.h"
#include "timecard/month/month_overview.h"
#include "tools/internet/browser_settings.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace winvrx {

class MenuWindow;

/// What the program takes from outside. main() gives the real ones; the example gives a
/// folder for a drive and a clock that stands still.
struct ProgramDesk {
    const Drives& drives;
    const Clock& clock;
    Log& log;
    SingleInstance& instance;
    UserSettings& settings;
    std::filesystem::path programFolder;  ///< layouts/ and help/ lie in it
    /// Where pages go: takes the program's own engine and may put another before it.
    std::function<std::unique_ptr<ReportEngine>(std::unique_ptr<ReportEngine>)> engine = nullptr;
    /// Where text reports are shown; the desktop's editor when nullptr.
    std::function<std::unique_ptr<TextEditor>(const FileSystem&)> editor = nullptr;
    /// The printers to choose from; the system's when nullptr.
    std::function<std::unique_ptr<Printers>()> printers = nullptr;
    /// The disk: takes the program's own files and may put others before them.
    std::function<std::unique_ptr<FileSystem>(std::unique_ptr<FileSystem>)> files = nullptr;
    std::string logFile = {};  ///< path of the log, to be shown
    /// Where documents are written; the system's word processor when nullptr.
    std::function<std::unique_ptr<WordProcessor>()> writer = nullptr;
    /// The settings of this computer's browsers; without them the screen for them is not offered.
    std::shared_ptr<BrowserSettings> browsers = nullptr;
};

/// Joins rules, adapters and windows into the running program.
class Program {
  public:
    explicit Program(const ProgramDesk& desk);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Opens the main window; false when another copy is running.
    [[nodiscard]] bool start();
    [[nodiscard]] MenuWindow& window() { return *window_; }

  private:
    [[nodiscard]] std::unique_ptr<TextEditor> makeEditor();
    [[nodiscard]] std::unique_ptr<ReportEngine> makeEngine();
    [[nodiscard]] std::unique_ptr<WordProcessor> makeWriter();
    [[nodiscard]] std::vector<std::filesystem::path> layoutPlaces() const;
    [[nodiscard]] std::optional<MonthProgress> progress(std::optional<WorkMonth> month) const;

    ProgramDesk desk_;
    std::unique_ptr<FileSystem> files_;
    std::unique_ptr<Browser> browser_;
    std::unique_ptr<TextEditor> editor_;
    MessageBoxOperator person_;
    Session session_;
    ZipArchiver archiver_;
    SafetyCopies copies_;
    VersionedFiles versionedFiles_;
    DailyCopyFiles copiedFiles_;
    std::unique_ptr<Disk> disk_;
    std::unique_ptr<Host> host_;
    FolderLock lock_;
    Workplace at_;
    TimecardCalendar calendar_;
    std::unique_ptr<ReportEngine> engine_;
    std::unique_ptr<WordProcessor> writer_;
    std::unique_ptr<Printers> printers_;
    Menu menu_;
    std::unique_ptr<MenuWindow> window_;
};

}  // namespace winvrx
