#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "personnel/payroll/month_inputs.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payroll/settings_file.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// The payroll of one employee and month as the screen holds it.
struct OpenPayroll {
    EmployeeMonth month;
    PayrollEvents events;
    PaySheet sheet;
    bool isRecorded = false;
    std::optional<std::string> bytes;  ///< of the file as it was read; nullopt where none stood
};

/// The payroll screen: computes, records and reopens the months of a company's employees. A command
/// that is refused or fails leaves every file as it was.
class Folha {
  public:
    /// `legalFolder` has the delivered tables.
    Folha(const Workplace& at, std::filesystem::path legalFolder)
        : at_(at), legalFolder_(std::move(legalFolder)) {}

    /// Reads what all payrolls of a month need. False, and told, when something cannot be read.
    [[nodiscard]] bool load(WorkMonth month);
    [[nodiscard]] const PayrollSettings& settings() const { return settings_; }
    /// Sentences on tables that have no line of the month's own.
    [[nodiscard]] std::vector<std::string> warnings() const;

    enum class Opening { Opened, ToTimeCard, Refused };
    /// Computes the month of an employee, or takes it as it is recorded. Where no card is filled it
    /// asks whether to go there; without a salary it refuses.
    [[nodiscard]] Opening open(const Employee& employee);
    [[nodiscard]] const std::optional<OpenPayroll>& shown() const { return shown_; }
    /// Computes the month that is shown anew, with these amounts typed over.
    [[nodiscard]] bool compute(const TypedAmounts& typed);

    /// "Gravar Selecionado": records what is shown and closes the month for the employee.
    [[nodiscard]] bool save();
    /// "GRAVAR TODOS": computes and records everyone whose month is open, in one batch. Told after
    /// each employee; false cancels, and nothing is recorded.
    using Progress = std::function<bool(int done, int total)>;
    [[nodiscard]] bool saveAll(const std::vector<Employee>& employees, const Progress& progress);
    /// Deletes the recorded payroll that is shown: its month is open again.
    [[nodiscard]] bool reopen();

  private:
    struct Unsaved {
        std::vector<std::string> without;  ///< names of those who cannot be computed
        std::vector<std::string> recorded;
    };

    [[nodiscard]] OpenPayroll inputsOf(const Employee& employee, const FolderNames& names) const;
    [[nodiscard]] PaySheet sheetOf(const OpenPayroll& payroll, const TypedAmounts& typed) const;
    [[nodiscard]] std::optional<std::string> bytesOf(const Employee& employee) const;
    [[nodiscard]] EmployeeKey keyOf(const Employee& employee) const;
    void requireUnchanged() const;
    [[nodiscard]] bool computeAll(const std::vector<Employee>& employees, const Progress& progress,
                                  std::vector<FileSystem::NewContent>& batch,
                                  Unsaved& unsaved) const;
    [[nodiscard]] bool confirmLeftOut(const Unsaved& unsaved, bool hasBatch) const;

    Workplace at_;
    std::filesystem::path legalFolder_;
    MonthSettings month_;
    LegalTables tables_;
    PayrollSettings settings_;
    PayrollEvents companyEvents_;
    std::optional<OpenPayroll> shown_;
};

}  // namespace winvrx
