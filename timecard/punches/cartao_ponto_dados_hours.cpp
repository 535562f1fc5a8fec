// What the screen shows of the month's hours.
#include "timecard/hours/percent_change.h"
#include "timecard/month/overtime_record.h"
#include "timecard/punches/cartao_ponto_dados.h"

namespace winvrx {

WorkTerms CartaoPontoDados::terms() const {
    return workTerms(settings_, overtime_, schedule_.schedule(),
                     selected() ? *selected() : Employee(), leaves_);
}

HourTotals CartaoPontoDados::hoursOf(int day) const {
    if (!hasPunches()) return {};
    return dayHours(sheet_.line(day), dateOf(day), terms());
}

std::string CartaoPontoDados::standingText(int day) const {
    switch (leaves_.standingOn(dateOf(day))) {
        case Standing::BeforeAdmission:
            return "Antes da admissão em " + dateText(*leaves_.admission());
        case Standing::AfterEnd:
            return "Depois do fim do contrato em " + dateText(*leaves_.contractEnd());
        case Standing::OnLeave:
            return "Afastamento: " + leaveText(*leaves_.leaveOn(dateOf(day)));
        case Standing::Employed:
            break;
    }
    for (const DatedLeave& one : leaves_.leaves())
        if (one.leave.isOfHours() && one.period.contains(dateOf(day)))
            return "Afastamento de horas: " + wordOf(one.leave) + ", " + one.leave.duration;
    const bool marked = meaningOf(sheet_.line(day).situation) == DayMeaning::Leave;
    return marked ? "Nenhum afastamento registrado neste dia" : "";
}

std::string CartaoPontoDados::leaveWord(int day) const {
    const DatedLeave* leave = leaves_.leaveOn(dateOf(day));
    return leave && kindOf(day) == DayKind::Leave ? wordOf(leave->leave) : std::string();
}

std::string CartaoPontoDados::doubtAt(int day) const {
    const Standing standing = leaves_.standingOn(dateOf(day));
    const bool punched = sheet_.line(day).hasTimes();
    if (punched && !isWithinContract(standing))
        return standingText(day) + ": as horas do dia não contam e não saem no cartão.";
    const bool asked = standing == Standing::OnLeave &&
                       meaningOf(sheet_.line(day).situation) != DayMeaning::Leave &&
                       (punched || hoursOf(day)[HourCategory::Missing].count() > 0);
    return asked ? standingText(day) + ": o dia não está marcado " + std::string(kSituationLeave) +
                       "."
                 : sheet_.doubtAt(day);
}

bool CartaoPontoDados::hasPunches() const {
    return selected() && (applied_ || sheet_.changed());
}

std::string CartaoPontoDados::totalOf(int day) const {
    const auto worked = hoursOf(day).worked();
    return worked.count() == 0 ? std::string() : formatted(worked, overtime_.totalsFormat);
}

std::string CartaoPontoDados::differenceOf(int day) const {
    const HourTotals hours = hoursOf(day);
    const auto difference = hours.extra() - hours[HourCategory::Missing];
    return difference.count() == 0 ? std::string()
                                   : formattedDifference(difference, overtime_.totalsFormat);
}

std::string CartaoPontoDados::totalOf(HalfMonth half) const {
    return formatted(hours().totals(half).worked(), overtime_.totalsFormat);
}

HoursSummary CartaoPontoDados::hours() const {
    return {hasPunches() ? sheet_.lines() : std::vector<PunchLine>(), settings_.month, terms()};
}

bool CartaoPontoDados::changePercent(HourCategory category, std::string_view typed) {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeKey key = selectedKey();
        if (!requireOpenMonth() ||
            !winvrx::changePercent(
                at_, {key.company, key.employee, settings_.month, overtime_, category, typed}))
            return false;
        overtime_ = overtimeOf(at_.store(), key, settings_);
        return true;
    });
}

}  // namespace winvrx
