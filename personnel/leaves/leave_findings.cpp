#include "personnel/leaves/leave_findings.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

/// The first day is named for what the whole period meets.
std::string ofPeriod(const LeaveForm& form, const LeaveFile& file,
                     std::optional<std::size_t> chosen) {
    const auto period = form.period();
    if (!period) return {};
    if (form.admission() && period->first < *form.admission())
        return "Antes da admissão, " + dateText(*form.admission()) + ".";
    for (std::size_t place = 0; place < file.leaves.size(); ++place) {
        const Leave& other = file.leaves[place].record;
        const auto taken = other.period();
        if (place != chosen && taken && period->overlaps(*taken))
            return "Coincide com " + other.type + ", de " + dateText(taken->first) + " a " +
                   dateText(taken->last) + ".";
    }
    return {};
}

std::string ofDays(const LeaveForm& form) {
    if (!form.text(LeaveInput::Days).empty() && !form.days())
        return "Número de dias de 0 a " + std::to_string(kMostLeaveDays) + ".";
    const auto period = form.period();
    if (!period || !form.days()) return {};
    const int count = period->days();
    if (count == std::max(*form.days(), 1)) return {};
    return "O período tem " + countOf(count, "dia") + ".";
}

/// Why nothing can be worked out although everything is typed.
std::string ofNotice(const LeaveForm& form) {
    if (!form.isTermination() || form.text(LeaveInput::NoticeType).empty()) return {};
    if (!form.admission()) return "Sem a data de admissão do cadastro não há cálculo das datas.";
    const auto given = parseDate(form.text(LeaveInput::NoticeGiven));
    if (given && *given < *form.admission()) return "O aviso é anterior à admissão.";
    return {};
}

}  // namespace

std::string findingFor(LeaveInput input, const LeaveForm& form, const LeaveFile& file,
                       std::optional<std::size_t> chosen) {
    const auto first = parseDate(form.text(LeaveInput::FirstDay));
    const auto last = parseDate(form.text(LeaveInput::LastDay));
    switch (input) {
        case LeaveInput::FirstDay:
            return ofPeriod(form, file, chosen);
        case LeaveInput::LastDay:
            return first && last && *last < *first ? "O último dia é anterior ao primeiro." : "";
        case LeaveInput::Days:
            return ofDays(form);
        case LeaveInput::Hours:
            return form.hours() ? ""
                                : "Número de horas de 0 a " + std::to_string(kMostLeaveHours) + ".";
        case LeaveInput::NoticeType:
            return ofNotice(form);
        default:
            return {};
    }
}

}  // namespace winvrx
