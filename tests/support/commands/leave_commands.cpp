// What the leave screen writes.
#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employee_desk.h"

namespace winvrx::testing {

namespace {

/// The screen with the second employee and his first leave chosen.
template <typename Give>
auto inLeaves(Give give) {
    return [give](const Workplace& at, const Drives&) {
        const TestLocks locks;
        Afastamento screen(at, locks);
        return screen.open() && screen.select(1) &&
               (screen.file().leaves.empty() || screen.choose(0)) && give(screen);
    };
}

void typeTermination(LeaveForm& form) {
    form.type(LeaveInput::Type, kLeaveTypes[7]);
    form.type(LeaveInput::FirstDay, "15/03/2024");
    form.type(LeaveInput::TerminationType, kTerminationTypes[0]);
    form.type(LeaveInput::NoticeType, kNoticeTypes[1]);
}

/// A termination, and a line that the next rewrite drops.
FileTable officeWithALeave(std::optional<Date> inactiveSince) {
    FileTable files = filledOffice();
    LeaveForm form(parseDate("05/03/2018"));
    typeTermination(form);
    files[inDataFolder("01configAf002")] =
        "nota\r\n" +
        encode(LeaveFile{.leaves = {leaveLine(form.leave())}, .inactiveSince = inactiveSince});
    return files;
}

bool addTermination(Afastamento& screen) {
    typeTermination(screen.form());
    return screen.add();
}

bool changeHour(Afastamento& screen) {
    screen.form().type(LeaveInput::Homologation, "14:00");
    return screen.change();
}

}  // namespace

std::vector<WritingCommand> leaveCommands() {
    const auto date = parseDate("08/05/2024");
    const auto toggle = [](Afastamento& screen) { return screen.changeActivation(); };
    // A command of its own marks the cards.
    const std::set<std::string> leaveCards = {
        "Há dias preenchidos no cartão que este afastamento muda. Deseja marcá-los agora?"};
    return {
        {"add leave", filledOffice(), inLeaves(addTermination), leaveCards},
        {"change leave", officeWithALeave(std::nullopt), inLeaves(changeHour), leaveCards},
        {"delete leave", officeWithALeave(date),
         inLeaves([](Afastamento& screen) { return screen.remove(); })},
        {"inactivate employee", officeWithALeave(std::nullopt), inLeaves(toggle), leaveCards},
        {"reactivate employee", officeWithALeave(date), inLeaves(toggle), leaveCards},
    };
}

}  // namespace winvrx::testing
