// How often the program asks something of the disk where an operator waits for it, beside the least
// that the work needs: a share answers in a millisecond, whatever the disk. The office has 99
// companies, one of them with 999 employees and 23 months of cards, and is worked at through the
// program's own windows. Fails past 1.5 times the least, and where a screen of a single employee
// would take half a second: a millisecond for each operation, and the processor's own time.
//
// An operation is one call of the port FileSystem, of a batch one for each file. `least` is a sum
// of what the step cannot do without: each file that it shows or compares, one listing of the
// folder where names tell something, each file that it writes. What a command changes it reads
// twice, once to show or to ask and once under the folder's lock, because another computer may have
// been there.
//
// `bench_share --trace` lists the operations and the questions that were agreed to.
#include "app/desktop_setup.h"
#include "app/program.h"
#include "bench/counting_files.h"
#include "bench/share_office.h"
#include "foundation/desk/desktop/desktop_text_editor.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/file_user_settings.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/menu_window.h"
#include "player.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <numeric>

namespace {

using namespace winvrx;

constexpr double kMostRatio = 1.5;
constexpr double kMostMilliseconds = 500;

struct Need {
    int operations;
    const char* why;
};

/// What the operator waits for, and what it cannot do without.
struct Step {
    const char* name;
    std::vector<Need> needs;
    bool single = true;  ///< of one employee at most, so that nobody expects to wait

