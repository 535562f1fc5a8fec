#include "tests/support/writing_commands.h"

#include "foundation/durable_files.h"
#include "foundation/employee_checks.h"
#include "foundation/employee_import.h"
#include "foundation/empresa.h"
#include "foundation/menu.h"
#include "foundation/restaurar_copia.h"
#include "foundation/turnos.h"
#include "output/tipo_ponto.h"
#include "tests/support/employee_desk.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/test_browser.h"
#include "timecard/cartao_ponto_dados.h"
#include "timecard/data_mes_corrente.h"
#include "timecard/selected_month.h"

#include <ostream>
#include <stdexcept>

namespace winvrx::testing {

namespace {

using std::filesystem::path;
using namespace std::chrono_literals;

const std::string kDataPath = "Users/Public/Documents/Winvrx/";
const std::string kEarlierList = "Arquivos de programas/Winvrx/CartaPonto";
const std::string kUseEarlier =
    "Existem Dados Cadastrados na Versão Anterior! Deseja Utilizar essa Base de Dados Anterior?";

std::string companyLine(const std::string& code, const std::string& name) {
    Company company = sampleCompany(*parseDate("10/01/2024"));
    company.code = code;
    company.name = name;
    return encode(company);
}

Employee employee(const std::string& code, const std::string& name) {
    Employee one;
    for (const auto member : kRequiredEmployeeFields)
        one.*member = "1";
    one.code = code;
    one.name = name;
    one.admission = "01/02/2020";
    one.shift = "Unico";
    one.scale = "Norma";
    return one;
}

/// Two companies, the first with three employees and the month of March chosen.
FileTable office() {
    const auto list = [](const std::vector<Employee>& people) {
        std::vector<std::string> lines;
        for (const Employee& one : people)
            lines.push_back(encode(one));
        return joinedLines(lines);
    };
    FileTable files;
    const auto file = [&files](const char* name) -> std::string& {
        return files[inDataFolder(name)];
    };
    file("01Empresa") = joinedLines({companyLine("01", "PRIMEIRA"), companyLine("02", "SEGUNDA")});
    file("01CartaPonto") =
        list({employee("001", "ANA"), employee("002", "BIA"), employee("003", "CAIO")});
    file("02CartaPonto") = list({employee("001", "DORA"), employee("002", "EVA")});
    for (const char* company : {"01", "02"}) {
        file((company + std::string("PadrHor002.pdx")).c_str()) = "08:0012:0013:0017:00\r\n";
        file((company + std::string("002-03-2024.bdx")).c_str()) =
            "  \r\n01/sex/mar08:0012:0013:0017:00\r\n";
        file((company + std::string("002-02-2024.bdx")).c_str()) =
            "  \r\n01/qui/fev08:0012:0013:0017:00\r\n";
    }
    file("01CartaoDePontoTipo") = "05\r\n";
    file("03-2024ds.rdx") = "";
    file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
    file("LocMen.lvc") = "C\r\n";
    return files;
}

FileTable officeOfAnEarlierVersion() {
    FileTable files = office();
    files[kEarlierList] = encode(employee("007", "ANTIGA")) + "\r\n";
    return files;
}

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

/// A started main window and what it does next.
template <typename Next>
auto inMenu(Next next) {
    return [next](const Workplace& at, const Drives& drives) {
        OnlyCopy instance;
        TestBrowser browser;
        Menu menu(at, drives, instance, browser, "/opt/winvrx");
        if (!menu.start()) return false;
        next(menu);
        return true;
    };
}

template <typename Give>
auto inEmpresa(Give give) {
    return [give](const Workplace& at, const Drives&) {
        TestBrowser browser;
        Empresa screen(at, browser);
        screen.load();
        return screen.lines().size() > 1 && give(screen);
    };
}

template <typename Give>
auto inEmpregados(Give give) {
    return [give](const Workplace& at, const Drives&) {
        TestBrowser browser;
        TestEditor editor;
        TestSpreadsheet spreadsheet;
        TestLocks locks;
        Empregados screen(at, {browser, editor, spreadsheet, locks, locks});
        screen.load();
        return screen.lines().size() > 1 && give(screen);
    };
}

template <typename Give>
auto onCardOf(std::size_t position, Give give) {
    return [position, give](const Workplace& at, const Drives&) {
        CartaoPontoDados screen(at);
        return screen.open() && screen.select(position) && give(screen);
    };
}

template <typename Give>
auto inMonth(Give give) {
    return [give](const Workplace& at, const Drives&) {
        DataMesCorrente screen(at);
        screen.open();
        screen.tick(*parseDate("29/03/2024"), true);
        return give(screen);
    };
}

bool chooseStock(const Workplace& at, const Drives&) {
    TestBrowser browser;
    TipoPonto screen(at, browser);
    screen.load();
    return screen.choose(*findStock("12"));
}

const CopyName kCopyOfYesterday{.made = {*parseDate("14/03/2024"), *parseTime("08:12")}};

/// The office with a copy that lacks files, has another, and knows one differently.
FileTable officeWithACopy() {
    FileTable files = office();
    std::string copy = PlainArchiver::packedFile("01Empresa", "01 ANTES\r\n") +
                       PlainArchiver::packedFile("03CartaPonto", "001 JANE\r\n");
    const std::string same = "02CartaPonto";
    copy += PlainArchiver::packedFile(same, files.at(inDataFolder(same)));
    files[inDataFolder(std::string(kCopiesSubfolder) + "/" + kCopyOfYesterday.text())] = copy;
    return files;
}

bool restoreCopy(const Workplace& at, const Drives&) {
    const PlainArchiver archiver;
    SafetyCopies copies(at.files, archiver, at.log);
    TestBrowser browser;
    return RestaurarCopia(at, copies, browser).restore(kCopyOfYesterday);
}

std::vector<WritingCommand> registerCommands() {
    Company third = sampleCompany(*parseDate("10/01/2024"));
    third.name = "TERCEIRA";
    return {
        {"include company", office(),
         inEmpresa([third](Empresa& screen) { return screen.include(third); })},
        {"change company", office(),
         inEmpresa([third](Empresa& screen) { return screen.change(1, third); })},
        {"delete company", office(), inEmpresa([](Empresa& screen) {
             return screen.remove(1, DeleteOption::CompanyAndEmployees);
         })},
        {"include employee", office(),
         inEmpregados([](Empregados& screen) { return screen.include(employee("004", "DANI")); })},
        {"change employee", office(), inEmpregados([](Empregados& screen) {
             return screen.change(1, employee("002", "BEATRIZ"));
         })},
        {"delete employee", office(),
         inEmpregados([](Empregados& screen) { return screen.remove(1); })},
        {"delete all employees", office(),
         inEmpregados([](Empregados& screen) { return screen.removeAll(); })},
    };
}

/// An employee without punches, with two files to take along.
FileTable officeBeforeTransfer() {
    FileTable files = office();
    files[inDataFolder("01PadrHor001.pdx")] = "08:00\r\n";
    files[inDataFolder("01configAf001")] = "**** \r\n";
    return files;
}

bool changeShift(const Workplace& at, const Drives&) {
    TestBrowser browser;
    TestLocks locks;
    Turnos screen(at, browser, locks);
    screen.load();
    return screen.change(*EmployeeCode::parse("002"), Shift::Dois);
}

bool importEmployees(const Workplace& at, const Drives&) {
    EmployeeImport import(at);
    return import.open(at.session.folder.file("lista.csv")) && import.include();
}

std::vector<WritingCommand> listCommands() {
    FileTable withCsv = office();
    withCsv[inDataFolder("lista.csv")] = "Nome;Admissão\nFLAVIA;12/03/2024\n";
    return {
        {"transfer employee", officeBeforeTransfer(), inEmpregados([](Empregados& screen) {
             return screen.lines()[0].employee.name == "ANA" &&
                    screen.transfer(0, *CompanyCode::parse("02"));
         })},
        {"sort employees", office(),
         inEmpregados([](Empregados& screen) { return screen.sortByName(); })},
        {"report employees", office(),
         inEmpregados([](Empregados& screen) { return screen.report(); })},
        {"change shift", office(), changeShift},
        {"import employees", withCsv, importEmployees},
    };
}

std::vector<WritingCommand> menuCommands() {
    return {
        {"first start", {}, inMenu([](Menu&) {})},
        {"select company", office(), inMenu([](Menu& menu) { menu.select(0); })},
        {"use another drive", office(), inMenu([](Menu& menu) { menu.useDrive('D'); })},
        {"import earlier data", officeOfAnEarlierVersion(),
         inMenu([](Menu& menu) { menu.offerEarlierData(); })},
        {"discard earlier data",
         officeOfAnEarlierVersion(),
         inMenu([](Menu& menu) { menu.offerEarlierData(); }),
         {kUseEarlier}},
        {"restore copy", officeWithACopy(), restoreCopy},
        {"exit", office(), inMenu([](Menu& menu) { menu.exit(); })},
    };
}

std::vector<WritingCommand> cardCommands() {
    return {
        {"record month", office(),
         inMonth([](DataMesCorrente& screen) { return screen.record(); })},
        {"confirm month", office(), inMonth([](DataMesCorrente& screen) {
             return screen.chooseMonth(2024y / 4) && screen.confirm();
         })},
        {"save schedule", office(),
         onCardOf(0,
                  [](CartaoPontoDados& screen) {
                      for (std::size_t i = 0; i < 6; ++i)
                          screen.schedule().type(i, i % 2 == 0 ? "08:00" : "12:00");
                      return screen.saveSchedule();
                  })},
        {"apply punches", office(),
         onCardOf(1, [](CartaoPontoDados& screen) { return screen.applyPunches(); })},
        {"save punches", office(),
         onCardOf(1,
                  [](CartaoPontoDados& screen) {
                      screen.sheet().type(4, PunchCell::MorningEntry, "09:00");
                      return screen.savePunches();
                  })},
        {"choose stock", office(), chooseStock},
    };
}

/// Agrees to everything but what is to be refused.
class AgreeingOperator final : public Operator {
  public:
    explicit AgreeingOperator(const std::set<std::string>& refused) : refused_(refused) {}

