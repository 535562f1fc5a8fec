#include "app/program.h"

#include "app/menu_entries.h"
#include "foundation/desk/desktop/desktop_browser.h"
#include "foundation/desk/desktop/desktop_text_editor.h"
#include "foundation/menu/desktop/menu_window.h"
#include "foundation/widgets/desktop/progress.h"
#include "report/desktop/qt_report_engine.h"
#include "report/desktop/system_printers.h"

#include <QApplication>

namespace winvrx {

namespace {

std::string nativePath(const std::filesystem::path& path) {
    return path.string();
}

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

Program::Program(const Surroundings& surroundings)
    : surroundings_(surroundings),
      files_(surroundings.files ? surroundings.files(systemFiles()) : systemFiles()),
      browser_(std::make_unique<DesktopBrowser>(
          QString::fromStdString((surroundings.programFolder / "help").string()))),
      editor_(makeEditor()),
      copies_(*files_, archiver_, surroundings.log, copyProgress),
      copiedFiles_(*files_, copies_, session_, surroundings.clock, surroundings.log),
      disk_(systemDisk()),
      host_(systemHost()),
      lock_(*disk_, *host_),
      at_{copiedFiles_,
          person_,
          surroundings.clock,
          surroundings.log,
          session_,
          lock_,
          [this](const std::string& act) {
              copies_.makeCopyBefore(session_.folder, surroundings_.clock.now(), act);
          }},
      calendar_(at_),
      engine_(makeEngine()),
      printers_(surroundings.printers ? surroundings.printers()
                                      : std::make_unique<SystemPrinters>()),
      screens_(at_, *browser_, *editor_, {*engine_, *printers_, [this] { return layoutPlaces(); }},
               copies_),
      menu_(at_, surroundings.drives, surroundings.instance, *browser_,
            nativePath(surroundings.programFolder)),
      window_(std::make_unique<MenuWindow>(menu_, at_, calendar_, menuEntries(menu_, screens_),
                                           [this] { return screens_.nextStep(); })) {}

Program::~Program() = default;

bool Program::start() {
    return window_->start();
}

std::unique_ptr<TextEditor> Program::makeEditor() {
    if (surroundings_.editor) return surroundings_.editor(*files_, *browser_);
    return std::make_unique<DesktopTextEditor>(*files_, *browser_);
}

std::vector<std::filesystem::path> Program::layoutPlaces() const {
    return layoutFolders(session_.folder.path(), surroundings_.programFolder);
}

std::unique_ptr<ReportEngine> Program::makeEngine() {
    auto engine = std::make_unique<QtReportEngine>(
        [this] { return layoutPlaces(); },
        [this] { return session_.folder.file(kReportDatabaseName); }, *browser_, surroundings_.log);
    if (!surroundings_.engine) return engine;
    return surroundings_.engine(std::move(engine));
}

}  // namespace winvrx
