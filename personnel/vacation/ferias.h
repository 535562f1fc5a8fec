#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "foundation/register/employee_queries.h"
#include "personnel/pay/card_history.h"
#include "personnel/vacation/vacation_form.h"
#include "personnel/vacation/vacation_periods.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace winvrx {

/// What the vacation screen asks of the payroll.
struct FeriasDesk {
    const PayrollLock& payroll;
    /// The net total of the vacation pay recorded in a month; nullopt where none is. May throw
    /// FileFault.
    std::function<std::optional<Money>(const EmployeeKey& key, WorkMonth month)> netPaid;
};

/// The screen of the vacation periods: what each employee of the selected company has earned, taken
/// and been paid. Each command asks first, then holds the folder, reads the file again and writes
/// it whole. A refusal or a failure leaves every file as it was.
class Ferias {
  public:
    Ferias(const Workplace& at, FeriasDesk desk);

    /// Loads the work month and the list; the employee chosen before stays if the list has him.
    /// False when no company or no month is chosen.
    [[nodiscard]] bool open();
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }
    [[nodiscard]] const std::optional<WorkMonth>& month() const { return month_; }

    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const EmployeeList& list() const { return list_; }
    /// The list can be narrowed to those whose vacation is due soon. Each is false when the
    /// operator stays with what is typed.
    [[nodiscard]] bool showOnlyDue(bool only);
    [[nodiscard]] bool filterBy(ShiftFilter shift);

    /// Loads the periods of the employee at `position` of the list. False when the operator stays
    /// with what is typed, or they cannot be read.
    [[nodiscard]] bool select(std::size_t position);
    /// The same by his code, with every shift listed where the filter hides him.
    [[nodiscard]] bool select(const EmployeeCode& employee);
    [[nodiscard]] std::optional<std::size_t> selectedPosition() const {
        return list_.selectedPosition();
    }
    /// nullptr when there is none
    [[nodiscard]] const Employee* selected() const { return list_.selected(); }
    /// His key; requires a selected employee.
    [[nodiscard]] EmployeeKey key() const;

    /// The periods that have begun by the end of the work month, and what became of them.
    [[nodiscard]] const std::vector<PeriodRow>& rows() const { return rows_; }
    /// The vacation of a row; nullptr of one that is pending.
    [[nodiscard]] const VacationItem* itemOf(const PeriodRow& row) const;
    /// Whether the days of a vacation on record stand as a leave.
    [[nodiscard]] bool hasLeaveOf(const PeriodRow& row) const;
    /// "Vencem em 60 dias: 30 dias, início até 08/02/2026"; empty where nothing is due.
    [[nodiscard]] std::string dueText() const;

    /// Fills the fields from a row. False when the operator stays with what is typed.
    [[nodiscard]] bool choose(std::size_t row);
    [[nodiscard]] std::optional<std::size_t> chosen() const { return chosen_; }
    /// The row that is chosen; nullptr when there is none.
    [[nodiscard]] const PeriodRow* chosenRow() const;
    [[nodiscard]] VacationForm& form() { return form_; }
    [[nodiscard]] const VacationForm& form() const { return form_; }
    /// What the dates of the fields come to, a sentence each: limit, notice, payment, double pay,
    /// and what speaks against them.
    [[nodiscard]] std::vector<std::string> planNotes();
    /// The field for which the last command ended; none when it was for none.
    [[nodiscard]] std::optional<VacationInput> blamed() const { return blamed_; }

    /// "Gravar": records the vacation of the fields for the row that is chosen, and its days as a
    /// leave.
    [[nodiscard]] bool record();
    /// "QUITAR": the vacation of the row has been paid.
    [[nodiscard]] bool settle();
    /// "Restaurar Quitação".
    [[nodiscard]] bool restoreSettlement();
    /// "Provisão": records what the whole period costs.
    [[nodiscard]] bool provide();
    /// "Excluir": takes what the row has off the record, and its leave.
    [[nodiscard]] bool remove();

    [[nodiscard]] Date today() const { return at_.clock.today(); }
    /// Asks before what is typed is left behind. True when the screen may go on.
    [[nodiscard]] bool confirmLeaving();

  private:
    void loadList(const CompanyCode& company, WorkMonth month);
    [[nodiscard]] bool narrow(const std::function<void()>& filter);
    void show(std::optional<std::size_t> position);
    void reload();
    void fill(std::optional<std::size_t> row);
    [[nodiscard]] int grantedDays(const AcquisitionPeriod& period, const FolderNames& names);
    [[nodiscard]] bool beginsBeforeRest(Date first);

    [[nodiscard]] bool refuse(std::string_view title, std::string_view text,
                              std::optional<VacationInput> blamed = {}, std::string detail = {});
    [[nodiscard]] bool requirePeriod();
    [[nodiscard]] bool requireItem();
    [[nodiscard]] bool requireNotForfeit();
    [[nodiscard]] bool requireNotSettled();
    [[nodiscard]] bool requireNotPaid();
    [[nodiscard]] bool requireFilled();
    [[nodiscard]] bool confirmPending();
    [[nodiscard]] bool requireDates();
    [[nodiscard]] bool requireFractions();
    [[nodiscard]] bool requireFreeMonth();
    [[nodiscard]] bool requireProvision();
    [[nodiscard]] bool hasClosedMonth(const std::vector<LeavePeriod>& periods) const;
    [[nodiscard]] VacationItem typedItem() const;
    [[nodiscard]] VacationItem provision() const;
    /// Puts `item` in the place of the chosen row's line, behind all others where it has none, or
    /// takes that line away, along with its leave where `withLeave`.
    void write(const std::optional<VacationItem>& item, bool withLeave);
    void offerToMark(LeavePeriod days);

    Workplace at_;
    FeriasDesk desk_;
    std::string companyTitle_;
    std::optional<WorkMonth> month_;
    EmployeeList list_;
    SettingsByMonth months_;
    VacationLines lines_;  ///< of the employee, as they were read
    LeaveCalendar leaves_;
    std::vector<PeriodRow> rows_;
    std::optional<std::size_t> chosen_;
    VacationForm form_;
    std::optional<VacationInput> blamed_;
};

}  // namespace winvrx
