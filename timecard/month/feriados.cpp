#include "timecard/month/feriados.h"

#include "foundation/values/text.h"

namespace winvrx {

ListRow Feriados::rowOf(const LocalHoliday& holiday) const {
    return {{holiday.day, holiday.name}, holiday.day + " " + holiday.name};
}

LocalHoliday Feriados::completed(const LocalHoliday& typed) const {
    return {completedHolidayDay(typed.day), std::string(trimmed(typed.name))};
}

Findings<LocalHoliday> Feriados::wrongIn(const LocalHoliday& typed,
                                         const LocalHoliday& before) const {
    const auto day = keyOf(completed(typed));
    if (typed.day.empty()) return {};
    if (!day) return {{&LocalHoliday::day, typed.day + " não é um dia (dd/mm ou dd/mm/aaaa)."}};
    if (day == keyOf(before) || !findLine(lines_, day)) return {};
    return {{&LocalHoliday::day, typed.day + " já está na lista."}};
}

bool Feriados::requireAcceptable(const LocalHoliday& typed, const Line* before) {
    if (!requireComplete(typed, incorrectData())) return false;
    const auto wrong = wrongIn(typed, before ? before->record : LocalHoliday());
    return wrong.empty() || refuseFor(wrong.front(), incorrectData());
}

}  // namespace winvrx
