#include "timecard/month/feriados.h"

#include "foundation/values/text.h"

namespace winvrx {

ListRow Feriados::rowOf(const LocalHoliday& holiday) const {
    return {{holiday.day, holiday.name}, holiday.day + " " + holiday.name};
}

LocalHoliday Feriados::completed(const LocalHoliday& typed) const {
    return {completedHolidayDay(typed.day), std::string(trimmed(typed.name))};
}

bool Feriados::requireAcceptable(const LocalHoliday& typed, const Line* before) {
    if (const Hint wrong = holidayDayHint(typed.day, Entry::Left); !wrong.text.empty())
        throw Fault("day of a holiday: " + typed.day, wrong.text);
    if (typed.name.empty()) throw Fault("holiday without a name", "Digite o nome do feriado.");
    const bool keepsDay = before && before->key() == keyOf(typed);
    if (!keepsDay && findLine(lines_, keyOf(typed)))
        throw Fault("holiday listed twice", "Este dia já está na lista.");
    return true;
}

}  // namespace winvrx
