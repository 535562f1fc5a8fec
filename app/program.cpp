#include "app/program.h"

#include "app/menu_entries.h"
#include "foundation/desk/desktop/desktop_browser.h"
#include "foundation/desk/desktop/desktop_text_editor.h"
#include "foundation/desk/desktop/libre_office.h"
#include "foundation/files/record_names.h"
#include "foundation/menu/desktop/menu_window.h"
#include "foundation/widgets/desktop/progress.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "report/desktop/qt_report_engine.h"
#include "report/desktop/system_printers.h"
#include "timecard/punches/month_progress.h"
#include "tools/internet/web_ni.h"
#include "tools/transfer/desktop/transfer_frame.h"

#include <QApplication>

namespace winvrx {

namespace {

/// A dialog for one copy, over whatever window is in front.
SafetyCopies::Progress copyProgress() {
    const auto shown = std::make_shared<Progress>(
        Progress::Words{.objectName = QStringLiteral("copies.progress"),
                        .title = QStringLiteral("Cópia de Segurança"),
                        .step = QStringLiteral("Copiando o arquivo %1 de %2")},
        QApplication::activeWindow());
    return [shown](std::size_t done, std::size_t all) {
        return shown->show(static_cast<int>(done), static_cast<int>(all));
    };
}

}  // namespace

Program::Program(const ProgramDesk& desk)
    : desk_(desk),
      files_(desk.files ? desk.files(systemFiles()) : systemFiles()),
      browser_(std::make_unique<DesktopBrowser>(
          QString::fromStdString((desk.programFolder / "help").string()))),
      editor_(makeEditor()),
      copies_(*files_, archiver_, desk.log, copyProgress),
      versionedFiles_(*files_, session_),
      copiedFiles_(versionedFiles_, copies_, session_, desk.clock, desk.log),
      disk_(systemDisk()),
      host_(systemHost()),
      lock_(*disk_, *host_),
      at_{copiedFiles_,
          person_,
          desk.clock,
          desk.log,
          session_,
          lock_,
          [this](const std::string& act) {
              copies_.makeCopyBefore(session_.folder, desk_.clock.now(), act);
          }},
      calendar_(at_),
      engine_(makeEngine()),
      writer_(makeWriter()),
      printers_(desk.printers ? desk.printers() : std::make_unique<SystemPrinters>()),
      menu_(at_, desk.drives, desk.instance, desk.settings, desk.programFolder.string()),
      window_(std::make_unique<MenuWindow>(
          menu_, at_, calendar_,
          menuEntries(at_, {{*browser_, *engine_, *printers_, [this] { return layoutPlaces(); }},
                            *editor_,
                            *writer_,
                            copies_,
                            desk.logFile,
                            desk.programFolder,
                            desk.browsers}),
          [this](std::optional<WorkMonth> month) { return progress(month); })) {
    window_->addToSide(*new TransferFrame(
        at_, systemTransferDesk(*disk_, desk_.drives, copies_, archiver_),
        [this] { window_->reload(); }, window_.get()));
    ScreenWindow::setHelp([this] { openHelp(at_, *browser_); });
}

Program::~Program() {
    ScreenWindow::setHelp({});
}

bool Program::start() {
    if (!window_->start()) return false;
    if (desk_.browsers) WebNi(at_, *desk_.browsers).applyAgain();
    return true;
}

std::optional<MonthProgress> Program::progress(std::optional<WorkMonth> month) const {
    if (!session_.company) return std::nullopt;
    return monthProgress(at_.store(), *session_.company, session_.shiftFilter, month);
}

std::unique_ptr<TextEditor> Program::makeEditor() {
    if (desk_.editor) return desk_.editor(*files_);
    return std::make_unique<DesktopTextEditor>(*files_);
}

std::unique_ptr<WordProcessor> Program::makeWriter() {
    if (desk_.writer) return desk_.writer();
    return std::make_unique<LibreOffice>(
        [this](const Fault& fault) { reportFailure(at_, documentNotPrinted(), fault); });
}

std::vector<std::filesystem::path> Program::layoutPlaces() const {
    return layoutFolders(session_.folder.path(), desk_.programFolder);
}

std::unique_ptr<ReportEngine> Program::makeEngine() {
    auto engine = std::make_unique<QtReportEngine>(
        [this] { return layoutPlaces(); },
        [this] { return session_.folder.file(kReportDatabaseName); }, desk_.log);
    if (!desk_.engine) return engine;
    return desk_.engine(std::move(engine));
}

}  // namespace winvrx
