#include "timecard/card/card_days.h"

namespace winvrx {

DayKind CardDays::kindOf(int day) const {
    const Date date = dateOf(day);
    if (!isWithinContract(terms_.leaves.standingOn(date))) return DayKind::OutsideContract;
    const bool holiday = terms_.isHoliday(date);
    switch (meaningOf(sheet_.line(day).situation)) {
        case DayMeaning::Leave:
            return DayKind::Leave;
        case DayMeaning::Missing:
            return DayKind::Absence;
        case DayMeaning::Excused:
            return DayKind::Excused;
        case DayMeaning::Holiday:
            return DayKind::Holiday;
        case DayMeaning::WeeklyRest:
            return holiday ? DayKind::Holiday : DayKind::WeeklyRest;
        case DayMeaning::Work:
            break;
    }
    if (holiday) return DayKind::Holiday;
    const auto weekday = weekdayOf(date);
    const bool rest = weekday == terms_.restDay || weekday == std::chrono::Sunday;
    return rest ? DayKind::WeeklyRest : DayKind::Work;
}

HourTotals CardDays::hoursOf(int day) const {
    return punched_ ? dayHours(sheet_.line(day), dateOf(day), terms_) : HourTotals();
}

std::string CardDays::standingText(int day) const {
    const LeaveCalendar& leaves = terms_.leaves;
    const Date date = dateOf(day);
    switch (leaves.standingOn(date)) {
        case Standing::BeforeAdmission:
            return "Antes da admissão em " + dateText(*leaves.admission());
        case Standing::AfterEnd:
            return "Depois do fim do contrato em " + dateText(*leaves.contractEnd());
        case Standing::OnLeave:
            return "Afastamento: " + leaveText(*leaves.leaveOn(date));
        case Standing::Employed:
            break;
    }
    for (const DatedLeave& one : leaves.leaves())
        if (one.leave.isOfHours() && one.period.contains(date))
            return "Afastamento de horas: " + wordOf(one.leave) + ", " + one.leave.duration;
    const bool marked = meaningOf(sheet_.line(day).situation) == DayMeaning::Leave;
    return marked ? "Nenhum afastamento registrado neste dia" : "";
}

std::string CardDays::leaveWord(int day) const {
    const DatedLeave* leave = terms_.leaves.leaveOn(dateOf(day));
    return leave && kindOf(day) == DayKind::Leave ? wordOf(leave->leave) : std::string();
}

std::string CardDays::doubtAt(int day) const {
    const Standing standing = terms_.leaves.standingOn(dateOf(day));
    const PunchLine& line = sheet_.line(day);
    if (line.hasTimes() && !isWithinContract(standing))
        return standingText(day) + ": as horas do dia não contam e não saem no cartão.";
    const DayKind kind = kindOf(day);
    const bool asked =
        standing == Standing::OnLeave && kind != DayKind::Leave &&
        (line.hasTimes() || (punched_ && (kind == DayKind::Work || kind == DayKind::Absence)));
    return asked ? standingText(day) + ": o dia não está marcado " + std::string(kSituationLeave) +
                       "."
                 : sheet_.doubtAt(day);
}

std::string CardDays::totalOf(int day) const {
    const auto worked = hoursOf(day).worked();
    return worked.count() == 0 ? std::string() : formatted(worked, terms_.overtime.totalsFormat);
}

std::string CardDays::differenceOf(int day) const {
    const HourTotals hours = hoursOf(day);
    const auto difference = hours.extra() - hours[HourCategory::Missing];
    return difference.count() == 0 ? std::string()
                                   : formattedDifference(difference, terms_.overtime.totalsFormat);
}

std::string CardDays::totalOf(HalfMonth half) const {
    return formatted(hours().totals(half).worked(), terms_.overtime.totalsFormat);
}

HoursSummary CardDays::hours() const {
    return {punched_ ? sheet_.lines() : std::vector<PunchLine>(), month_, terms_};
}

}  // namespace winvrx
