#pragma once

#include "foundation/desk/list_commands.h"
#include "foundation/desk/spreadsheet.h"
#include "foundation/desk/text_editor.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_list.h"
#include "foundation/register/employee_queries.h"
#include "foundation/register/employee_register.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

struct ReportedEmployee;

/// Headings and captions of the screen's lists.
inline constexpr std::string_view kEmployeeListTitle = "LISTA DE FUNCIONARIOS";
inline constexpr std::string_view kShiftListTitle = "TURNOS";
inline constexpr std::string_view kScaleListTitle = "ESCALS";
inline constexpr std::string_view kScaleBoxTitle = "Escala - Turno - Horario";

/// What the register asks of the subjects and programs beside it. All outlive the screen.
struct EmpregadosDesk {
    TextEditor& editor;
    Spreadsheet& spreadsheet;
    const RotationMembership& rotation;
    const PayrollLock& payroll;
};

/// Warns of a payroll that has been generated for the employee and asks whether to change his
/// record all the same; true when there is none.
[[nodiscard]] bool confirmDespitePayroll(Operator& person, const PayrollLock& payroll,
                                         const EmployeeKey& key);

/// The employee register's screen: the commands on the employee list of the selected company. None
/// selected gives an empty list.
class Empregados : public ListCommands<Employee> {
  public:
    Empregados(const Workplace& at, const EmpregadosDesk& desk);

    /// Shown while a command takes its time: "Aguarde ....".
    using WaitNotice = std::function<void(std::string_view)>;
    void tellWaiting(WaitNotice notice) { waitNotice_ = std::move(notice); }

    /// "01 EMPRESA MODELO LTDA"; empty when no company is selected.
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }
    /// The companies that an employee can be transferred to.
    [[nodiscard]] const std::vector<CompanyLine>& otherCompanies() const { return others_; }
    /// What the leave file says of the employee.
    [[nodiscard]] EmployeeMarks marks(const Employee& employee) const;
    /// What the record and the leave file say differently of his dismissal; empty when they agree,
    /// or the leave file cannot be read.
    [[nodiscard]] std::string contradictionIn(const Employee& employee) const;
    /// The lowest code that neither a line nor a file bears: what the next employee gets unless
    /// another is typed. nullopt when all are taken.
    [[nodiscard]] std::optional<EmployeeCode> proposedCode() const;

    [[nodiscard]] Employee freshRecord() const override;
    /// "12 ativos, 1 inativo", as the list shows them.
    [[nodiscard]] std::string counts() const override;
    [[nodiscard]] std::string newRecordTitle() const override;

    [[nodiscard]] Findings<Employee> wrongIn(const Employee& typed,
                                             const Employee& before) const override;
    [[nodiscard]] Findings<Employee> doubtsAbout(const Employee& typed,
                                                 const Employee& before) const override;

    /// Code and status stay, and so does what the record holds beyond the fields. A member of a
    /// rotation group keeps shift and scale.
    [[nodiscard]] bool change(std::size_t position, const Employee& typed) override;
    /// Moves the employee with every file to another company, unless he is registered there or has
    /// punch records here.
    [[nodiscard]] bool transfer(std::size_t position, const CompanyCode& target);
    /// Deletes the employee's files too.
    [[nodiscard]] bool remove(std::size_t position) override;
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
    [[nodiscard]] bool requireOtherCompany();
    /// Tells that an employee has to be selected first.
    void askForEmployee();

  protected:
    void reread() override;
    [[nodiscard]] Lines read() const override;
    void write(const Lines& lines) override;
    [[nodiscard]] ListRow rowOf(const Employee& employee) const override;
    [[nodiscard]] bool requireAcceptable(const Employee& typed, const Line* before) override;

  private:
    [[nodiscard]] bool requireCompany() const;
    [[nodiscard]] bool requireRight(const Employee& typed, const Employee& before);
    [[nodiscard]] std::size_t filesOf(const std::set<EmployeeCode>& codes) const;
    [[nodiscard]] EmployeeRegister employeeRegister() const;
    [[nodiscard]] EmployeeKey keyOfLine(const Line& line) const;
    [[nodiscard]] bool isRotationMember(const Line& line) const;
    /// Why the employee cannot go to that company; nullptr when he can.
    [[nodiscard]] const Message* transferRefusal(const Line& leaving,
                                                 const CompanyCode& target) const;
    void removeFilesOf(const Line& gone, const Lines& remaining) const;
    /// By the leave files of the company's employees.
    [[nodiscard]] EmployeeList::Marks readMarks() const;
    /// As they stand on disk. Throws Fault when it cannot be told who is active.
    [[nodiscard]] std::vector<ReportedEmployee> reportedEmployees() const;
    template <typename Sort>
    [[nodiscard]] bool sort(const Message& question, const Message& onFailure, Sort&& order);

    EmpregadosDesk desk_;
    WaitNotice waitNotice_;
    EmployeeList::Marks marks_;
    std::set<EmployeeCode> codesOfFiles_;
    std::vector<CompanyLine> others_;
    std::string companyTitle_;
};

}  // namespace winvrx
