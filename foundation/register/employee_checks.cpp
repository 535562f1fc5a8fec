#include "foundation/register/employee_checks.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace winvrx {

namespace {

constexpr int kYoungest = 14;  ///< Constituição, art. 7º, XXXIII: as an apprentice
constexpr int kOldest = 100;
constexpr std::array kNumbers = {CheckedNumber<Employee>{&Employee::taxId, checkCpf},
                                 CheckedNumber<Employee>{&Employee::socialId, checkPis}};

/// Full years from `birth` to `on`.
int ageOn(Date birth, Date on) {
    const bool hadBirthday =
        std::pair(on.month(), on.day()) >= std::pair(birth.month(), birth.day());
    return int{on.year()} - int{birth.year()} - (hadBirthday ? 0 : 1);
}

/// Whether one of the texts is new since `before`.
template <typename... Members>
bool anyChanged(const Employee& typed, const Employee& before, Members... members) {
    return ((typed.*members != before.*members) || ...);
}

/// Birth and dismissal: days that do not exist, or not beside today and the admission.
Findings<Employee> wrongDates(const Employee& typed, const Employee& before, Date today) {
    Findings<Employee> wrong;
    for (const auto member : {&Employee::birthDate, &Employee::dismissal})
        if (anyChanged(typed, before, member) && !(typed.*member).empty() &&
            !parseDate(typed.*member))
            wrong.push_back(noSuchDate(typed, member));
    const auto birth = parseDate(typed.birthDate);
    if (birth > today && anyChanged(typed, before, &Employee::birthDate))
        wrong.push_back({&Employee::birthDate, typed.birthDate + " ainda não chegou."});
    const auto dismissal = parseDate(typed.dismissal);
    const auto admission = typed.admissionDate();
    if (dismissal && admission && *dismissal < *admission &&
        anyChanged(typed, before, &Employee::dismissal, &Employee::admission))
        wrong.push_back({&Employee::dismissal,
                         typed.dismissal + " é anterior à admissão, " + typed.admission + "."});
    return wrong;
}

Findings<Employee> doubtfulAge(const Employee& typed, const Employee& before, Date today) {
    const auto birth = parseDate(typed.birthDate);
    if (!birth || !anyChanged(typed, before, &Employee::birthDate, &Employee::admission)) return {};
    const auto admission = typed.admissionDate();
    const int atWork = ageOn(*birth, admission.value_or(today));
    const std::string then = admission ? " na admissão." : " hoje.";
    if (atWork < 0) return {{&Employee::birthDate, typed.birthDate + " é posterior à admissão."}};
    if (atWork < kYoungest) return {{&Employee::birthDate, countOf(atWork, "ano") + then}};
    const int now = ageOn(*birth, today);
    if (now > kOldest) return {{&Employee::birthDate, std::to_string(now) + " anos hoje."}};
    return {};
}

}  // namespace

Findings<Employee> wrongIn(const Employee& typed, const Employee& before, Date today) {
    Findings<Employee> wrong;
    if (!typed.employeeCode()) wrong.push_back({&Employee::code, "são três algarismos."});
    const auto shift = parseShift(typed.shift);
    const auto scale = parseScale(typed.scale);
    if (!shift && !typed.shift.empty()) wrong.push_back({&Employee::shift, "Escolha na lista."});
    if (!scale && !typed.scale.empty()) wrong.push_back({&Employee::scale, "Escolha na lista."});
    if (shift && scale && !allows(*scale, *shift))
        wrong.push_back({&Employee::scale, "12x36 somente nos turnos 1 e 3."});
    std::ranges::move(wrongDates(typed, before, today), std::back_inserter(wrong));
    return wrong;
}

Findings<Employee> doubtsAbout(const Employee& typed, const Employee& before,
                               const std::vector<EmployeeLine>& list, Date today) {
    Findings<Employee> doubts = doubtfulAge(typed, before, today);
    std::ranges::move(doubtfulNumbers(kNumbers, typed, before), std::back_inserter(doubts));
    if (!anyChanged(typed, before, &Employee::taxId)) return doubts;
    const std::string cpf = digitsIn(typed.taxId);
    const auto other = std::ranges::find_if(list, [&](const EmployeeLine& line) {
        return line.key() && line.record.code != typed.code && !cpf.empty() &&
               digitsIn(line.record.taxId) == cpf;
    });
    if (other != list.end())
        doubts.push_back({&Employee::taxId, typed.taxId + " já é de " + other->record.code + " " +
                                                other->record.name + "."});
    return doubts;
}

Finding<Employee> takenCode(const Employee& typed) {
    return {&Employee::code, typed.code + " já pertence a outro funcionário."};
}

Finding<Employee> noSuchDate(const Employee& typed, std::string Employee::*date) {
    const bool isWord = (typed.*date).find_first_not_of("0123456789/.-") != std::string::npos;
    return {date, typed.*date + (isWord ? " não é uma data (dd/mm/aaaa)." : " não existe.")};
}

}  // namespace winvrx
