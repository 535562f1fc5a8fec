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
#include "month_script.h"
#include "output/cards/cartao.h"
#include "personnel/contract/booklet_box.h"
#include "player.h"
#include "tools/internet/browser_settings.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <filesystem>
#include <set>

namespace winvrx {

namespace {

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

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

/// Two printers, of which the second is the default one.
struct TwoPrinters final : Printers {
    std::vector<std::string> names() const override {
        return {"HP-LaserJet-Balcao", "Epson-L3250"};
    }
    std::string defaultName() const override { return "Epson-L3250"; }
    bool openAddDialogue() override { return false; }
};

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
    QApplication::setAttribute(
        Qt::AA_DontUseNativeDialogs);  // the player would not find its fields
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
    OnlyCopy instance;
    FileUserSettings settings(folder + QStringLiteral("/winvrx.ini"));
    Program program(
        {drives, clock, log, instance, settings, QApplication::applicationDirPath().toStdString(),
         [&](std::unique_ptr<ReportEngine> engine) -> std::unique_ptr<ReportEngine> {
             return std::make_unique<PaperInAFile>(std::move(engine), folder.toStdString());
         },
         [](const FileSystem& files) -> std::unique_ptr<TextEditor> {
             return std::make_unique<TextViewer>(files);
         },
         [] { return std::make_unique<TwoPrinters>(); }, nullptr,
         (folder + QStringLiteral("/winvrx.log")).toStdString(),
         [&] { return std::make_unique<DocumentsInFiles>(folder + QStringLiteral("/documentos")); },
         std::make_shared<NobodysBrowser>()});
    if (!program.start()) return 1;
    Player player(folder);
    writeMonth(player);
    return player.play();
}
