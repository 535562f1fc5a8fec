#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/folder_names.h"
#include "foundation/files/line_file.h"
#include "foundation/register/leave_record.h"
#include "foundation/values/money.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// The vacations of an employee, "01Ferias001": a line for each one that is recorded, or each
// provision for one,
//
//     10/03/2024  09/03/2025  FERIAS    30  01/04/2025  20/04/2025  10  N  03-2025 QUITADA 2.816,64
//
// with the acquisition period that it belongs to. A month pays one vacation.

namespace winvrx {

struct VacationItem {
    std::string acquisitionFirst;
    std::string acquisitionLast;
    std::string kind;        ///< kVacationKind or kProvisionKind
    std::string granted;     ///< days that the period gives, by its absences when it was recorded
    std::string first = {};  ///< day of the vacation; a provision has none
    std::string last = {};
    std::string sold = {};   ///< days turned into pay
    std::string thirteenth;  ///< "S" where the first instalment is paid with it, else "N"
    std::string month;       ///< "mm-yyyy", the work month that pays it
    std::string mark = {};   ///< kSettledMark or nothing
    std::string net = {};    ///< what was paid when it was settled; of a provision its amount

    [[nodiscard]] bool operator==(const VacationItem&) const = default;

    [[nodiscard]] bool isProvision() const;
    [[nodiscard]] bool isSettled() const;
    [[nodiscard]] bool hasThirteenth() const { return thirteenth == "S"; }
    [[nodiscard]] std::optional<Date> periodFirst() const;
    [[nodiscard]] std::optional<WorkMonth> workMonth() const;
    /// The days away; nullopt of a provision.
    [[nodiscard]] std::optional<LeavePeriod> away() const;
    [[nodiscard]] int grantedDays() const;
    [[nodiscard]] int soldDays() const;
    /// Taken; 0 of a provision.
    [[nodiscard]] int days() const;
};

inline constexpr std::string_view kVacationKind = "FERIAS";
inline constexpr std::string_view kProvisionKind = "PROVISAO";
inline constexpr std::string_view kSettledMark = "QUITADA";

/// The layout of a line. The one place that knows it.
inline constexpr std::array kVacationFields = {
    RecordField<VacationItem>{&VacationItem::acquisitionFirst, {1, 10}, "Início do período"},
    RecordField<VacationItem>{&VacationItem::acquisitionLast, {13, 10}, "Fim do período"},
    RecordField<VacationItem>{&VacationItem::kind, {25, 8}, "Tipo"},
    RecordField<VacationItem>{&VacationItem::granted, {35, 2}, "Dias de direito"},
    RecordField<VacationItem>{&VacationItem::first, {39, 10}, "Início"},
    RecordField<VacationItem>{&VacationItem::last, {51, 10}, "Término"},
    RecordField<VacationItem>{&VacationItem::sold, {63, 2}, "Dias vendidos"},
    RecordField<VacationItem>{&VacationItem::thirteenth, {67, 1}, "13º"},
    RecordField<VacationItem>{&VacationItem::month, {70, 7}, "Mês de trabalho"},
    RecordField<VacationItem>{&VacationItem::mark, {79, 7}, "Quitação"},
    RecordField<VacationItem>{&VacationItem::net, {88, 14}, "Total líquido"},
};
inline constexpr std::size_t kVacationWidth = 101;

template <>
struct RecordLayout<VacationItem> : LineLayout<kVacationFields, kVacationWidth> {};

/// Kind and month; nullopt for a line whose period, days or month make no sense.
[[nodiscard]] std::optional<std::pair<std::string, WorkMonth>> keyOf(const VacationItem& item);

using VacationLine = StoredLine<VacationItem>;
using VacationLines = LineFile<VacationItem>::Lines;

/// "01Ferias001".
[[nodiscard]] std::string vacationFileName(const EmployeeKey& key);
[[nodiscard]] LineFile<VacationItem> vacationFile(const Store& store, const EmployeeKey& key);
/// None where the employee has no file by the names in the folder. Throws FileFault.
[[nodiscard]] VacationLines loadVacations(const Store& store, const EmployeeKey& key,
                                          const FolderNames& names);

/// The vacation that the month pays; nullptr where none.
[[nodiscard]] const VacationItem* vacationOf(const VacationLines& lines, WorkMonth month);

}  // namespace winvrx
