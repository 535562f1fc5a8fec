#pragma once

#include "foundation/browser.h"
#include "foundation/command.h"
#include "foundation/employee_register.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// Headings and captions of the screen's lists.
inline constexpr std::string_view kEmployeeListTitle = "LISTA DE FUNCIONARIOS";
inline constexpr std::string_view kShiftListTitle = "TURNOS";
inline constexpr std::string_view kScaleListTitle = "ESCALS";
inline constexpr std::string_view kScaleBoxTitle = "Escala - Turno - Horario";

/// What an employee cannot be recorded without.
inline constexpr std::array kRequiredEmployeeFields = {
    &Employee::code, &Employee::name, &Employee::admission, &Employee::shift, &Employee::scale};

[[nodiscard]] bool isRequired(std::string Employee::*field);

/// The employee register's screen: include, change and delete employees of the selected company.
///
/// Holds the list as the screen shows it. A command that is refused or fails leaves list and file
/// as they were. Each command reads the file again first, so the list is never older than the
/// file that it replaces.
class Empregados {
  public:
    Empregados(const Workplace& at, Browser& browser);

    /// Reads the list of the company selected in the session; none selected gives an empty list.
    void load();
    [[nodiscard]] const std::vector<EmployeeLine>& lines() const { return lines_; }
    /// "01 EMPRESA MODELO LTDA"; empty when no company is selected.
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }
    /// The code that the next employee gets unless another is typed; nullopt when all are taken.
    [[nodiscard]] std::optional<EmployeeCode> proposedCode() const {
        return EmployeeRegister::lowestFreeCode(lines_);
    }

    /// Appends `typed`. Code, name, admission date, shift and scale are required; the code must be
    /// free and the scale must allow the shift. True when it was recorded.
    [[nodiscard]] bool include(const Employee& typed);
    /// Replaces the line at `position`; code and status stay, and so does what the record holds
    /// beyond the fields. True when it was recorded.
    [[nodiscard]] bool change(std::size_t position, Employee typed);
    /// Deletes the line at `position` and the employee's files. True when it is gone.
    [[nodiscard]] bool remove(std::size_t position);
    /// Asks before typed but unrecorded text is left behind. True when it may go.
    [[nodiscard]] bool mayDiscardTyped();
    void help();

  private:
    [[nodiscard]] EmployeeRegister employeeRegister() const;
    /// The list as it is on disk, if the line at `position` is still what the screen shows.
    [[nodiscard]] std::vector<EmployeeLine> loadUnchanged(std::size_t position) const;
    [[nodiscard]] bool accepts(const Employee& typed) const;
    [[nodiscard]] bool refusesTakenCode(const Employee& typed,
                                        const std::vector<EmployeeLine>& lines) const;
    void removeFilesOf(const EmployeeLine& gone, const std::vector<EmployeeLine>& remaining) const;
    void save(std::vector<EmployeeLine> lines);

    Workplace at_;
    Browser& browser_;
    std::vector<EmployeeLine> lines_;
    std::string companyTitle_;
};

}  // namespace winvrx
