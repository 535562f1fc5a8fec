#include "timecard/rotation/rotation_view.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

RotationView::Cell cellOf(const PlannedDay& planned, const RotationView::Day& day,
                          const MemberNames& names) {
    switch (planned.turn) {
        case Turn::Off:
            return {planned.turn, "F", "Folga"};
        case Turn::Relief:
            return {planned.turn, "R", "No lugar de " + nameOf(names, planned.relieved.value())};
        case Turn::Away:
            return {planned.turn, "A", "Afastado"};
        case Turn::Work:
            break;
    }
    if (day.holiday) return {planned.turn, "T", "Trabalha no feriado"};
    return {planned.turn, "", "Trabalha"};
}

std::string gapsText(const RotationPlan& plan, std::string_view word) {
    std::string days;
    for (std::size_t day = 0; day < plan.working.size(); ++day)
        if (plan.hasGap(day))
            days.append(days.empty() ? "" : ", ").append(padded(static_cast<int>(day) + 1, 2));
    if (days.empty()) return {};
    return "Dias descobertos: " + days + " (" + std::string(word) + ")";
}

std::string remarkOn(const SundayRun& run, const MemberNames& names) {
    return nameOf(names, run.employee) + ": " + std::to_string(run.worked) +
           " domingos seguidos de trabalho até " + dateText(run.last) +
           ". Contraria o domingo de folga das mulheres" +
           (run.breaksEveryThird() ? " e o do comércio." : ".");
}

std::string remarkOn(const BrokenRhythm& broken, const MemberNames& names) {
    return nameOf(names, broken.employee) + ": trabalha " + countOf(broken.worked, "dia") +
           " na virada do mês, em vez de " + std::to_string(broken.wanted) + ".";
}

std::vector<RotationView::Day> daysOf(const MonthSettings& settings) {
    std::vector<RotationView::Day> days;
    for (const Date date : datesOf(settings.month))
        days.push_back({date, std::string(weekdayShort(weekdayOf(date))),
                        weekdayOf(date) == std::chrono::Sunday, settings.isHoliday(date)});
    return days;
}

}  // namespace

std::string nameOf(const MemberNames& names, const EmployeeCode& employee) {
    const auto name = names.find(employee);
    return name == names.end() ? employee.text() : name->second;
}

RotationView viewOf(const RotationGroup& group, const MonthSettings& settings,
                    const MemberNames& names, const Absence& absent,
                    const std::vector<RotationGroup>& before) {
    RotationView view;
    view.days = daysOf(settings);
    const RotationPlan plan = planOf(group, settings.month, absent);
    for (const PlanRow& planned : plan.rows) {
        RotationView::Row row{
            planned.employee, nameOf(names, planned.employee), planned.relief, {}};
        for (std::size_t day = 0; day < planned.days.size(); ++day)
            row.cells.push_back(cellOf(planned.days[day], view.days[day], names));
        view.rows.push_back(std::move(row));
    }
    for (std::size_t day = 0; day < plan.working.size(); ++day) {
        const bool gap = plan.hasGap(day);
        view.coverage.push_back({plan.working[day], gap, gap ? std::string(gapWord(group)) : ""});
    }
    view.gaps = gapsText(plan, gapWord(group));
    for (const BrokenRhythm& broken : brokenRhythms(before, group, settings.month))
        view.remarks.push_back(remarkOn(broken, names));
    for (const SundayRun& run : sundayRuns(group, settings.month))
        view.remarks.push_back(remarkOn(run, names));
    return view;
}

std::string sundayExplanation() {
    return "Mulheres folgam no domingo pelo menos de quinze em quinze dias (CLT, art. 386); no "
           "comércio a folga cai no domingo pelo menos uma vez a cada três semanas (Lei "
           "10.101/2000, art. 6º, parágrafo único). O cadastro não diz o sexo do funcionário nem o "
           "ramo da empresa: veja qual das duas regras vale. Nada é alterado por causa delas.";
}

}  // namespace winvrx
