#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/files/payroll_file.h"
#include "personnel/payroll/pay_sheet.h"

#include <optional>
#include <string>
#include <vector>

// The payroll files of an employee and month, one a run: a line an event with its amount,
//
//     005 HORA EXTRA 50%       1050,01111000 392,73         *
//
// "*" where the amount was typed over. While that of the month stands, the month is closed for the
// employee.

namespace winvrx {

struct RecordedPayLine : PayrollEvent {
    std::string amount;  ///< "#,##0.00"
    std::string typed;   ///< kTypedMark or nothing
};
inline constexpr std::string_view kTypedMark = "*";

/// The layout of a line: that of an event, and behind it the amount. The one place that knows it.
inline constexpr std::array kRecordedPayFields = {
    RecordField<RecordedPayLine>{&RecordedPayLine::code, kPayrollEventFields[0].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::name, kPayrollEventFields[1].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::kind, kPayrollEventFields[2].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::reference, kPayrollEventFields[3].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::comma, kPayrollEventFields[4].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::flags, kPayrollEventFields[5].column, ""},
    RecordField<RecordedPayLine>{&RecordedPayLine::amount, {40, 14}, "Valor"},
    RecordField<RecordedPayLine>{&RecordedPayLine::typed, {55, 1}, "Digitado"},
};
inline constexpr std::size_t kRecordedPayWidth = 55;

template <>
struct RecordLayout<RecordedPayLine> : LineLayout<kRecordedPayFields, kRecordedPayWidth> {};

/// A payroll as it was recorded: without memos, which are computed anew. Lines that cannot be
/// understood are told, counted nowhere and kept where they stand.
struct RecordedPayroll {
    PaySheet sheet;
    std::vector<std::string> unread;
};

/// nullopt where none is recorded. Throws FileFault.
[[nodiscard]] std::optional<RecordedPayroll> loadPayroll(const Store& store, const EmployeeKey& key,
                                                         WorkMonth month,
                                                         PayrollRun run = PayrollRun::Month);

/// The net total of the vacation pay that is recorded in a month; nullopt where none is. Throws
/// FileFault.
[[nodiscard]] std::optional<Money> vacationNetPaid(const Store& store, const EmployeeKey& key,
                                                   WorkMonth month);

/// The amounts that were typed over in a recorded payroll.
[[nodiscard]] TypedAmounts typedAmounts(const PaySheet& sheet);

/// What the file of a sheet holds, for a caller that writes many with one flush. Of `before`, the
/// bytes that it replaces, the lines that nobody understands stay as they stand. Throws TextFault
/// for a name that cannot be stored.
[[nodiscard]] FileSystem::NewContent payrollContent(const Store& store, const EmployeeKey& key,
                                                    WorkMonth month, const PaySheet& sheet,
                                                    PayrollRun run = PayrollRun::Month,
                                                    std::string_view before = {});

/// Opens it again: the file goes. False when it was open. Throws FileFault.
bool reopenPayroll(const Store& store, const EmployeeKey& key, WorkMonth month,
                   PayrollRun run = PayrollRun::Month);

/// The months of an employee of which the run is recorded, the earliest first, by the names in the
/// folder.
[[nodiscard]] std::vector<WorkMonth> recordedMonths(const EmployeeKey& key,
                                                    const FolderNames& names,
                                                    PayrollRun run = PayrollRun::Month);

}  // namespace winvrx