    std::vector<Message> failures;

    Answer ask(const Message& message) override {
        if (message.icon == Icon::Critical) failures.push_back(message);
        const bool refuse = refused_.contains(message.text);
        if (message.buttons == Buttons::Ok || message.buttons == Buttons::OkCancel)
            return refuse ? Answer::Cancel : Answer::Ok;
        return refuse ? Answer::No : Answer::Yes;
    }

  private:
    const std::set<std::string>& refused_;
};

}  // namespace

std::string inDataFolder(const std::string& name) {
    return kDataPath + name;
}

void PrintTo(const WritingCommand& command, std::ostream* out) {
    for (const char c : command.name)
        *out << (c == ' ' ? '_' : c);
}

const std::vector<WritingCommand>& writingCommands() {
    static const std::vector<WritingCommand> commands = [] {
        std::vector<WritingCommand> all;
        for (const auto& part :
             {registerCommands(), listCommands(), menuCommands(), cardCommands()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return commands;
}

const WritingCommand& writingCommand(const std::string& name) {
    for (const WritingCommand& command : writingCommands())
        if (command.name == name) return command;
    throw std::invalid_argument("no command " + name);
}

Outcome runCommand(const WritingCommand& command, Disk& disk, Host& host, const path& root) {
    DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
    AgreeingOperator person(command.refused);
    const FixedClock clock{{*parseDate("15/03/2024"), *parseTime("10:20")}};
    RecordedLog log;
    Session session{.folder = DataFolder('C', root / kDataPath),
                    .company = CompanyCode::parse("01")};
    FolderLock lock(disk, host);
    const bool done =
        command.run(Workplace{files, person, clock, log, session, lock}, FolderDrives(root));
    return {done && person.failures.empty() && log.entries.empty(), person.failures, log.entries};
}

Outcome startAgain(Disk& disk, Host& host, const path& root) {
    return runCommand({"start", {}, inMenu([](Menu&) {})}, disk, host, root);
}

FileTable filesAfter(const WritingCommand& command) {
    const path root = "/root";
    MemoryDisk disk(placed(command.before, root));
    TestHost host;
    if (!runCommand(command, disk, host, root).done)
        throw std::logic_error(command.name + " fails on a sound disk");
    return recordsOf(disk.files(), root);
}

std::string neitherBeforeNorAfter(const FileTable& now, const FileTable& before,
                                  const FileTable& after) {
    std::set<std::string> names;
    for (const FileTable* table : {&now, &before, &after})
        for (const auto& [name, bytes] : *table)
            names.insert(name);
    const auto content = [](const FileTable& table, const std::string& name) {
        const auto found = table.find(name);
        return found == table.end() ? std::nullopt : std::optional(found->second);
    };
    std::string wrong;
    for (const std::string& name : names) {
        const auto bytes = content(now, name);
        if (bytes == content(before, name) || bytes == content(after, name)) continue;
        wrong += name + (bytes ? " holds " + *bytes : " is gone") + "\n";
    }
    return wrong;
}

MemoryDisk::Files placed(const FileTable& files, const path& root) {
    MemoryDisk::Files all;
    for (const auto& [name, bytes] : files)
        all[root / name] = bytes;
    return all;
}

FileTable recordsOf(const MemoryDisk::Files& files, const path& root) {
    FileTable table;
    for (const auto& [file, bytes] : files)
        if (!file.string().ends_with(kLockSuffix) &&
            file.parent_path().filename() != kCopiesSubfolder)
            table[file.lexically_relative(root).generic_string()] = bytes;
    return table;
}

}  // namespace winvrx::testing
