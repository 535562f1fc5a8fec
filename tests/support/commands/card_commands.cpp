// What the screens of the time card and of its printing write.
#include "output/stocks/tipo_ponto.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/leave_files.h"
#include "tests/support/test_punch_desk.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/punches/leave_marking.h"

namespace winvrx::testing {

namespace {

using namespace std::chrono_literals;

/// The office whose cards of March are closed on this day.
FileTable officeClosingOn(int day) {
    MonthSettings march;
    march.month = 2024y / 3;
    march.fixedMonth = false;
    march.closingDay = day;
    MemoryFiles written;
    const DataFolder folder('C', "/");
    saveMonthSettings({written, folder}, march);
    FileTable files = filledOffice();
    files[inDataFolder("03-2024ds.rdx")] = written.content.begin()->second;
    return files;
}

template <typename Give>
auto onCardOf(std::size_t position, Give give) {
    return [position, give](const Workplace& at, const Drives&) {
        const TestPunchDesk asked;
        CartaoPontoDados screen(at, asked.desk);
        return screen.open() && screen.select(position) && give(screen);
    };
}

/// A leave over the end of a closing period, in two months that are filled.
bool markLeave(const Workplace& at, const Drives&) {
    const TestPunchDesk asked;
    const EmployeeKey bia{at.session.company.value(), *EmployeeCode::parse("002")};
    const LeaveCalendar leaves(leaveBytes({vacation("28/02/2024", "05/03/2024")}), {});
    return attemptWriting(at, incorrectData(), [&] {
        return markDays(at.store(), asked.locks, bia, leaves, leaves.leaves()[0].period) >= 0;
    });
}

bool chooseStock(const Workplace& at, const Drives&) {
    TipoPonto screen(at);
    screen.load();
    return screen.choose(*findStock("12"));
}

}  // namespace

std::vector<WritingCommand> cardCommands() {
    return {
        {"save schedule", filledOffice(),
         onCardOf(0,
                  [](CartaoPontoDados& screen) {
                      for (std::size_t i = 0; i < 6; ++i)
                          screen.schedule().type(i, i % 2 == 0 ? "08:00" : "12:00");
                      return screen.saveSchedule();
                  })},
        {"apply punches", filledOffice(),
         onCardOf(1, [](CartaoPontoDados& screen) { return screen.applyPunches(); })},
        {"apply punches to all", officeClosingOn(21),
         onCardOf(1,
                  [](CartaoPontoDados& screen) {
                      return screen.filterBy(ShiftFilter::Unico) && screen.applyToAll(true);
                  })},
        {"choose minutes", filledOffice(),
         onCardOf(0,
                  [](CartaoPontoDados& screen) { return screen.chooseMinutes(Minutes::Varied); })},
        {"save punches of a closing period", officeClosingOn(21),
         onCardOf(1,
                  [](CartaoPontoDados& screen) {
                      screen.sheet().type(4, PunchCell::MorningEntry, "09:00");
                      return screen.savePunches();
                  })},
        {"save punches", filledOffice(),
         onCardOf(1,
                  [](CartaoPontoDados& screen) {
                      screen.sheet().type(4, PunchCell::MorningEntry, "09:00");
                      return screen.savePunches();
                  })},
        {"change percentage", filledOffice(),
         onCardOf(1,
                  [](CartaoPontoDados& screen) {
                      return screen.changePercent(HourCategory::ExtraMinimum, "60");
                  })},
        {"mark leave", officeClosingOn(21), markLeave},
        {"choose stock", filledOffice(), chooseStock},
    };
}

}  // namespace winvrx::testing
