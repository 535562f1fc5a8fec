#include "foundation/register/employee_checks.h"

#include "foundation/values/text.h"

namespace winvrx {

std::string missingFields(const Employee& typed) {
    std::string missing;
    for (const EmployeeField& field : kEmployeeFields) {
        if (!field.isRequired || !trimmed(typed.*field.member).empty()) continue;
        missing.append(missing.empty() ? "" : ", ").append(field.caption);
    }
    return missing;
}

std::string incorrectField(const Employee& typed) {
    if (!typed.employeeCode()) return "O código tem três algarismos.";
    const auto shift = parseShift(typed.shift);
    const auto scale = parseScale(typed.scale);
    if (!shift || !scale) return "Escolha o turno e a escala nas listas.";
    if (!allows(*scale, *shift)) return "A escala 12x36 é permitida somente nos turnos 1 e 3.";
    for (const auto field : {&Employee::birthDate, &Employee::dismissal})
        if (!(typed.*field).empty() && !parseDate(typed.*field)) return noSuchDate(typed.*field);
    return {};
}

std::string takenCode(const Employee& typed) {
    return "O código " + typed.code + " já pertence a outro funcionário.";
}

std::string noSuchDate(const std::string& text) {
    return "\"" + text + "\" não é uma data do calendário.";
}

}  // namespace winvrx
