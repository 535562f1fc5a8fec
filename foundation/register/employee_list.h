#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/employee_register.h"
#include "foundation/register/leave_calendar.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// What a list says of an employee beside his name.
struct EmployeeMarks {
    bool onLeave = false;     ///< in the work month
    bool closed = false;      ///< the month's payroll has been generated
    bool unreadable = false;  ///< his leaves cannot be read
    std::optional<Date> inactiveSince = {};
    std::optional<Date> contractEnd = {};  ///< of who is inactive; not after it

    [[nodiscard]] bool isInactiveBefore(WorkMonth month) const {
        return contractEnd && *contractEnd < firstDay(month);
    }
};

/// "COLABORADOR COM AFASTAMENTO!!!", "Folha Fechada", "Inativo desde 10/02/2024".
[[nodiscard]] std::vector<std::string> textsOf(const EmployeeMarks& marks);

/// "Inativo", "Excluido", "Ativo", or "Ilegível" where the leaves do not tell.
[[nodiscard]] std::string_view activityOf(const Employee& employee, const EmployeeMarks& marks);

/// An employee's leaves and what a list says of them.
struct MarkedLeaves {
    LeaveCalendar calendar;  ///< of leaves that cannot be read none, with the admission
    EmployeeMarks marks;
};
/// `onLeave` goes by `month`, without one it is false.
[[nodiscard]] MarkedLeaves markedLeaves(const Store& store, const EmployeeKey& key,
                                        std::optional<WorkMonth> month,
                                        std::optional<Date> admission = std::nullopt);

/// "ANA, JOSÉ e mais 9": the first `most` of the names.
[[nodiscard]] std::string namesText(const std::vector<std::string>& names, std::size_t most);

/// Of one kind that a message names.
inline constexpr std::size_t kMostNames = 30;

/// The employees of a company as a screen lists them, in file order: those of a shift and a scale,
/// narrowed by what is searched for. A line without a code is in no list.
class EmployeeList {
  public:
    using Marks = std::map<EmployeeCode, EmployeeMarks>;
    /// Those of one employee; of whom nothing is on record, none.
    [[nodiscard]] static EmployeeMarks marksOf(const Marks& marks, const EmployeeCode& code);

    /// What the leaves say of a company's employees; reads only of whom something is on record.
    [[nodiscard]] static Marks leaveMarks(const Store& store, const CompanyCode& company,
                                          const FolderNames& names, std::optional<WorkMonth> month);

    explicit EmployeeList(ShiftFilter shift) : shift_(shift) {}

    /// Reads a company's register and what its leaves say; shift, scale and search stay. Throws
    /// FileFault.
    void load(const Store& store, const CompanyCode& company,
              std::optional<WorkMonth> month = std::nullopt);
    /// Takes a register that has been read.
    void fill(const std::vector<EmployeeLine>& lines, Marks marks = {});
    [[nodiscard]] ShiftFilter shift() const { return shift_; }
    void filterBy(ShiftFilter shift);
    /// nullopt stands for every scale.
    [[nodiscard]] std::optional<Scale> scale() const { return scale_; }
    void filterBy(std::optional<Scale> scale);
    /// Those to whom a screen can be narrowed, as the ones with leaves; no others are shown then.
    void setSubset(std::set<EmployeeCode> codes);
    /// One who is listed; the list stays as it is.
    void addToSubset(const EmployeeCode& code);
    void showOnlySubset(bool only);
    [[nodiscard]] bool showsOnlySubset() const { return onlySubset_; }
    /// How many shift and scale pass: of everyone, or of the subset.
    [[nodiscard]] std::size_t count(bool ofSubset) const { return ofSubset ? inSubset_ : inAll_; }
    /// Code, name, function, CPF and marks are searched, letter case and accents aside.
    void searchFor(std::string text) { search_ = std::move(text); }
    [[nodiscard]] const std::string& search() const { return search_; }

    /// Those of shift and scale. Positions count in here, whatever is searched for.
    [[nodiscard]] const std::vector<Employee>& employees() const { return employees_; }
    /// Whether there is an employee at `position` and the search finds him.
    [[nodiscard]] bool isShown(std::size_t position) const;
    /// The positions that the search shows.
    [[nodiscard]] std::vector<std::size_t> shown() const;
    /// Those whom the search shows, in file order. Who was inactive before `first` or is admitted
    /// after `last` is among them only if `areMeant`, told the names of all such, says so.
    [[nodiscard]] std::vector<Employee> people(
        Date first, Date last,
        const std::function<bool(const std::vector<std::string>& names)>& areMeant) const;
    /// The first who bears the code.
    [[nodiscard]] std::optional<std::size_t> positionOf(std::string_view code) const;

    /// The one whom a screen works on, nullopt for nobody. He stays, by his code, while the list is
    /// filtered and filled again; out of the list, he is no longer selected.
    void select(std::optional<std::size_t> position) { selected_ = position; }
    [[nodiscard]] std::optional<std::size_t> selectedPosition() const { return selected_; }
    [[nodiscard]] const Employee* selected() const;  ///< nullptr when there is none

    /// Ticks last while the list is filtered, searched and filled again.
    [[nodiscard]] bool isTicked(std::size_t position) const;
    void tick(std::size_t position, bool on);
    /// Everyone that the list shows, or nobody of them.
    void tickShown(bool on);
    /// Those ticked of shift and scale, whatever is searched for, in file order.
    [[nodiscard]] std::vector<Employee> ticked() const;

    [[nodiscard]] EmployeeMarks marks(std::size_t position) const;
    void mark(std::size_t position, const EmployeeMarks& marks);

  private:
    void filter();
    [[nodiscard]] bool isInSubset(const Employee& one) const;

    ShiftFilter shift_;
    std::optional<Scale> scale_;
    std::set<EmployeeCode> subset_;
    bool onlySubset_ = false;
    std::size_t inAll_ = 0;
    std::size_t inSubset_ = 0;
    std::string search_;
    std::set<std::string> ticked_;  ///< codes
    std::vector<Employee> everyone_;
    Marks marks_;
    std::vector<Employee> employees_;
    std::optional<std::size_t> selected_;
};

}  // namespace winvrx
