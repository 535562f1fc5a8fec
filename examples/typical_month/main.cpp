// Plays a typical month through the program's own windows: a company, three employees, a work
// month with a holiday, schedules, punches, a card stock and the printing of all cards.
#include "app/desktop_setup.h"
#include "app/program.h"
#include "foundation/desk/desktop/desktop_text_editor.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/file_user_settings.h"
#include "foundation/desk/desktop/open_document.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/menu_window.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"
#include "foundation/widgets/desktop/look.h"
#include "output/cards/cartao.h"
#include "personnel/contract/booklet_box.h"
#include "player.h"
#include "scripts.h"
#include "tests/support/only_copy.h"
#include "tests/support/test_printers.h"
#include "tools/internet/browser_settings.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <filesystem>
#include <set>

namespace winvrx {

namespace {

/// In the place of the word processor: a file for each document, of its title.
class DocumentsInFiles final : public WordProcessor {
  public:
    explicit DocumentsInFiles(QString folder) : folder_(std::move(folder)) {}

    void show(const Document& document) override {
        write(toQt(document.title), openDocument(document));
    }
    void print(const Document& document, const std::string&) override { show(document); }
    [[nodiscard]] std::string fileOf(const Document& document) const override {
        return openDocument(document).toStdString();
    }
    void showFile(const std::filesystem::path& file) override {
        QFile kept(toQt(file.string()));
        if (!kept.open(QIODevice::ReadOnly)) throw Fault("no file", "O documento não foi lido.");
        write(toQt(file.stem().string()), kept.readAll());
    }
    void printFile(const std::filesystem::path& file, const std::string&) override {
        showFile(file);
    }

  private:
    void write(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(folder_);
        QFile file(folder_ + QLatin1Char('/') + name + QStringLiteral(".fodt"));
        if (!file.open(QIODevice::WriteOnly))
            throw Fault("no file", "O documento não foi gravado.");
        file.write(bytes);
    }

    QString folder_;
};

/// A printer whose paper is PDF files of `folder`: the cards lie in "cartoes.pdf", a page of the
/// work booklet in "carteira.pdf", other pages in a file of their layout's name.
class PaperInAFile final : public ReportEngine {
  public:
    PaperInAFile(std::unique_ptr<ReportEngine> engine, std::filesystem::path folder)
        : engine_(std::move(engine)), folder_(std::move(folder)) {}

    [[nodiscard]] PrintEnd print(const ReportRequest& request, ReportPages& pages,
                                 const PageProgress& progress) override {
        ReportRequest toFile = request;
        if (toFile.output == ReportOutput::Printer) {
            toFile.output = ReportOutput::PdfFile;
            toFile.pdfPath = (folder_ / (nameOf(request) + ".pdf")).string();
        }
        return engine_->print(toFile, pages, progress);
    }
    [[nodiscard]] PrintEnd preview(const ReportRequest& request, ReportPages& pages,
                                   const PageProgress& progress,
                                   const PrintShown& printShown) override {
        return engine_->preview(request, pages, progress, printShown);
    }
    [[nodiscard]] int sidesOf(const ReportRequest& request) override {
        return engine_->sidesOf(request);
    }

  private:
    static std::string nameOf(const ReportRequest& request) {
        if (request.title == kCartaoTitle) return "cartoes";
        if (request.layoutName == kBookletLayout) return "carteira";
        return std::filesystem::path(request.layoutName).stem().string();
    }

    std::unique_ptr<ReportEngine> engine_;
    std::filesystem::path folder_;
};

std::unique_ptr<Printers> twoPrinters() {
    auto printers = std::make_unique<testing::TestPrinters>();
    printers->installed = {"HP-LaserJet-Balcao", "Epson-L3250"};
    printers->usual = "Epson-L3250";
    return printers;
}

/// A browser that is not this computer's.
class NobodysBrowser final : public BrowserSettings {
  public:
    Outcome apply(WebSwitch which, bool blocked) override {
        blocked ? (void)blocked_.insert(which) : (void)blocked_.erase(which);
        return {{kName}, {}};
    }
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch which) const override {
        if (blocked_.contains(which)) return {kName};
        return {};
    }
    [[nodiscard]] bool openBrowser() override { return false; }

  private:
    static constexpr const char* kName = "Firefox ESR";
    std::set<WebSwitch> blocked_;
};

/// The letters of a desktop, on a machine that has none.
void chooseFont() {
    QFont font(QStringLiteral("Open Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
}

}  // namespace

}  // namespace winvrx

int main(int argc, char** argv) {
    using namespace winvrx;
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" WINVRX_SCREEN);
    // The player would not find the fields of the others.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    if (argc != 2) {
        qCritical("usage: typical_month FOLDER");
        return 2;
    }
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    chooseFont();
    setUpDesktop(application);
    look::apply(application, look::lightPalette());

    const FolderDrives drives((folder + QStringLiteral("/disco-c")).toStdString());
    const FixedClock clock({*parseDate("15/03/2024"), *parseTime("10:20")});
    FileLog log(folder + QStringLiteral("/winvrx.log"));
    testing::OnlyCopy instance;
    FileUserSettings settings(folder + QStringLiteral("/winvrx.ini"));
    ProgramDesk desk{drives,   clock,    log,
                     instance, settings, QApplication::applicationDirPath().toStdString()};
    desk.engine = [&](std::unique_ptr<ReportEngine> engine) {
        return std::make_unique<PaperInAFile>(std::move(engine), folder.toStdString());
    };
    desk.editor = [](const FileSystem& files) { return std::make_unique<TextViewer>(files); };
    desk.printers = twoPrinters;
    desk.logFile = (folder + QStringLiteral("/winvrx.log")).toStdString();
    desk.writer = [&] {
        return std::make_unique<DocumentsInFiles>(folder + QStringLiteral("/documentos"));
    };
    desk.browsers = std::make_shared<NobodysBrowser>();
    Program program(desk);
    if (!program.start()) return 1;
    Player player(folder);
    writeMonth(player);
    return player.play();
}
