#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/employee.h"
#include "foundation/register/leave_calendar.h"
#include "timecard/rotation/rotation_view.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// Somebody on a rotation scale.
struct RotationPerson {
    Employee employee;
    LeaveCalendar leaves;
};
using RotationPeople = std::map<EmployeeCode, RotationPerson>;

/// The groups of a company's month as they are on record, shown without those who may not stay in
/// them.
class MonthGroups {
  public:
    MonthGroups() = default;
    MonthGroups(CompanyCode company, WorkMonth month, RotationPeople people)
        : company_(std::move(company)), month_(month), people_(std::move(people)) {}

    /// Throws FileFault.
    void read(const Store& store, const FolderNames& names);

    /// In the order of their numbers.
    [[nodiscard]] const std::vector<RotationGroup>& groups() const { return groups_; }
    [[nodiscard]] const RotationGroup* find(int number) const;
    /// With those who may not stay; nullopt when there is none.
    [[nodiscard]] std::optional<RotationGroup> recorded(int number) const;
    /// Of the month before.
    [[nodiscard]] const std::vector<RotationGroup>& before() const { return before_; }
    /// Who has to leave a group, and lines that nobody understands.
    [[nodiscard]] const std::vector<std::string>& notes() const { return notes_; }
    /// The latest month before that has groups; nullopt while this one has a line.
    [[nodiscard]] std::optional<WorkMonth> continuableFrom() const { return continuableFrom_; }

    /// "está inativo": why the employee may not stay in the group; empty when he may.
    [[nodiscard]] std::string strayReason(const EmployeeCode& code,
                                          const RotationGroup& group) const;
    [[nodiscard]] MemberNames names() const;
    /// Lives as long as this object.
    [[nodiscard]] Absence absence() const;

    [[nodiscard]] LineFile<GroupRecord> file(const Store& store) const {
        return groupFile(store, company_.value(), month_);
    }
    /// The lines on disk. Throws Fault when those of these groups are not as they were read.
    [[nodiscard]] GroupLines linesAsRead(const Store& store,
                                         const std::vector<RotationGroup>& groups) const;
    /// Writes the groups of that month with their rhythm, and reads; who is left out stands in
    /// `notes`. Who calls holds the folder. Throws Fault when the month has groups by now.
    void continueFrom(const Store& store, WorkMonth earlier);

  private:
    [[nodiscard]] RotationGroup withoutStrays(RotationGroup group,
                                              std::vector<std::string>& notes) const;

    std::optional<CompanyCode> company_;
    WorkMonth month_{};
    RotationPeople people_;
    GroupLines lines_;
    std::vector<RotationGroup> groups_;
    std::vector<RotationGroup> before_;
    std::vector<std::string> notes_;
    std::optional<WorkMonth> continuableFrom_;
};

}  // namespace winvrx
