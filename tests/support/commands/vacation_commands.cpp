// What the vacation screen writes.
#include "personnel/vacation/ferias.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employee_desk.h"
#include "tests/support/employees.h"

namespace winvrx::testing {

namespace {

/// A period of which twenty days are recorded and ten sold, or settled.
std::string vacationLine(const char* mark) {
    return encode(VacationItem{.acquisitionFirst = "01/02/2023",
                               .acquisitionLast = "31/01/2024",
                               .kind = "FERIAS",
                               .granted = "30",
                               .first = "06/05/2024",
                               .last = "25/05/2024",
                               .sold = "10",
                               .thirteenth = "N",
                               .month = "03-2024",
                               .mark = mark}) +
           "\r\n";
}

/// The second employee has worked for a whole year.
FileTable restingOffice(const std::string& vacations = "") {
    FileTable files = filledOffice();
    std::vector<Employee> employees = {officeEmployee("001", "ANA"), officeEmployee("002", "BIA"),
                                       officeEmployee("003", "CAIO")};
    employees[1].admission = "01/02/2023";
    employees[1].salary = "2.000,00";
    files[inDataFolder("01CartaPonto")] = employeeList(employees);
    files[inDataFolder("DataIde.ivc")] = "03-2024\r\nTodos\r\n";
    if (!vacations.empty()) files[inDataFolder("01Ferias002")] = vacations;
    return files;
}

template <typename Give>
auto inVacations(std::optional<Money> paid, Give give) {
    return [paid, give](const Workplace& at, const Drives&) {
        const TestLocks locks;
        Ferias screen(at, {locks, [paid](const EmployeeKey&, WorkMonth) { return paid; }});
        return screen.open() && screen.select(1) && screen.choose(0) && give(screen);
    };
}

bool recordDays(Ferias& screen) {
    screen.form().type(VacationInput::First, "06/05/2024");
    screen.form().type(VacationInput::Days, "20");
    screen.form().type(VacationInput::Sold, "10");
    return screen.record();
}

}  // namespace

std::vector<WritingCommand> vacationCommands() {
    return {
        {"record vacation", restingOffice(), inVacations({}, recordDays)},
        {"provide for vacation", restingOffice(),
         inVacations({}, [](Ferias& screen) { return screen.provide(); })},
        {"settle vacation", restingOffice(vacationLine("")),
         inVacations(Money{100}, [](Ferias& screen) { return screen.settle(); })},
        {"restore settlement", restingOffice(vacationLine("QUITADA")),
         inVacations({}, [](Ferias& screen) { return screen.restoreSettlement(); })},
        {"delete vacation", restingOffice(vacationLine("")),
         inVacations({}, [](Ferias& screen) { return screen.remove(); })},
    };
}

}  // namespace winvrx::testing
