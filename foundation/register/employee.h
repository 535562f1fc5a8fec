#pragma once

#include "foundation/files/record_fields.h"
#include "foundation/values/codes.h"
#include "foundation/values/date.h"
#include "foundation/values/shift.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// A person employed: one line of a company's employee list. Texts are UTF-8 and trimmed, as they
/// stand in the record; the functions below give the meaning of those that have one.
struct Employee {
    std::string code;  ///< three digits
    std::string name;
    std::string function;    ///< "Função": job title
    std::string occupation;  ///< CBO, six digits
    std::string state;       ///< two letters
    std::string address;     ///< street and number
    std::string district;
    std::string identityCard;  ///< RG
    std::string workBooklet;   ///< CTPS number and series
    std::string socialId;      ///< PIS, eleven digits
    std::string sheet;         ///< "Fls./Ficha" of the employee register book
    std::string registration;  ///< "Registro n."
    std::string dependants;
    std::string taxId;  ///< CPF with its mask
    std::string city;
    std::string birthDate;
    std::string telephone;
    std::string admission;  ///< "dd/mm/yyyy"
    std::string dismissal;  ///< "dd/mm/yyyy" or empty
    std::string postalCode;
    std::string notes;
    std::string salary;   ///< "1.234,56"
    std::string bank;     ///< bank, branch, account
    std::string shift;    ///< a Shift's code
    std::string scale;    ///< a Scale's code
    std::string restDay;  ///< weekly rest: "dom", "seg", …
    std::string status;   ///< "InAtivo", "Inativo", "Excluido" or empty

    [[nodiscard]] bool operator==(const Employee&) const = default;

    [[nodiscard]] std::optional<EmployeeCode> employeeCode() const {
        return EmployeeCode::parse(code);
    }
    [[nodiscard]] std::optional<Date> admissionDate() const { return parseDate(admission); }
    /// Commercial hours where the record does not say.
    [[nodiscard]] Shift shiftOr(Shift otherwise = Shift::Unico) const {
        return parseShift(shift).value_or(otherwise);
    }
    [[nodiscard]] Scale scaleOr(Scale otherwise = Scale::Normal) const {
        return parseScale(scale).value_or(otherwise);
    }
};

/// The status word of an employee who was taken off the list but is kept in it.
inline constexpr std::string_view kDeletedStatus = "Excluido";

using EmployeeField = RecordField<Employee>;

/// The layout of an employee line. The one place that knows it. Columns between the fields are
/// blank in a new line and kept as they stand in an existing one.
inline constexpr std::array kEmployeeFields = {
    EmployeeField{&Employee::code, {1, 3}, "Código", true},
    EmployeeField{&Employee::name, {5, 30}, "Nome", true},
    EmployeeField{&Employee::function, {36, 20}, "Função"},
    EmployeeField{&Employee::occupation, {57, 6}, "CBO"},
    EmployeeField{&Employee::state, {64, 2}, "UF"},
    EmployeeField{&Employee::address, {67, 40}, "Endereço/Nº"},
    EmployeeField{&Employee::district, {107, 25}, "Bairro"},
    EmployeeField{&Employee::identityCard, {133, 19}, "RG"},
    EmployeeField{&Employee::workBooklet, {153, 15}, "CTPS"},
    EmployeeField{&Employee::socialId, {169, 13}, "PIS"},
    EmployeeField{&Employee::sheet, {183, 4}, "Fls./Ficha"},
    EmployeeField{&Employee::registration, {188, 5}, "Registro n."},
    EmployeeField{&Employee::dependants, {194, 5}, "Dependentes"},
    EmployeeField{&Employee::taxId, {200, 14}, "CPF"},
    EmployeeField{&Employee::city, {215, 30}, "Cidade"},
    EmployeeField{&Employee::birthDate, {246, 10}, "Nascimento"},
    EmployeeField{&Employee::telephone, {263, 24}, "Telefone"},
    EmployeeField{&Employee::admission, {288, 10}, "Admissão", true},
    EmployeeField{&Employee::dismissal, {299, 10}, "Demissão"},
    EmployeeField{&Employee::postalCode, {310, 9}, "CEP"},
    EmployeeField{&Employee::notes, {321, 240}, "Observações"},
    EmployeeField{&Employee::salary, {562, 14}, "Salário"},
    EmployeeField{&Employee::bank, {624, 47}, "Banco"},
    EmployeeField{&Employee::shift, {672, 5}, "Turno", true},
    EmployeeField{&Employee::scale, {677, 5}, "Escala", true},
    EmployeeField{&Employee::restDay, {682, 3}, "Descanso Semanal"},
    EmployeeField{&Employee::status, {690, 8}, "Situação"},
};

inline constexpr std::size_t kEmployeeWidth = 697;

template <>
struct RecordLayout<Employee> : LineLayout<kEmployeeFields, kEmployeeWidth, 0> {};

[[nodiscard]] inline std::optional<EmployeeCode> keyOf(const Employee& employee) {
    return employee.employeeCode();
}

/// What lists of employees are searched in: code, name, function, and CPF with its mask and
/// without.
[[nodiscard]] std::string searchedText(const Employee& employee);

/// The weekday of the employee's weekly rest, by its first three letters in any case; Sunday where
/// the record does not say.
[[nodiscard]] std::chrono::weekday weeklyRestOf(const Employee& employee);
/// The weekday without work for him: his weekly rest; Sunday in a rotation, whose days off move
/// through the week.
[[nodiscard]] std::chrono::weekday restByCalendar(const Employee& employee);

}  // namespace winvrx
