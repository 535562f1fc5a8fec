#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/file_system.h"
#include "foundation/values/money.h"
#include "personnel/pay/fraction.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What the payroll needs of an employee and no other record says: the record "01FolhaDados001", a
// line a fact, "vale-dia = 12,00". What has no line is not said.

namespace winvrx {

struct PayrollFacts {
    std::optional<Money> voucherPerDay = {};  ///< what a day's tickets cost; not said, not known
    Money alimony = {};                       ///< a month, by court decision
    Fraction alimonyOfGross = {};             ///< the same in per cent of the taxed pay
    Fraction alimonyOfNet = {};               ///< in per cent of that less INSS and IRRF
    Money privatePension = {};                ///< a month
    bool isApprentice = false;
    std::optional<Money> averages = {};      ///< a month's variable pay; not said, from the cards
    Money fgtsAccount = {};                  ///< its balance before the end of the contract
    std::optional<int> overduePeriods = {};  ///< vacations earned and not taken
    std::optional<int> doubledPeriods = {};  ///< of these, past the limit of the concession
    bool endsByAgreement = false;            ///< CLT, art. 484-A

    [[nodiscard]] bool operator==(const PayrollFacts&) const = default;
};

enum class FactKind { Amount, Percent, Count, YesNo };

/// A fact as the screen and the record see it: a text, empty where it is not said.
struct PayrollFact {
    std::string_view key;  ///< in the record
    std::string_view title;
    std::string_view effect;  ///< one line: what it changes
    FactKind kind;
    std::string (*text)(const PayrollFacts& facts);
    /// False, and nothing taken, for what is no such fact; an empty text takes it back.
    bool (*take)(PayrollFacts& facts, std::string_view text);
};

/// All of them, in the order of the screen.
[[nodiscard]] std::span<const PayrollFact> payrollFactTable();

inline constexpr std::string_view kYes = "Sim";
inline constexpr std::string_view kNo = "Não";

struct RecordedFacts {
    PayrollFacts facts;
    std::vector<std::string> unread;  ///< lines that say no fact
};

/// Of an employee without a record nothing is said. Throws FileFault.
[[nodiscard]] RecordedFacts loadPayrollFacts(const Store& store, const EmployeeKey& key);

/// Lines that are not understood are kept as they stand. Throws FileFault.
void savePayrollFacts(const Store& store, const EmployeeKey& key, const PayrollFacts& facts);

/// "01FolhaDados001".
[[nodiscard]] std::string payrollFactsName(const EmployeeKey& key);

}  // namespace winvrx
