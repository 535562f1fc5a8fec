#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/folder_names.h"
#include "foundation/files/record_fields.h"
#include "foundation/values/date.h"

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The leave file of an employee: a line for each time away from work, then the status line, "**** "
// alone for an active employee and "**** dd/mm/yyyy" for one inactive since that day. No file means
// no leaves and an active employee. A line that begins with three digits is a leave; one that is
// neither a leave nor the status says nothing.

namespace winvrx {

/// The first and the last day of a time away from work, both of them away.
struct LeavePeriod {
    Date first;
    Date last;

    [[nodiscard]] int days() const { return daysBetween(first, last) + 1; }
    [[nodiscard]] bool contains(Date date) const { return first <= date && date <= last; }
    [[nodiscard]] bool overlaps(LeavePeriod other) const {
        return first <= other.last && other.first <= last;
    }
    [[nodiscard]] bool touches(WorkMonth month) const {
        return overlaps({firstDay(month), lastDay(month)});
    }
};

/// A leave as its line has it, days as "dd/mm/yyyy". What stands behind the duration belongs to a
/// termination of the contract and is blank for any other leave.
struct Leave {
    std::string type;  ///< "006 FÉRIAS": the code, then the name
    std::string firstDay;
    std::string lastDay;
    std::string duration;  ///< "020 Dias e 0 Horas"
    std::string noticeGiven;
    std::string noticeBegins;
    std::string terminationType;
    std::string noticeType;
    std::string noticeEnds;  ///< the contract's end too, projected where the notice is paid
    std::string lastWorked;
    std::string paymentDue;
    std::string homologation;  ///< "10:30", the hour of it; empty stands for 09:00

    [[nodiscard]] bool operator==(const Leave&) const = default;

    /// nullopt when its days are no dates or end before they begin.
    [[nodiscard]] std::optional<LeavePeriod> period() const;
    /// The end of the contract, by the words of its type, letter case and accents aside.
    [[nodiscard]] bool isTermination() const;
    /// Of part of a day: its duration has hours and no days.
    [[nodiscard]] bool isOfHours() const;
    /// Of a termination that says it.
    [[nodiscard]] std::optional<Date> lastDayWorked() const;
};

using LeaveField = RecordField<Leave>;

/// The layout's one place; docs/record-layouts.md shows it with examples.
inline constexpr std::array kLeaveFields = {
    LeaveField{&Leave::type, {1, 30}},
    LeaveField{&Leave::firstDay, {31, 10}},
    LeaveField{&Leave::lastDay, {43, 10}},
    LeaveField{&Leave::duration, {55, 20}},
    LeaveField{&Leave::noticeGiven, {75, 10}},
    LeaveField{&Leave::noticeBegins, {87, 10}},
    LeaveField{&Leave::terminationType, {99, 55}},
    LeaveField{&Leave::noticeType, {156, 20}},
    LeaveField{&Leave::noticeEnds, {178, 10}},
    LeaveField{&Leave::lastWorked, {190, 10}},
    LeaveField{&Leave::paymentDue, {202, 10}},
    LeaveField{&Leave::homologation, {214, 5}},
};

/// Without an hour of the homologation, for which a line is made longer.
inline constexpr std::size_t kLeaveWidth = 211;

template <>
struct RecordLayout<Leave> : LineLayout<kLeaveFields, 218, kLeaveWidth> {
    static constexpr std::size_t kWidth = kLeaveWidth;
};

/// "FÉRIAS": the type without its code.
[[nodiscard]] std::string wordOf(const Leave& leave);

/// nullopt for a line that is no leave.
[[nodiscard]] std::optional<Leave> decodeLeave(std::string_view lineBytes);

/// "**** ", and the day since which the employee is inactive.
[[nodiscard]] std::string leaveStatusLine(std::optional<Date> inactiveSince);
/// The day that the status line names; nullopt while the employee is active. `leaveFileBytes` is
/// the whole file.
[[nodiscard]] std::optional<Date> inactiveSince(std::string_view leaveFileBytes);

/// "configAf001", to be put behind the company code.
[[nodiscard]] std::string leaveFileName(const EmployeeCode& employee);

/// The employees of a company who have a leave file, by the names in the data folder.
[[nodiscard]] std::set<EmployeeCode> employeesWithLeaveFile(const CompanyCode& company,
                                                            const FolderNames& names);

}  // namespace winvrx
