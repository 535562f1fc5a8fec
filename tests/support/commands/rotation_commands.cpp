// What the screen of the rotations writes, and the commands that change its groups elsewhere.
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employee_desk.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_punch_desk.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"
#include "timecard/rotation/rotation_records.h"

namespace winvrx::testing {

namespace {

using namespace std::chrono_literals;

const CompanyCode kFirst = *CompanyCode::parse("01");

/// ANA, BIA and CAIO on 5 x 1, in a group of that month with CAIO as relief worker.
FileTable rotationOffice(WorkMonth month) {
    FileTable files = filledOffice();
    std::vector<Employee> people = {officeEmployee("001", "ANA"), officeEmployee("002", "BIA"),
                                    officeEmployee("003", "CAIO")};
    for (Employee& one : people)
        one.scale = "5x1";
    files[inDataFolder("01CartaPonto")] = employeeList(people);
    files.erase(inDataFolder("01GRUPO-032024.rdx"));
    const RotationGroup group{
        .firstDayOff = firstDay(month),
        .places = {EmployeeCode::parse("001"), EmployeeCode::parse("002")},
        .relief = {{*EmployeeCode::parse("003"), plusDays(firstDay(month), 3)}}};
    files[inDataFolder("01" + groupFileName(month))] = joinedLines({encode(recordOf(group))});
    files[inDataFolder("01002-03-2024.prd")] = "  \r\n01/sex/mar08:0012:0013:0017:00\r\n";
    return files;
}

template <typename Give>
auto inRotation(Give give) {
    return [give](const Workplace& at, const Drives&) {
        const TestLocks locks;
        TestEditor editor;
        RecordingEngine engine;
        CartaoPontoDadosB screen(at, {locks, editor, engine});
        return screen.open() && give(screen);
    };
}

bool moveStart(CartaoPontoDadosB& screen) {
    if (!screen.selectGroup(1)) return false;
    screen.draft().setFirstDayOff(2);
    return screen.saveGroup();
}

bool recordTable(CartaoPontoDadosB& screen) {
    if (!screen.filterBy(ShiftFilter::Tres)) return false;
    screen.workTable().typeTime(0, 0, "21:00");
    return screen.workTable().save();
}

bool applyToAll(const Workplace& at, const Drives&) {
    const TestLocks locks;
    const RotationRecords rotation(at.store(), at.clock);
    CartaoPontoDados screen(at, {rotation, locks});
    return screen.open() && screen.select(0) && screen.applyToAll(false);
}

bool deleteMember(const Workplace& at, const Drives&) {
    const TestLocks locks;
    TestEditor editor;
    TestSpreadsheet spreadsheet;
    const RotationRecords rotation(at.store(), at.clock);
    Empregados screen(at, {editor, spreadsheet, rotation, locks});
    screen.load();
    return screen.remove(1);
}

}  // namespace

std::vector<WritingCommand> rotationCommands() {
    const FileTable march = rotationOffice(2024y / 3);
    return {
        {"record work table", march, inRotation(recordTable)},
        {"move start of days off", march, inRotation(moveStart)},
        {"continue groups", rotationOffice(2024y / 2),
         inRotation([](CartaoPontoDadosB& screen) { return screen.continueGroups(); })},
        {"delete group", march, inRotation([](CartaoPontoDadosB& screen) {
             return screen.selectGroup(1) && screen.removeGroup();
         })},
        {"delete groups", march,
         inRotation([](CartaoPontoDadosB& screen) { return screen.removeGroups(); })},
        {"delete punches of scale", march, inRotation([](CartaoPontoDadosB& screen) {
             return screen.selectGroup(1) && screen.removePunches();
         })},
        {"print rotation", march,
         inRotation([](CartaoPontoDadosB& screen) { return screen.printText(); })},
        {"apply rotation to all", march, applyToAll},
        {"delete member of a group", march, deleteMember},
    };
}

}  // namespace winvrx::testing
