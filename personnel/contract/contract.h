#pragma once

#include "foundation/desk/finding.h"
#include "foundation/files/record_fields.h"
#include "foundation/register/employee.h"
#include "foundation/values/date.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The contract of employment of one employee: the one line of his contract file.

namespace winvrx {

enum class ContractKind { Indefinite, Trial, FixedTerm, Domestic, Intermittent };

/// What stands in the record for each kind, in the order of ContractKind.
inline constexpr std::array<std::string_view, 5> kContractKinds = {
    "Prazo indeterminado", "Experiência", "Prazo determinado", "Doméstico", "Intermitente"};

/// Texts are UTF-8 and trimmed, as they stand in the record.
struct Contract {
    std::string kind;           ///< one of kContractKinds
    std::string begins;         ///< "dd/mm/yyyy"
    std::string trialDays;      ///< of a trial, or of a domestic contract that begins with one
    std::string extensionDays;  ///< by which the trial is extended once
    std::string ends;           ///< last day of a fixed term
    std::string reason;         ///< of the fixed term
    std::string workplace;
    std::string schedule;
    std::string salary;         ///< "1.850,00" a month; an hour where intermittent
    std::string establishment;  ///< "Esp. do estabelecimento"
    std::string registration;   ///< "Registro n.", where the employee's record has none
    std::string sheet;          ///< "Fls./Ficha", likewise
    std::string signedOn;       ///< "dd/mm/yyyy"

    [[nodiscard]] bool operator==(const Contract&) const = default;

    [[nodiscard]] std::optional<ContractKind> kindOf() const;
    [[nodiscard]] bool hasTrial() const;
    /// Of a contract with a trial whose days can be read: its last day as first agreed, and with
    /// the extension, where there is one.
    [[nodiscard]] std::optional<Date> trialEnd() const;
    [[nodiscard]] std::optional<Date> extendedEnd() const;
    /// The last day of a fixed term or, of a trial, of the extension.
    [[nodiscard]] std::optional<Date> lastDay() const;
};

using ContractField = RecordField<Contract>;

/// The layout of a contract's line, its one place.
inline constexpr std::array kContractFields = {
    ContractField{&Contract::kind, {1, 20}, "Tipo de contrato", true},
    ContractField{&Contract::begins, {21, 10}, "Início", true},
    ContractField{&Contract::trialDays, {31, 2}, "Dias de experiência"},
    ContractField{&Contract::extensionDays, {33, 2}, "Dias de prorrogação"},
    ContractField{&Contract::ends, {35, 10}, "Término"},
    ContractField{&Contract::reason, {45, 80}, "Motivo do prazo"},
    ContractField{&Contract::workplace, {125, 60}, "Local de trabalho", true},
    ContractField{&Contract::schedule, {185, 120}, "Horário de trabalho", true},
    ContractField{&Contract::salary, {305, 14}, "Remuneração", true},
    ContractField{&Contract::establishment, {319, 30}, "Esp. do estabelecimento"},
    ContractField{&Contract::registration, {349, 5}, "Registro n."},
    ContractField{&Contract::sheet, {354, 4}, "Fls./Ficha"},
    ContractField{&Contract::signedOn, {358, 10}, "Data da assinatura", true},
};
inline constexpr std::size_t kContractWidth = 367;
static_assert(isContiguous(kContractFields, kContractWidth));

template <>
struct RecordLayout<Contract> : LineLayout<kContractFields, kContractWidth> {};

/// Longer than this neither a trial nor, in years, a fixed term may last (CLT 445).
inline constexpr int kLongestTrial = 90;
inline constexpr int kLongestTermYears = 2;

/// What the contract may not say: dates and amounts that are none, a trial of more than 90 days
/// with its extension, a fixed term of more than two years or without its reason (CLT 443, 445).
/// Empty required fields aside.
[[nodiscard]] Findings<Contract> wrongIn(const Contract& contract);
/// What it says unlike the employee's record: another day of admission, another salary.
[[nodiscard]] Findings<Contract> doubtsAbout(const Contract& contract, const Employee& employee);

}  // namespace winvrx
