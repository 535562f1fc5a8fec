#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "foundation/register/employee_queries.h"
#include "foundation/register/leave_calendar.h"
#include "foundation/register/leave_file.h"
#include "personnel/leaves/leave_form.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// The leave screen: the leaves and the end of the contract of each employee of the selected
/// company, and whether he is active.
///
/// Holds the employee list, the leave file of the employee chosen as it was read, and what stands
/// in the fields. Each command asks first, then holds the folder, reads the file again and writes
/// it whole. A refusal or a failure leaves the file as it was, and what was typed on the screen.
class Afastamento {
  public:
    Afastamento(const Workplace& at, const PayrollLock& payroll);

    /// Loads the work month and the list; the employee chosen before stays if the list has him.
    /// False when no company or no month is chosen.
    [[nodiscard]] bool open();
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }
    [[nodiscard]] const std::optional<WorkMonth>& month() const { return month_; }
    /// "Período : 01/03/2024 á 31/03/2024".
    [[nodiscard]] std::string periodCaption() const;

    [[nodiscard]] EmployeeList& list() { return list_; }
    /// The list can be narrowed to those with a leave file. Each is false when the operator stays
    /// with what is typed.
    [[nodiscard]] bool showOnlyWithLeaves(bool only);
    [[nodiscard]] bool filterBy(ShiftFilter shift);

    /// Loads the leaves of the employee at `position` of the list, and tells of one who is
    /// inactive. False when the operator stays with what is typed, or they cannot be read.
    [[nodiscard]] bool select(std::size_t position);
    /// The same by his code, with every shift listed where the filter hides him.
    [[nodiscard]] bool select(const EmployeeCode& employee);
    /// nullptr when there is none.
    [[nodiscard]] const Employee* selected() const { return list_.selected(); }
    [[nodiscard]] const LeaveFile& file() const { return file_; }
    /// Where the employee is on each day, as the file has it.
    [[nodiscard]] LeaveCalendar calendar() const { return calendarOf(file_); }
    [[nodiscard]] bool isInactive() const { return file_.inactiveSince.has_value(); }
    /// What register and leave file say differently; empty when they agree.
    [[nodiscard]] std::string contradiction() const;
    /// "Inativar" or "Reativar".
    [[nodiscard]] std::string_view activationCaption() const;

    /// Fills the fields from the leave at `place` of the file. False when the payroll of the month
    /// has been generated, and then none is chosen, or the operator stays with what is typed.
    [[nodiscard]] bool choose(std::size_t place);
    /// Empties the fields for a new leave.
    [[nodiscard]] bool begin();
    [[nodiscard]] std::optional<std::size_t> chosen() const { return chosen_; }
    [[nodiscard]] LeaveForm& form() { return form_; }
    [[nodiscard]] const LeaveForm& form() const { return form_; }
    /// Looks for punches on the days of the leave as it is typed, for `finding`.
    void lookForPunches();
    /// What speaks against the text of a field, to be said beside it.
    [[nodiscard]] std::string finding(LeaveInput input) const;
    /// The field for which the last command ended; none when it was for none.
    [[nodiscard]] std::optional<LeaveInput> blamed() const { return blamed_; }

    [[nodiscard]] bool add();
    [[nodiscard]] bool change();
    [[nodiscard]] bool remove();
    /// "Inativar" or "Reativar", whichever the employee is not.
    [[nodiscard]] bool changeActivation();

    [[nodiscard]] Date today() const { return at_.clock.today(); }

    /// Asks before what is typed is left behind. True when the screen may go on.
    [[nodiscard]] bool confirmLeaving();

  private:
    void loadList(const CompanyCode& company, WorkMonth month);
    [[nodiscard]] bool narrow(const std::function<void()>& filter);
    void show(LeaveFile file);
    void fill(std::optional<std::size_t> place);
    [[nodiscard]] LeaveCalendar calendarOf(const LeaveFile& file) const;
    /// For the employee chosen, with the leaves as they stand now.
    void offerToMark(LeavePeriod days);
    [[nodiscard]] EmployeeKey keyOf(const Employee& employee) const;
    /// Of the employee chosen.
    [[nodiscard]] EmployeeKey key() const { return keyOf(*selected()); }
    [[nodiscard]] EmployeeMarks marksOf(const EmployeeKey& key) const;

    [[nodiscard]] bool refuse(std::string_view title, std::string_view text,
                              std::optional<LeaveInput> blamed = {}, std::string detail = {});
    [[nodiscard]] bool requireSelection(std::string_view title);
    [[nodiscard]] bool requireOpenMonth();
    [[nodiscard]] bool confirmPeriod();
    [[nodiscard]] bool requireFilled(std::string_view title);
    [[nodiscard]] bool requireDates(std::string_view title);
    [[nodiscard]] bool requireNew(const StoredLine<Leave>& line);
    [[nodiscard]] bool requireTermination(std::string_view title);
    [[nodiscard]] bool requireDismissal(std::string_view title);
    [[nodiscard]] bool requireNoTerminationDocument(std::string_view title);
    [[nodiscard]] bool confirmDroppedLines();
    /// Lets `edit` change the file on disk while the folder is held, and records it. `isAllowed` is
    /// asked when nobody else can write any more.
    [[nodiscard]] bool rewrite(
        const std::function<void(LeaveFile&)>& edit,
        const std::function<bool()>& isAllowed = [] { return true; });

    Workplace at_;
    const PayrollLock& payroll_;
    std::string companyTitle_;
    std::optional<WorkMonth> month_;
    EmployeeList list_;
    LeaveFile file_;
    std::optional<std::size_t> chosen_;
    LeaveForm form_;
    std::string punches_;  ///< what is said of those on the days of `form_`
    std::optional<LeaveInput> blamed_;
};

}  // namespace winvrx
