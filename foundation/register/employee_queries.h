#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/folder_names.h"
#include "foundation/register/employee_list.h"
#include "foundation/values/codes.h"
#include "foundation/values/date.h"

#include <set>

// What the employee register and the punches have to ask of subjects that lie above them. They
// answer through these queries; app/ joins the two. What is asked of a whole list takes the names
// in the data folder, so that a screen lists it once.

namespace winvrx {

/// Asked of the rotation schedules.
class RotationMembership {
  public:
    virtual ~RotationMembership() = default;
    /// Whether the employee stands in one of the company's rotation groups.
    [[nodiscard]] virtual bool isMember(const EmployeeKey& key) const = 0;
    /// Takes an employee who is deleted or leaves the company off its groups of every month. Who
    /// calls holds the folder.
    virtual void removeMember(const EmployeeKey& key) const = 0;
};

/// Asked of the payroll.
class PayrollLock {
  public:
    virtual ~PayrollLock() = default;
    /// Whether a payroll of the employee has been generated.
    [[nodiscard]] virtual bool hasClosedMonth(const EmployeeKey& key) const = 0;
    /// Whether the payroll of the employee and month has been generated: the month is closed.
    [[nodiscard]] virtual bool isClosed(const EmployeeKey& key, WorkMonth month) const = 0;
    /// The employees for whom the month is closed.
    [[nodiscard]] virtual std::set<EmployeeCode> closedIn(const CompanyCode& company,
                                                          WorkMonth month,
                                                          const FolderNames& names) const = 0;
};

/// Answers it from the payroll files in the data folder.
class RecordedAnswers final : public PayrollLock {
  public:
    /// Both outlive this object; `folder` is the one in use when a question is asked.
    RecordedAnswers(const Store& store) : store_(store) {}

    [[nodiscard]] bool hasClosedMonth(const EmployeeKey& key) const override;
    [[nodiscard]] bool isClosed(const EmployeeKey& key, WorkMonth month) const override;
    [[nodiscard]] std::set<EmployeeCode> closedIn(const CompanyCode& company, WorkMonth month,
                                                  const FolderNames& names) const override;

  private:
    Store store_;
};

/// What leaves and payroll say of a company's employees in a month.
[[nodiscard]] EmployeeList::Marks monthMarks(const Store& store, const CompanyCode& company,
                                             WorkMonth month, const FolderNames& names,
                                             const PayrollLock& payroll);

}  // namespace winvrx
