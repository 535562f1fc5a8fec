#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/desk/spreadsheet.h"
#include "foundation/desk/text_editor.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_queries.h"
#include "foundation/register/employee_register.h"

#include <filesystem>
#include <functional>
#include <map>
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

/// The list on disk is not the one that the screen shows.
[[nodiscard]] Fault changedElsewhere();

/// The subjects and programs beside the register that its commands ask. All outlive the screen.
struct EmployeeSurroundings {
    Browser& browser;
    TextEditor& editor;
    Spreadsheet& spreadsheet;
    const RotationMembership& rotation;
    const PayrollLock& payroll;
};

/// The employee register's screen: the commands on the employee list of the selected company.
///
/// Holds the list as the screen shows it. A command that is refused or fails leaves list and file
/// as they were. Each command reads the file again first, so the list is never older than the
/// file that it replaces. Each returns whether it was carried out.
class Empregados {
  public:
    Empregados(const Workplace& at, const EmployeeSurroundings& around);

    /// Shown while a command takes its time: "Aguarde ....".
    using WaitNotice = std::function<void(std::string_view)>;
    void tellWaiting(WaitNotice notice) { waitNotice_ = std::move(notice); }

    /// Reads the list of the company selected in the session; none selected gives an empty list.
    void load();
    [[nodiscard]] const std::vector<EmployeeLine>& lines() const { return lines_; }
    /// "01 EMPRESA MODELO LTDA"; empty when no company is selected.
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }
    /// The companies that an employee can be transferred to.
    [[nodiscard]] const std::vector<CompanyLine>& otherCompanies() const { return others_; }
    /// The day since which the line's employee is inactive, by the leave file.
    [[nodiscard]] std::optional<Date> inactiveSince(const EmployeeLine& line) const;
    /// The code that the next employee gets unless another is typed; nullopt when all are taken.
    [[nodiscard]] std::optional<EmployeeCode> proposedCode() const {
        return EmployeeRegister::lowestFreeCode(lines_);
    }

    /// Appends `typed`. Code, name, admission date, shift and scale are required; the code must be
    /// free and the scale must allow the shift.
    [[nodiscard]] bool include(const Employee& typed);
    /// Replaces the line at `position`; code and status stay, and so does what the record holds
    /// beyond the fields. A member of a rotation group keeps shift and scale.
    [[nodiscard]] bool change(std::size_t position, Employee typed);
    /// Moves the employee with every file to another company, unless he is registered there or has
    /// punch records here.
    [[nodiscard]] bool transfer(std::size_t position, const CompanyCode& target);
    /// Deletes the line at `position` and the employee's files.
    [[nodiscard]] bool remove(std::size_t position);
    /// Deletes the list and every file of its employees, after two questions.
    [[nodiscard]] bool removeAll();

    [[nodiscard]] bool sortByName();
    [[nodiscard]] bool sortByAdmission();
    /// Moves the line at `position` to the place that was typed, counted from 1.
    [[nodiscard]] bool moveTo(std::size_t position, std::string_view typedPlace);
    /// Writes the reports of active and of inactive employees and opens both.
    [[nodiscard]] bool report();
    /// Writes the list as a table: XLSX when the file's name ends in ".xlsx", else CSV.
    [[nodiscard]] bool exportTo(const std::filesystem::path& file);

    /// Tells that there is no company to transfer to, if there is none; else true.
    [[nodiscard]] bool offersTransfer();
    /// Tells that an employee has to be selected first.
    void askForEmployee();
    /// Asks before typed but unrecorded text is left behind. True when it may go.
    [[nodiscard]] bool mayDiscardTyped();
    void help();

  private:
    void read();
    [[nodiscard]] bool hasCompany() const;
    [[nodiscard]] EmployeeRegister employeeRegister() const;
    /// The list as it is on disk, if the line at `position` is still what the screen shows.
    [[nodiscard]] std::vector<EmployeeLine> loadUnchanged(std::size_t position) const;
    [[nodiscard]] bool accepts(const Employee& typed) const;
    [[nodiscard]] bool refusesTakenCode(const Employee& typed,
                                        const std::vector<EmployeeLine>& lines) const;
    [[nodiscard]] bool isRotationMember(const EmployeeLine& line) const;
    [[nodiscard]] bool agreesDespitePayroll(const EmployeeLine& line) const;
    [[nodiscard]] bool mayTransfer(const EmployeeLine& leaving, const CompanyCode& target) const;
    void removeFilesOf(const EmployeeLine& gone, const std::vector<EmployeeLine>& remaining) const;
    void save(std::vector<EmployeeLine> lines);
    template <typename Sort>
    [[nodiscard]] bool sort(const Message& question, const Message& onFailure, Sort&& order);

    Workplace at_;
    EmployeeSurroundings around_;
    WaitNotice waitNotice_;
    std::vector<EmployeeLine> lines_;
    std::map<EmployeeCode, Date> inactive_;
    std::vector<CompanyLine> others_;
    std::string companyTitle_;
};

}  // namespace winvrx
