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
#include "bench/share_office.h"
#include "foundation/desk/desktop/desktop_text_editor.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/file_user_settings.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/menu_window.h"
#include "player.h"
#include "tests/support/only_copy.h"
#include "tests/support/test_printers.h"
#include "tests/support/watched_files.h"

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

enum class Act {
    Click,
    Choose,
    Command,       ///< a click, and agreement to everything that is asked, up to the end
    CommandForAll  ///< the same for every employee, so that one expects to wait
};

/// What the operator does and waits for, and what it cannot do without.
struct Step {
    const char* name;
    const char* widget;
    std::vector<Need> needs;
    Act act = Act::Click;
    const char* entry = "";  ///< to choose

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
                               {1, "the card stock"},
                               {1, "sizes and times of the leave files: vacations due"}};
    if (inWork) needs.push_back({1, "the folder's names, for the number of filled cards"});
    return needs;
}

std::vector<Need> operator+(std::vector<Need> left, const std::vector<Need>& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

const std::vector<Need> kDueLooked = {{kOnLeave, "the leave files: vacations due"}};
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
const std::vector<Need> kDailyCopy = {
    {1, "the names of the copies"},          {1, "sizes and times in the data folder"},
    {1, "what the copy of yesterday holds"}, {1, "the copy"},
    {1, "which version's data these are"},   {1, "this version's, from now on"}};
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

const std::vector<Step> kDay = {
    {"select a company", "menu.companies", kSelect + menu(false), Act::Choose, "NÚMERO 01"},
    {"open Empresas", "menu.companies.open", kCompanies},
    {"close Empresas", "empresa.close", menu(false)},
    {"open Funcionarios", "menu.employees.open", kEmployeesShown},
    {"close Funcionarios", "empregados.close", menu(false)},
    {"open Turnos", "menu.shifts.open", kShiftsShown},
    {"close Turnos", "turnos.close", menu(false)},
    {"open Mes", "menu.month.open", kMonthShown},
    {"record the month, first change of the day", "month.record", kMonthRecorded + kDailyCopy,
     Act::Command},
    {"record the month again", "month.record", kMonthRecorded, Act::Command},
    {"confirm the month", "month.confirm", kMonthRecorded + kConfirmed + menu(true)},
    {"open Dados", "menu.timecard.open", kCardsShown},
    {"select an employee", "card.employees", kCard + kMarks, Act::Choose, "002"},
    {"apply to one", "card.apply", kApplied, Act::Command},
    {"apply to all", "card.applyToAll", kAppliedToAll, Act::CommandForAll},
    {"close Dados", "card.close", menu(true)},
    {"open Afastamentos", "menu.leaves.open", kLeavesShown},
    {"close Afastamentos", "leaves.close", menu(true)},
    {"open Imprimir", "menu.print.open", kPrintShown},
    {"open Tipo de Cartao", "cartao.stock", kStockShown},
    {"close Tipo de Cartao", "tipoPonto.close", kPrintShown},
    {"open Ajuste de Impressao", "cartao.alignment", kAlignmentShown},
    {"close Ajuste de Impressao", "cartaoPontos.close", kPrintShown},
    {"print one", "cartao.printOne", kRun + kCard + kLeaves, Act::Command},
    {"print all", "cartao.printAll", kRun + kAllCards, Act::CommandForAll},
    {"close Imprimir", "cartao.close", menu(true)},
    {"open Restaurar", "menu.restore.open", kCopiesShown},
    {"close Restaurar", "restaurar.close", menu(true)}};

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
        const bool within =
            ratio <= kMostRatio && !(step.act != Act::CommandForAll && shared >= kMostMilliseconds);
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

/// Names what is asked of the disk.
class CountingFiles final : public testing::WatchedFiles {
  public:
    CountingFiles(std::unique_ptr<FileSystem> files, std::vector<std::string>& asked)
        : WatchedFiles(*files), own_(std::move(files)), asked_(asked) {}

  private:
    void atFile(const char* act, const std::filesystem::path& file) const override {
        asked_.push_back(std::string(act) + " " + file.filename().string());
    }
    void atFolder(const char* act, const std::filesystem::path& folder) const override {
        atFile(act, folder);
    }

    std::unique_ptr<FileSystem> own_;
    std::vector<std::string>& asked_;
};

/// Gives the message box in front the answer that goes on.
void agree(const Meter& meter) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    meter.trace("\"" + box->text().toStdString() + "\"");
    for (const auto kind : {QMessageBox::Yes, QMessageBox::Ok})
        if (QAbstractButton* button = box->button(kind)) return button->click();
}

/// A command runs to its end within one step of the player, and the boxes it opens are answered
/// meanwhile by the next.
void playCommand(Player& player, Meter& meter, const Step& step) {
    const auto done = std::make_shared<bool>(false);
    player.then([&, done] {
        meter.begin();
        QTest::mouseClick(
            QApplication::activeModalWidget()->findChild<QWidget*>(QString::fromUtf8(step.widget)),
            Qt::LeftButton);
        meter.end(step);
        *done = true;
    });
    player.waitUntil([&, done] {
        if (!*done) agree(meter);
        return *done;
    });
}

void play(Player& player, Meter& meter, const Step& step) {
    if (step.act == Act::Command || step.act == Act::CommandForAll)
        return playCommand(player, meter, step);
    player.then([&] { meter.begin(); });
    if (step.act == Act::Choose)
        player.choose(step.widget, step.entry);
    else
        player.click(step.widget);
    player.then([&] { meter.end(step); });
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    setUpDesktop(application);
    QTemporaryDir office;
    const FolderDrives drives(office.filePath(QStringLiteral("c")).toStdString());
    const FixedClock clock({*parseDate("15/03/2024"), *parseTime("10:20")});
    FileLog log(office.filePath(QStringLiteral("winvrx.log")));
    fillOffice(drives, log);
    testing::OnlyCopy instance;
    FileUserSettings settings(office.filePath(QStringLiteral("winvrx.ini")));
    settings.keep("empresa", kCompany.text());
    Meter meter(argc == 2 && std::strcmp(argv[1], "--trace") == 0);
    ProgramDesk desk{drives,   clock,    log,
                     instance, settings, QApplication::applicationDirPath().toStdString()};
    desk.engine = [](std::unique_ptr<ReportEngine>) { return std::make_unique<NoPaper>(); };
    desk.printers = [] { return std::make_unique<testing::TestPrinters>(); };
    desk.files = [&](std::unique_ptr<FileSystem> own) {
        return std::make_unique<CountingFiles>(std::move(own), meter.asked());
    };
    Program program(desk);
    meter.begin();
    if (!program.start()) return 1;
    meter.end({"start", "", kStart + menu(false) + kDueLooked});
    Player player(office.filePath(QStringLiteral("play")));
    for (const Step& step : kDay)
        play(player, meter, step);
    const int played = player.play();
    return played == 0 && !meter.past() ? 0 : 1;
}
