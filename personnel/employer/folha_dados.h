#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "personnel/payroll/payroll_facts.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kFactsTitle = "Dados para a Folha";

/// The screen of what the payroll needs of each employee and no other record says.
class FolhaDados {
  public:
    explicit FolhaDados(const Workplace& at) : at_(at), list_(at.session.shiftFilter) {}

    /// Reads the employees. False, and told, when that fails.
    [[nodiscard]] bool load();
    [[nodiscard]] EmployeeList& list() { return list_; }

    /// Reads the facts of an employee of the list. False, and told, when that fails.
    [[nodiscard]] bool select(std::size_t position);
    [[nodiscard]] const std::optional<Employee>& selected() const { return selected_; }
    /// Texts of the facts on record, in the order of payrollFactTable().
    [[nodiscard]] std::vector<std::string> texts() const;
    /// Lines of the record that say no fact; they are kept.
    [[nodiscard]] const std::vector<std::string>& unread() const { return recorded_.unread; }

    /// Asks and records the facts as typed. Of a text that says none, `blamed` is its place.
    [[nodiscard]] bool save(const std::vector<std::string>& typed);
    [[nodiscard]] std::optional<std::size_t> blamed() const { return blamed_; }
    /// Asks before typed text is left behind. True when it may go.
    [[nodiscard]] bool confirmDiscard(const std::vector<std::string>& typed);

  private:
    [[nodiscard]] EmployeeKey key() const;

    Workplace at_;
    EmployeeList list_;
    std::optional<Employee> selected_;
    RecordedFacts recorded_;
    std::optional<std::size_t> blamed_;
};

}  // namespace winvrx
