#include "timecard/rotation/rotation_view.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

std::string wordOf(const PlannedDay& planned, const RotationView::Day& day,
                   const MemberNames& names) {
    switch (planned.turn) {
        case Turn::Off:
            return "Folga";
        case Turn::Relief:
            return "No lugar de " + nameOf(names, planned.relieved.value());
        case Turn::Away:
            return "Afastado";
        case Turn::Work:
            break;
    }
    return day.holiday ? "Trabalha no feriado" : "Trabalha";
}

RotationView::Cell cellOf(const PlannedDay& planned, const RotationView::Day& day,
                          const MemberNames& names) {
    RotationView::Cell cell{.turn = planned.turn,
                            .letter = std::string(letterOf(planned.turn)),
                            .word = wordOf(planned, day, names)};
    if (planned.turn == Turn::Work && day.holiday) cell.letter = "T";
    return cell;
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
    std::string text = nameOf(names, run.employee) + ": " + std::to_string(run.worked) +
                       " domingos seguidos de trabalho até " + dateText(run.last) +
                       ". Contraria o domingo de folga das mulheres";
    text += run.breaksEveryThird() ? " e o do comércio." : ".";
    return text;
}

std::string remarkOn(const BrokenRhythm& broken, const MemberNames& names) {
    const std::string days = std::to_string(broken.worked);
    return nameOf(names, broken.employee) + ": trabalha " + days +
           (broken.worked == 1 ? " dia" : " dias") + " na virada do mês, em vez de " +
           std::to_string(broken.wanted) + ".";
}

std::vector<RotationView::Day> daysOf(const MonthSettings& settings) {
    std::vector<RotationView::Day> days;
    for (int day = 0; day < daysIn(settings.month); ++day) {
        const Date date = plusDays(firstDay(settings.month), day);
        const auto weekday = weekdayOf(date);
        days.push_back({date, std::string(weekdayShort(weekday)), weekday == std::chrono::Sunday,
                        settings.isHoliday(date)});
    }
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
