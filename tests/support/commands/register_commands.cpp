// What the registers of companies and employees write.
#include "foundation/register/dismissal.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/empresa.h"
#include "foundation/register/turnos.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employee_desk.h"
#include "tests/support/leave_files.h"

namespace winvrx::testing {

namespace {

template <typename Give>
auto inEmpresa(Give give) {
    return [give](const Workplace& at, const Drives&) {
        Empresa screen(at);
        screen.load();
        return screen.lines().size() > 1 && give(screen);
    };
}

template <typename Give>
auto inEmpregados(Give give) {
    return [give](const Workplace& at, const Drives&) {
        TestEditor editor;
        TestSpreadsheet spreadsheet;
        TestLocks locks;
        Empregados screen(at, {editor, spreadsheet, locks, locks});
        screen.load();
        return screen.lines().size() > 1 && give(screen);
    };
}

bool exportEmployees(const Workplace& at, const Drives& drives) {
    const auto file = at.session.folder.file("lista.csv");
    return inEmpregados([&](Empregados& screen) { return screen.exportTo(file); })(at, drives);
}

/// An employee without punches, with two files to take along.
FileTable officeBeforeTransfer() {
    FileTable files = filledOffice();
    files[inDataFolder("01PadrHor001.pdx")] = "08:00\r\n";
    files[inDataFolder("01configAf001")] = "**** \r\n";
    return files;
}

bool changeShift(const Workplace& at, const Drives&) {
    TestLocks locks;
    Turnos screen(at, locks, locks);
    screen.load();
    return screen.list().employees().size() > 1 &&
           screen.change(screen.list().employees()[1], Shift::Dois);
}

bool endContract(const Workplace& at, const Drives&) {
    const EmployeeKey bia{at.session.company.value(), *EmployeeCode::parse("002")};
    const std::string file = leaveBytes(
        {leave("008 RESCISÃO_CONTRATO_TRABALHO", "15/03/2024", "15/03/2024")}, "15/03/2024");
    return attemptWriting(at, incorrectData(),
                          [&] { saveLeaveFile(at.store(), bia, file, at.clock.now()); });
}

bool importEmployees(const Workplace& at, const Drives&) {
    EmployeeImport import(at);
    return import.open(at.session.folder.file("lista.csv")) && import.include();
}

}  // namespace

std::vector<WritingCommand> registerCommands() {
    Company third = sampleCompany(*parseDate("10/01/2024"));
    third.name = "TERCEIRA";
    return {
        {"include company", filledOffice(),
         inEmpresa([third](Empresa& screen) { return screen.include(third); })},
        {"change company", filledOffice(),
         inEmpresa([third](Empresa& screen) { return screen.change(1, third); })},
        {"delete company", filledOffice(), inEmpresa([](Empresa& screen) {
             screen.choose(DeleteOption::CompanyAndEmployees);
             return screen.remove(1);
         })},
        {"end contract", filledOffice(), endContract},
        {"include employee", filledOffice(), inEmpregados([](Empregados& screen) {
             return screen.include(officeEmployee("004", "DANI"));
         })},
        {"change employee", filledOffice(), inEmpregados([](Empregados& screen) {
             return screen.change(1, officeEmployee("002", "BEATRIZ"));
         })},
        {"delete employee", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.remove(1); })},
        {"delete all employees", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.removeAll(); })},
    };
}

std::vector<WritingCommand> listCommands() {
    FileTable withCsv = filledOffice();
    withCsv[inDataFolder("lista.csv")] = "Nome;Admissão\nFLAVIA;12/03/2024\n";
    return {
        {"transfer employee", officeBeforeTransfer(), inEmpregados([](Empregados& screen) {
             return screen.lines()[0].record.name == "ANA" &&
                    screen.transfer(0, *CompanyCode::parse("02"));
         })},
        {"sort employees", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.sortByName(); })},
        {"sort employees by admission", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.sortByAdmission(); })},
        {"move employee", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.moveTo(0, "3"); })},
        {"report employees", filledOffice(),
         inEmpregados([](Empregados& screen) { return screen.report(); })},
        {"export employees", withCsv, exportEmployees},
        {"change shift", filledOffice(), changeShift},
        {"import employees", withCsv, importEmployees},
    };
}

}  // namespace winvrx::testing
