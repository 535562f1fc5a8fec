// What the screens of the work month and of the holidays write.
#include "tests/support/commands/writing_commands.h"
#include "timecard/month/data_mes_corrente.h"
#include "timecard/month/feriados.h"

namespace winvrx::testing {

namespace {

using namespace std::chrono_literals;

template <typename Give>
auto inMonth(Give give) {
    return [give](const Workplace& at, const Drives&) {
        DataMesCorrente screen(at);
        screen.open();
        screen.tick(*parseDate("29/03/2024"), true);
        return give(screen);
    };
}

template <typename Give>
auto inHolidays(Give give) {
    return [give](const Workplace& at, const Drives&) {
        Feriados screen(at);
        screen.load();
        return screen.lines().size() > 1 && give(screen);
    };
}

bool updateAllOvertime(DataMesCorrente& screen) {
    const auto patient = [](std::size_t, std::size_t) { return true; };
    return screen.updateAll(patient) == OvertimeUpdate{3, 3};
}

}  // namespace

std::vector<WritingCommand> monthCommands() {
    return {
        {"record month", filledOffice(),
         inMonth([](DataMesCorrente& screen) { return screen.record(); })},
        {"confirm month", filledOffice(), inMonth([](DataMesCorrente& screen) {
             return screen.chooseMonth(2024y / 4) && screen.confirm();
         })},
        {"update overtime of all", filledOffice(), inMonth(updateAllOvertime)},
        {"include holiday", filledOffice(), inHolidays([](Feriados& screen) {
             return screen.include({"25/01", "FUNDAÇÃO"});
         })},
        {"change holiday", filledOffice(), inHolidays([](Feriados& screen) {
             return screen.change(0, {"06/12", "PADROEIRO"});
         })},
        {"delete holiday", filledOffice(),
         inHolidays([](Feriados& screen) { return screen.remove(1); })},
    };
}

}  // namespace winvrx::testing