    [[nodiscard]] int least() const {
        return std::accumulate(needs.begin(), needs.end(), 0,
                               [](int sum, const Need& one) { return sum + one.operations; });
    }
};

/// What the main window shows again behind a screen, `inWork` with a month in use.
std::vector<Need> menu(bool inWork) {
    std::vector<Need> needs = {{1, "the list of companies"},
                               {1, "which month is in use"},
                               {1, "the record of this month: calendar, days, notices"},
                               {1, "the record of the next month, for the notices"},
                               {1, "the local holidays, for the one that has no record"},
                               {1, "the employees, for their number"},
                               {1, "the card stock"}};
    if (inWork) needs.push_back({1, "the folder's names, for the number of filled cards"});
    return needs;
}

std::vector<Need> operator+(std::vector<Need> left, const std::vector<Need>& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

const std::vector<Need> kStart = {{1, "the folder is made if need be"},
                                  {1, "what a crash left half-written"},
                                  {2, "the drive's letter: looked for, written"},
                                  {1, "a month left by a crash is looked for"},
                                  {2, "data of two earlier installations is looked for"}};
const std::vector<Need> kSelect = {{1, "the month in use is taken back"}};
const std::vector<Need> kCompanies = {{1, "the list of companies"}};
const std::vector<Need> kEmployeesShown = {{1, "the company's name"},
                                           {1, "the employees"},
                                           {1, "the folder's names: codes in use, leave files"},
                                           {kOnLeave, "the leave files"}};
const std::vector<Need> kShiftsShown = {{1, "the company's name"},
                                        {1, "the employees"},
                                        {1, "the folder's names: leave files"},
                                        {kOnLeave, "the leave files"}};
const std::vector<Need> kMonthShown = {{1, "which month is in use"},
                                       {1, "the local holidays"},
                                       {1, "the month's record"},
                                       {1, "the employees"},
                                       {1, "the folder's names: own percentages, closed months"}};
/// Under the folder's lock.
const std::vector<Need> kMonthRecorded = {{1, "the record as it is now"}, {1, "the record"}};
const std::vector<Need> kDailyCopy = {{1, "the names of the copies"},
                                      {1, "sizes and times in the data folder"},
                                      {1, "what the copy of yesterday holds"},
                                      {1, "the copy"}};
const std::vector<Need> kConfirmed = {{1, "which month is in use"}};
const std::vector<Need> kCard = {{1, "the schedule"}, {1, "own percentages"}, {1, "the punches"}};
const std::vector<Need> kMarks = {{1, "the leave file"}, {1, "a payroll is looked for"}};
const std::vector<Need> kCardsShown =
    std::vector<Need>{{1, "the employees"},           {1, "the company's name"},
                      {1, "which month is in use"},   {1, "the month's record"},
                      {1, "fixed or varied minutes"}, {1, "the folder's names: leaves, payrolls"},
                      {kOnLeave, "the leave files"}} +
    kCard;
/// First what is asked about, then under the lock what must be as it was shown.
const std::vector<Need> kApplied = std::vector<Need>{{1, "the punches, which are asked about"}} +
                                   kMarks + kMarks +
                                   std::vector<Need>{{1, "the schedule"},
                                                     {1, "the punches as they are now"},
                                                     {1, "the next month's record: its period"},
                                                     {2, "records of both periods are looked for"},
                                                     {1, "the punches, written"}};
const std::vector<Need> kAppliedToAll = {{1, "the folder's names, for what is asked"},
                                         {1, "the folder's names as they are now"},
                                         {1, "the employees as they are now"},
                                         {1, "the next month's record: its period"},
                                         {kOnLeave, "the leave files"},
                                         {kEmployees, "the schedules"},
                                         {kEmployees, "the punches, written"}};
const std::vector<Need> kLeaves = {{1, "the leave file"}};
const std::vector<Need> kPrintShown = std::vector<Need>{{1, "the employees"},
                                                        {1, "the company"},
                                                        {1, "which month is in use"},
                                                        {1, "the card stock"},
                                                        {1, "the printer"},
                                                        {2, "what is remembered of it"},
                                                        {1, "the folder's names: leaves"},
                                                        {kOnLeave, "the leave files"},
                                                        {1, "the month's record"}} +
                                      kCard + kLeaves;
const std::vector<Need> kLeavesShown = {
    {1, "which month is in use"},  {1, "the employees"},
    {1, "the company's name"},     {1, "the folder's names: leave files"},
    {kOnLeave, "the leave files"}, {1, "a payroll of the one shown is looked for"}};
const std::vector<Need> kStockShown = {{1, "the card stock"}};
const std::vector<Need> kAlignmentShown = {{1, "the printer"},
                                           {2, "what is remembered of it"},
                                           {1, "the company, on the sample"},
                                           {1, "the card stock"},
                                           {2, "alignment and scale"}};
const std::vector<Need> kRun = {{2, "alignment and scale"}, {1, "the month's record"}};
const std::vector<Need> kAllCards = {{1, "the folder's names: own percentages, leaves"},
                                     {kEmployees, "the schedules"},
                                     {kEmployees, "the punches"},
                                     {kOnLeave, "the leave files"}};
const std::vector<Need> kCopiesShown = {{1, "the names of the copies"},
                                        {2, "what each of the two holds"},
                                        {1, "sizes and times in the data folder"},
                                        {1, "the bytes of one as large as it was"},
                                        {1, "the archive that has its former bytes"}};

/// Takes the operations of a step and the time between its beginning and its end.
class Meter {
  public:
    explicit Meter(bool traced) : traced_(traced) {
        std::printf("bench share %-44s %6s %6s %6s %8s\n", "", "ours", "least", "ratio",
                    "on a share");
    }

    [[nodiscard]] std::vector<std::string>& asked() { return asked_; }
    [[nodiscard]] bool past() const { return past_; }
    void trace(const std::string& text) const {
        if (traced_) std::printf("    %s\n", text.c_str());
    }

    void begin() {
        asked_.clear();
        begun_ = std::clock();
    }

    void end(const Step& step) {
        const auto count = static_cast<double>(asked_.size());
        const double ratio = count / step.least();
        const double shared =
            count + 1e3 * static_cast<double>(std::clock() - begun_) / CLOCKS_PER_SEC;
        const bool within = ratio <= kMostRatio && !(step.single && shared >= kMostMilliseconds);
        std::printf("bench share %-44s %6.0f %6d %6.2f %5.0f ms%s\n", step.name, count,
                    step.least(), ratio, shared, within ? "" : "  PAST ITS LIMIT");
        for (const std::string& one : asked_)
            trace(one);
        past_ = past_ || !within;
    }

  private:
    bool traced_;
    bool past_ = false;
    std::vector<std::string> asked_;
    std::clock_t begun_ = 0;
};

/// Takes every card and prints none.
class NoPaper final : public ReportEngine {
  public:
    [[nodiscard]] PrintEnd print(const ReportRequest&, ReportPages& pages,
                                 const PageProgress& progress) override {
        for (int done = 1; pages.next(); ++done)
            if (!progress(done, static_cast<int>(pages.count()))) return PrintEnd::Cancelled;
        return PrintEnd::Done;
    }
    [[nodiscard]] PrintEnd preview(const ReportRequest& request, ReportPages& pages,
                                   const PageProgress& progress, const PrintShown&) override {
        return print(request, pages, progress);
    }
    [[nodiscard]] int sidesOf(const ReportRequest&) override { return 1; }
};

struct OnePrinter final : Printers {
    std::vector<std::string> names() const override { return {"Epson-L3250"}; }
    std::string defaultName() const override { return "Epson-L3250"; }
    bool openAddDialogue() override { return false; }
};

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

/// Gives the message box in front the answer that goes on.
void agree(const Meter& meter) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    meter.trace("\"" + box->text().toStdString() + "\"");
    for (const auto kind : {QMessageBox::Yes, QMessageBox::Ok})
        if (QAbstractButton* button = box->button(kind)) return button->click();
}

/// The work of a day, each step beside what it needs.
class Day {
  public:
    Day(Player& player, Meter& meter) : player_(player), meter_(meter) {}

