#include "timecard/rotation/group_work.h"

#include "foundation/files/folder_names.h"
#include "foundation/register/employee_list.h"
#include "foundation/values/faults.h"
#include "timecard/rotation/rotation_records.h"

#include <algorithm>
#include <set>

namespace winvrx {

namespace {

/// Answers with months that are not on record yet.
class GivenMonths final : public RotationCalendar {
  public:
    explicit GivenMonths(RotationMonths months) : months_(std::move(months)) {}

    [[nodiscard]] RotationMonths monthsOf(const CompanyCode&, WorkMonth) const override {
        return months_;
    }

  private:
    RotationMonths months_;
};

}  // namespace

std::vector<EmployeeCode> closedAmong(const GroupWork& work,
                                      const std::vector<EmployeeCode>& employees) {
    const Store store = work.at.store();
    const auto closed = work.payroll.closedIn(work.company, work.settings.month, namesIn(store));
    std::vector<EmployeeCode> among = employees;
    std::erase_if(among, [&](const EmployeeCode& code) { return !closed.contains(code); });
    return among;
}

std::vector<EmployeeCode> appliedAmong(const GroupWork& work,
                                       const std::vector<EmployeeCode>& employees) {
    const FolderNames names = namesIn(work.at.store());
    std::vector<EmployeeCode> among = employees;
    std::erase_if(among, [&](const EmployeeCode& code) {
        return !names.contains(punchFileName({work.company, code}, work.settings.month));
    });
    return among;
}

std::vector<EmployeeCode> changedMembers(const RotationGroup* recorded, const RotationGroup& group,
                                         WorkMonth month) {
    const RotationPlan before = recorded ? planOf(*recorded, month) : RotationPlan();
    const RotationPlan after = planOf(group, month);
    std::set<EmployeeCode> changed;
    const auto compare = [&changed](const RotationPlan& plan, const RotationPlan& other) {
        const auto turnsOf = [](const PlanRow& row) {
            std::vector<bool> off;
            for (const PlannedDay& day : row.days)
                off.push_back(day.turn == Turn::Off);
            return off;
        };
        for (const PlanRow& row : plan.rows) {
            const PlanRow* same = other.rowOf(row.employee);
            if (!same || turnsOf(*same) != turnsOf(row)) changed.insert(row.employee);
        }
    };
    compare(before, after);
    compare(after, before);
    return {changed.begin(), changed.end()};
}

ListApplication::Batch reappliedCards(const GroupWork& work,
                                      const std::vector<RotationGroup>& groups,
                                      const std::vector<EmployeeCode>& employees,
                                      std::string& remarks) {
    const Store store = work.at.store();
    const RotationMonths months = monthsOf(store, work.company, work.settings.month, groups);
    for (const auto& [code, month] : months)
        if (!month.finding.empty()) throw Fault("work table", month.finding);
    const GivenMonths calendar(months);
    ListApplication application(store, {calendar, work.payroll},
                                {.company = work.company,
                                 .settings = work.settings,
                                 .minutes = loadMinutes(store),
                                 .situation = {},
                                 .common = std::nullopt});
    auto batch = application.fill(employees, {});
    remarks = application.remarks(kMostNames);
    return batch.value_or(ListApplication::Batch());
}

void removePunches(const GroupWork& work, const std::vector<EmployeeCode>& employees) {
    const Store store = work.at.store();
    const PunchFiles punchFiles(store, work.payroll, work.settings);
    for (const EmployeeCode& code : employees)
        punchFiles.remove({work.company, code});
}

}  // namespace winvrx
