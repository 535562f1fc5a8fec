#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/folder_names.h"
#include "foundation/files/line_file.h"
#include "foundation/values/codes.h"
#include "timecard/month/overtime_rules.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The catalogue of payroll events: what a payroll can hold, one line of 38 characters each,
//
//     001 SALARIO BASE         1220,01111000
//
// a code, a name, the kind, a reference number (a quantity or a rate) and eight flags.

namespace winvrx {

using EventCode = DigitCode<3>;

/// The payrolls that an event can belong to.
enum class PayrollKind { Month, Vacation, Thirteenth };

struct PayrollEvent {
    std::string code;  ///< three digits
    std::string name;
    std::string kind;       ///< kEarning or kDeduction
    std::string reference;  ///< three digits
    std::string comma = ",";
    std::string flags;  ///< eight digits, "0" or "1"

    [[nodiscard]] bool operator==(const PayrollEvent&) const = default;

    [[nodiscard]] bool isEarning() const { return kind == "1"; }
    /// 0 for what is no number.
    [[nodiscard]] int referenceNumber() const;
    [[nodiscard]] bool belongsTo(PayrollKind payroll) const;
    /// Whether INSS, IRRF and FGTS fall on it.
    [[nodiscard]] bool isTaxed() const { return hasFlag(2); }

  private:
    /// Counted from 1, as the line has them.
    [[nodiscard]] bool hasFlag(std::size_t position) const {
        return position <= flags.size() && flags[position - 1] == '1';
    }
};

/// The layout of a line. The one place that knows it.
inline constexpr std::array kPayrollEventFields = {
    RecordField<PayrollEvent>{&PayrollEvent::code, {1, 3}, "Código"},
    RecordField<PayrollEvent>{&PayrollEvent::name, {5, 20}, "Evento", true},
    RecordField<PayrollEvent>{&PayrollEvent::kind, {26, 1}, "Tipo"},
    RecordField<PayrollEvent>{&PayrollEvent::reference, {27, 3}, "Referência"},
    RecordField<PayrollEvent>{&PayrollEvent::comma, {30, 1}, ""},
    RecordField<PayrollEvent>{&PayrollEvent::flags, {31, 8}, "Incidências"},
};
inline constexpr std::size_t kPayrollEventWidth = 38;

template <>
struct RecordLayout<PayrollEvent> : LineLayout<kPayrollEventFields, kPayrollEventWidth> {};

/// nullopt for a line that is no event: without a code of three digits, a kind, or eight flags.
[[nodiscard]] std::optional<EventCode> keyOf(const PayrollEvent& event);

using PayrollEventLine = StoredLine<PayrollEvent>;
using PayrollEvents = LineFile<PayrollEvent>::Lines;

/// What the operator says of a new event; its flags follow.
struct NewEvent {
    std::string name;
    bool isEarning = true;
    int reference = 0;
    std::vector<PayrollKind> payrolls;
};
/// The event under the lowest free code; of an earning all taxes are taken. nullopt where no code
/// is free.
[[nodiscard]] std::optional<PayrollEvent> newEvent(const NewEvent& said,
                                                   const PayrollEvents& existing);

inline constexpr std::size_t kDefaultEvents = 33;

/// The default catalogue, in its order. The names and rates of the four events of overtime are
/// those that `rates` has.
[[nodiscard]] PayrollEvents defaultEvents(const OvertimeRules& rates);

/// A variant of event 021 and the line of the receipt of an advance.
inline constexpr std::string_view kThirteenthAverageVariant =
    "021 MED.HOR.EXTR.ADIANT  1000,01110010";
inline constexpr std::string_view kAdvanceReceiptLine = "031 ADIANTAMENTO SALAR   0001,00000100";

/// What a vacation adds where days are sold or lie past the limit of the concession: no tax falls
/// on it.
inline constexpr std::array<std::string_view, 3> kVacationExtras = {
    "034 ABONO PECUNIARIO     1000,00000100", "035 1/3 ABONO PECUNIARIO 1000,00000100",
    "036 DOBRA DE FÉRIAS      1000,00000100"};
[[nodiscard]] PayrollEvents vacationExtras();

/// What is taken off by court decision and for a private pension, where the employee has them.
inline constexpr std::array<std::string_view, 2> kFactEvents = {
    "097 PENSAO ALIMENTICIA   0000,00001000", "098 PREVIDENCIA PRIVADA  0000,00001000"};
[[nodiscard]] PayrollEvents factEvents();

/// The company's catalogue, and that of one employee. No file stands for the default one.
[[nodiscard]] LineFile<PayrollEvent> companyEvents(const Store& store, const CompanyCode& company);
[[nodiscard]] LineFile<PayrollEvent> employeeEvents(const Store& store, const EmployeeKey& key);

/// The employee's own catalogue where he has one by the names in the folder, else `companys`, else
/// the default.
[[nodiscard]] PayrollEvents loadEvents(const Store& store, const EmployeeKey& key,
                                       const PayrollEvents& companys, const OvertimeRules& rates,
                                       const FolderNames& names);

}  // namespace winvrx