    void write() {
        step({"select a company", kSelect + menu(false)},
             [this] { player_.choose(text("menu.companies"), text("PADARIA 01")); });
        openAndClose("companies", "empresa", {"open Empresas", kCompanies},
                     {"close Empresas", menu(false)});
        openAndClose("employees", "empregados", {"open Funcionarios", kEmployeesShown},
                     {"close Funcionarios", menu(false)});
        openAndClose("shifts", "turnos", {"open Turnos", kShiftsShown},
                     {"close Turnos", menu(false)});
        step({"open Mes", kMonthShown}, [this] { player_.click(text("menu.month.open")); });
        command("month.record",
                {"record the month, first change of the day", kMonthRecorded + kDailyCopy});
        command("month.record", {"record the month again", kMonthRecorded});
        step({"confirm the month", kMonthRecorded + kConfirmed + menu(true)},
             [this] { player_.click(text("month.confirm")); });
        step({"open Dados", kCardsShown}, [this] { player_.click(text("menu.timecard.open")); });
        step({"select an employee", kCard + kMarks},
             [this] { player_.choose(text("card.employees"), text("002")); });
        command("card.apply", {"apply to one", kApplied});
        command("card.applyToAll", {"apply to all", kAppliedToAll, false});
        step({"close Dados", menu(true)}, [this] { player_.click(text("card.close")); });
        openAndClose("leaves", "leaves", {"open Afastamentos", kLeavesShown},
                     {"close Afastamentos", menu(true)});
        step({"open Imprimir", kPrintShown}, [this] { player_.click(text("menu.print.open")); });
        inside(text("cartao.stock"), text("tipoPonto.close"), {"open Tipo de Cartao", kStockShown},
               {"close Tipo de Cartao", kPrintShown});
        inside(text("cartao.alignment"), text("cartaoPontos.close"),
               {"open Ajuste de Impressao", kAlignmentShown},
               {"close Ajuste de Impressao", kPrintShown});
        command("cartao.printOne", {"print one", kRun + kCard + kLeaves});
        command("cartao.printAll", {"print all", kRun + kAllCards, false});
        step({"close Imprimir", menu(true)}, [this] { player_.click(text("cartao.close")); });
        openAndClose("restore", "restaurar", {"open Restaurar", kCopiesShown},
                     {"close Restaurar", menu(true)});
    }

  private:
    [[nodiscard]] static QString text(const char* utf8) { return QString::fromUtf8(utf8); }

    void step(const Step& step, const std::function<void()>& play) {
        player_.then([this] { meter_.begin(); });
        play();
        player_.then([this, step] { meter_.end(step); });
    }

    void openAndClose(const char* entry, const char* screen, const Step& opening,
                      const Step& closing) {
        inside(text("menu.%1.open").arg(text(entry)), text(screen) + text(".close"), opening,
               closing);
    }

    /// Opens a screen by a button of the one in front, and closes it.
    void inside(const QString& button, const QString& closingButton, const Step& opening,
                const Step& closing) {
        step(opening, [&] { player_.click(button); });
        step(closing, [&] { player_.click(closingButton); });
    }

    /// A command of the screen in front, with everything that it asks agreed to, from the click to
    /// its end.
    void command(const char* button, const Step& step) {
        const auto done = std::make_shared<bool>(false);
        player_.then([this, done, step, name = text(button)] {
            meter_.begin();
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QWidget*>(name),
                              Qt::LeftButton);
            meter_.end(step);
            *done = true;
        });
        player_.waitUntil([this, done] {
            if (!*done) agree(meter_);
            return *done;
        });
    }

    Player& player_;
    Meter& meter_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    setUpDesktop(application);
    QTemporaryDir office;
    const auto inOffice = [&](const char* name) {
        return office.filePath(QString::fromLatin1(name)).toStdString();
    };
    const FolderDrives drives(inOffice("c"));
    const DataFolder folder('C', pathOnDrive(drives, 'C', kDataFolder));
    const auto files = systemFiles();
    files->makeFolder(folder.path());
    fillOffice({*files, folder});
    const FixedClock clock({*parseDate("15/03/2024"), *parseTime("10:20")});
    FileLog log(office.filePath(QStringLiteral("winvrx.log")));
    copyYesterday(*files, folder, log);
    OnlyCopy instance;
    FileUserSettings settings(office.filePath(QStringLiteral("winvrx.ini")));
    settings.keep("empresa", kCompany.text());
    Meter meter(argc == 2 && std::strcmp(argv[1], "--trace") == 0);
    ProgramDesk desk{drives,   clock,    log,
                     instance, settings, QApplication::applicationDirPath().toStdString()};
    desk.engine = [](std::unique_ptr<ReportEngine>) { return std::make_unique<NoPaper>(); };
    desk.printers = [] { return std::make_unique<OnePrinter>(); };
    desk.files = [&](std::unique_ptr<FileSystem> own) {
        return std::make_unique<CountingFiles>(std::move(own), meter.asked());
    };
    Program program(desk);
    meter.begin();
    if (!program.start()) return 1;
    meter.end({"start", kStart + menu(false)});
    Player player(office.filePath(QStringLiteral("play")));
    Day(player, meter).write();
    const int played = player.play();
    return played == 0 && !meter.past() ? 0 : 1;
}
