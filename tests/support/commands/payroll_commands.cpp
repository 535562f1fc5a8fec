// What the payroll and its catalogue of events write.
#include "personnel/employer/folha_dados.h"
#include "personnel/employer/folha_opcoes.h"
#include "personnel/employer/tabelas_legais.h"
#include "personnel/payroll/eventos.h"
#include "personnel/payroll/folha.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employees.h"

namespace winvrx::testing {

namespace {

using namespace std::chrono_literals;

constexpr const char* kRecorded =
    "001 SALARIO BASE         1220,01111000 2.000,00\r\n"
    "091 INSS                 0000,00001000 158,82\r\n";

std::vector<Employee> paidEmployees() {
    std::vector<Employee> employees = {officeEmployee("001", "ANA"), officeEmployee("002", "BIA"),
                                       officeEmployee("003", "CAIO")};
    for (Employee& one : employees)
        one.salary = "2.000,00";
    return employees;
}

/// Everyone has a salary, and all but the first a card. The tables lie among the records.
FileTable payingOffice() {
    FileTable files = filledOffice();
    const auto file = [&](const char* name) -> std::string& { return files[inDataFolder(name)]; };
    file("01CartaPonto") = employeeList(paidEmployees());
    file("01003-03-2024.bdx") = file("01002-03-2024.bdx");
    file("01confgger") = "001 SALARIO BASE         1220,01111000\r\nnota\r\n";
    file("salario-minimo.txt") = "desde; valor\n01/2024; 1.412,00; A\n";
    file("inss.txt") =
        "desde; até\n01/2023; 1.302,00; 7,5; 7.507,49; 9; A\n01/2024; 1.412,00; 7,5; 7.786,02; 9; "
        "A\n";
    file("salario-familia.txt") = "desde; cota\n01/2024; 62,04; 1.819,26; A\n";
    file("irrf-tabela.txt") = "desde; isento\n01/01/2024; 2.259,20; 27,5; 621,28; A\n";
    file("irrf-dependente.txt") = "desde; valor\n01/01/2024; 189,59; A\n";
    file("irrf-desconto-simplificado.txt") = "desde; valor\n01/01/2024; 564,80; A\n";
    file("irrf-reducao.txt") = "desde; até\n01/01/2026; 5,00; 3,00; 7,00; 9,00; 0,1; A\n";
    return files;
}

FileTable recordedOffice() {
    FileTable files = payingOffice();
    files[inDataFolder("01fp0000203-2024.bdx")] = kRecorded;
    return files;
}

/// A vacation of the second, with the first instalment of the 13th.
FileTable vacationOffice() {
    FileTable files = payingOffice();
    files[inDataFolder("01Ferias002")] = encode(VacationItem{.acquisitionFirst = "12/03/2024",
                                                             .acquisitionLast = "11/03/2025",
                                                             .kind = "FERIAS",
                                                             .granted = "30",
                                                             .first = "06/05/2024",
                                                             .last = "25/05/2024",
                                                             .sold = "10",
                                                             .thirteenth = "S",
                                                             .month = "03-2024"}) +
                                         "\r\n";
    return files;
}

template <typename Give>
auto inPayroll(Give give, PayrollRun run = PayrollRun::Month) {
    return [give, run](const Workplace& at, const Drives&) {
        Folha screen(at, at.session.folder.path());
        return screen.load(2024y / 3, run) && give(screen);
    };
}

template <typename Give>
auto ofSecond(Give give, PayrollRun run = PayrollRun::Month) {
    return inPayroll(
        [give](Folha& screen) {
            return screen.open(paidEmployees().at(1)) == Folha::Opening::Opened && give(screen);
        },
        run);
}

template <typename Give>
auto inEvents(std::optional<EmployeeCode> employee, Give give) {
    return [employee, give](const Workplace& at, const Drives&) {
        Eventos screen(at, {}, employee);
        screen.load();
        return screen.count() > 0 && give(screen);
    };
}

/// The user's tables stand for the delivered ones too.
template <typename Give>
auto inTables(Give give) {
    return [give](const Workplace& at, const Drives&) {
        TabelasLegais screen(at, at.session.folder.path());
        return screen.load() && give(screen);
    };
}

bool recordOptions(const Workplace& at, const Drives&) {
    FolhaOpcoes screen(at);
    if (!screen.load()) return false;
    screen.choose(0, 1);
    return screen.save();
}

bool recordFacts(const Workplace& at, const Drives&) {
    FolhaDados screen(at);
    std::vector<std::string> typed(payrollFactTable().size());
    typed.front() = "12,00";
    return screen.load() && screen.select(1) && screen.save(typed);
}

}  // namespace

std::vector<WritingCommand> payrollCommands() {
    const NewEvent commission{"COMISSAO", true, 5, {PayrollKind::Month}};
    return {
        {"record payroll", payingOffice(), ofSecond([](Folha& screen) { return screen.save(); })},
        {"record payroll again", recordedOffice(),
         ofSecond([](Folha& screen) { return screen.compute({}) && screen.save(); })},
        {"record all payrolls", payingOffice(),
         inPayroll([](Folha& screen) { return screen.saveAll(paidEmployees(), {}); })},
        {"reopen payroll", recordedOffice(),
         ofSecond([](Folha& screen) { return screen.reopen(); })},
        {"record vacation pay", vacationOffice(),
         ofSecond([](Folha& screen) { return screen.save(); }, PayrollRun::Vacation)},
        {"record all first instalments", payingOffice(),
         inPayroll([](Folha& screen) { return screen.saveAll(paidEmployees(), {}); },
                   PayrollRun::ThirteenthFirst)},
        {"include event", payingOffice(),
         inEvents({}, [=](Eventos& screen) { return screen.includeNew(commission); })},
        {"change event", payingOffice(),
         inEvents({},
                  [](Eventos& screen) {
                      PayrollEvent salary = screen.lines().at(0).record;
                      salary.reference = "200";
                      return screen.change(0, salary);
                  })},
        {"delete event", payingOffice(),
         inEvents({}, [](Eventos& screen) { return screen.remove(0); })},
        {"restore events", payingOffice(),
         inEvents({}, [](Eventos& screen) { return screen.restoreDefault(); })},
        {"record legal line", payingOffice(), inTables([](TabelasLegais& screen) {
             return screen.save(0, {"01/2025", "1.518,00", "B"});
         })},
        {"delete legal line", payingOffice(),
         inTables([](TabelasLegais& screen) { return screen.remove(1, 0); })},
        {"record payroll options", payingOffice(), recordOptions},
        {"record payroll facts", payingOffice(), recordFacts},
        {"restore events of one", payingOffice(),
         inEvents(EmployeeCode::parse("002"),
                  [](Eventos& screen) { return screen.restoreDefault(); })},
    };
}

}  // namespace winvrx::testing
