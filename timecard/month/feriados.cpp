#include "timecard/month/feriados.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kConfirmInclude = question("INCLUSÃO", "Confirma a Inclusão?");
const Message kConfirmChange = question("ALTERAÇÃO", "Confirma a Alteração do Item Selecionado?");
const Message kConfirmDelete =
    riskyQuestion("EXCLUSÃO", "Confirma a Exclusão do Item Selecionado?");

constexpr std::string_view kNoDay = "Digite o dia como dd/mm (todo ano) ou dd/mm/aaaa (uma vez).";
constexpr std::string_view kNoName = "Digite o nome do feriado.";
constexpr std::string_view kDayTaken = "Este dia já está na lista.";
constexpr std::string_view kChangedElsewhere =
    "A lista foi alterada por outro computador. Abra a tela novamente.";

/// Throws Fault for what the list does not take.
LocalHoliday checked(const TypedHoliday& typed) {
    const auto day = parseHolidayDay(completedHolidayDay(typed.day));
    if (!day) throw Fault("day of a holiday: " + typed.day, std::string(kNoDay));
    if (trimmed(typed.name).empty()) throw Fault("holiday without a name", std::string(kNoName));
    return {*day, std::string(trimmed(typed.name))};
}

bool holdsDay(const std::vector<LocalHolidayLine>& lines, const HolidayDay& day) {
    return std::ranges::any_of(lines, [&day](const LocalHolidayLine& line) {
        return line.holiday && line.holiday->day == day;
    });
}

/// Throws Fault when the list has the day already.
void requireFree(const std::vector<LocalHolidayLine>& lines, const HolidayDay& day) {
    if (holdsDay(lines, day)) throw Fault("holiday listed twice", std::string(kDayTaken));
}

}  // namespace

void Feriados::load() {
    (void)attempt(at_, incorrectData(), [this] { lines_ = loadLocalHolidays(at_.store()); });
}

std::string Feriados::findingOf(const std::string& day) {
    return parseHolidayDay(completedHolidayDay(day)) ? std::string() : std::string(kNoDay);
}

bool Feriados::include(const TypedHoliday& typed) {
    return attempt(at_, incorrectData(), [&] {
        const LocalHoliday holiday = checked(typed);
        requireFree(lines_, holiday.day);
        if (!at_.person.agrees(kConfirmInclude)) return false;
        const auto hold = holdFolder(at_);
        auto lines = loadLocalHolidays(at_.store());
        requireFree(lines, holiday.day);
        lines.push_back(decodeLocalHoliday(encode(holiday)));
        save(std::move(lines));
        return true;
    });
}

bool Feriados::change(std::size_t position, const TypedHoliday& typed) {
    return attempt(at_, incorrectData(), [&] {
        const LocalHoliday holiday = checked(typed);
        const auto& shown = lines_.at(position).holiday;
        if (!shown || shown->day != holiday.day) requireFree(lines_, holiday.day);
        if (!at_.person.agrees(kConfirmChange)) return false;
        const auto hold = holdFolder(at_);
        auto lines = linesAsShown();
        lines[position] = decodeLocalHoliday(encode(holiday, lines[position].bytes));
        save(std::move(lines));
        return true;
    });
}

bool Feriados::remove(std::size_t position) {
    if (!at_.person.agrees(kConfirmDelete)) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        auto lines = linesAsShown();
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
        save(std::move(lines));
    });
}

bool Feriados::mayDiscardTyped() {
    return at_.person.agrees(discardTyped());
}

void Feriados::help() {
    openHelp(at_, browser_);
}

std::vector<LocalHolidayLine> Feriados::linesAsShown() const {
    auto lines = loadLocalHolidays(at_.store());
    if (!std::ranges::equal(lines, lines_, {}, &LocalHolidayLine::bytes, &LocalHolidayLine::bytes))
        throw Fault("list of holidays changed on disk", std::string(kChangedElsewhere));
    return lines;
}

void Feriados::save(std::vector<LocalHolidayLine> lines) {
    saveLocalHolidays(at_.store(), lines);
    lines_ = std::move(lines);
}

}  // namespace winvrx
