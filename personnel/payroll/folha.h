#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payroll/run_inputs.h"
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
    RunInputs inputs;
    PayrollEvents events;
    PaySheet sheet;
    bool isRecorded = false;
    std::optional<std::string> bytes;      ///< of the file as it was read; nullopt where none stood
    std::vector<std::string> unread = {};  ///< its lines that say no event; recording keeps them
    /// Of a recorded month: what it comes to now; nullopt where it cannot be computed any more.
    std::optional<PaySheet> now = {};
};

/// An employee's month, or what keeps it from being computed.
struct PayrollGlance {
    enum class Lack { Nothing, Card, FirstInstalment, Period, Salary, Contract };

    Lack lack = Lack::Nothing;  ///< the first of them; of a recorded month nothing
    std::optional<OpenPayroll> payroll = {};
};

/// Whether a recorded month, recorded again, would have other amounts, or could not be computed.
[[nodiscard]] bool hasMovedOn(const OpenPayroll& payroll);

/// What opens beside the payroll screen: the vacation periods of an employee. Returns when it is
/// closed.
struct FolhaDesk {
    std::function<void(const Employee&)> showPeriods = [](const Employee&) {};
};

/// The payroll screen: computes, records and reopens the months of a company's employees. A command
/// that is refused or fails leaves every file as it was.
class Folha {
  public:
    /// `legalFolder` has the delivered tables.
    Folha(const Workplace& at, std::filesystem::path legalFolder, FolhaDesk desk = {})
        : at_(at), legalFolder_(std::move(legalFolder)), desk_(std::move(desk)) {}

    /// Reads what all payrolls of a run and month need. False, and told, when something cannot be
    /// read.
    [[nodiscard]] bool load(WorkMonth month, PayrollRun run = PayrollRun::Month);
    [[nodiscard]] PayrollRun run() const { return run_; }
    [[nodiscard]] const MonthSettings& month() const { return month_; }
    [[nodiscard]] const PayrollSettings& settings() const { return settings_; }
    /// What it computes by; lives as long as this object, until it loads again.
    [[nodiscard]] PayrollLaw law() const { return {tables_, settings_}; }
    /// Sentences on tables that have no line of the month's own.
    [[nodiscard]] std::vector<std::string> warnings() const;

    /// The month of an employee; `names` are those in the folder. Throws FileFault.
    [[nodiscard]] PayrollGlance glance(const Employee& employee, const FolderNames& names) const;
    /// Shows it and asks nothing; what cannot be read is told, and then nothing is shown.
    PayrollGlance::Lack show(const Employee& employee);

    enum class Opening { Opened, ToTimeCard, Refused };
    /// Computes the run of an employee, or takes it as it is recorded. Where a month has no card it
    /// asks whether to go there; without a salary, or the first instalment of a 13th for its
    /// second, it refuses.
    [[nodiscard]] Opening open(const Employee& employee);
    [[nodiscard]] const std::optional<OpenPayroll>& shown() const { return shown_; }
    /// Computes what is shown anew, with these amounts typed over.
    [[nodiscard]] bool compute(const TypedAmounts& typed);
    /// Whether amounts were typed since the month that is shown was computed or read.
    [[nodiscard]] bool isChanged() const;

    /// "Gravar Selecionado": records what is shown. The month's own run closes the month for the
    /// employee.
    [[nodiscard]] bool save();
    /// "GRAVAR TODOS": computes and records everyone whose run is open, in one batch. Told after
    /// each employee; false cancels, and nothing is recorded.
    using Progress = std::function<bool(int done, int total)>;
    [[nodiscard]] bool saveAll(const std::vector<Employee>& employees, const Progress& progress);
    /// Deletes the recorded payroll that is shown: it is open again.
    [[nodiscard]] bool reopen();

  private:
    /// Names of those who are left out.
    struct Unsaved {
        std::vector<std::string> without;
        std::vector<std::string> withoutFirst;
        std::vector<std::string> withoutPeriod;
        std::vector<std::string> paidByTheEnd;    ///< of their contract
        std::vector<std::string> activeAfterEnd;  ///< with a termination on record
        std::vector<std::string> recorded;
    };

    [[nodiscard]] Opening openPeriods(const Employee& employee);
    enum class Change { Record, Restore };
    [[nodiscard]] bool requireNotSettled(Change change);
    void requireSameVacation() const;
    [[nodiscard]] bool confirmSaving() const;
    [[nodiscard]] bool requireFirstInstalment() const;
    [[nodiscard]] bool requireNoSecondInstalment() const;

    [[nodiscard]] OpenPayroll inputsOf(const Employee& employee, const FolderNames& names) const;
    /// nullopt where the contract has no day in the month.
    [[nodiscard]] std::optional<PaySheet> sheetOf(const OpenPayroll& payroll,
                                                  const TypedAmounts& typed) const;
    [[nodiscard]] std::optional<std::string> bytesOf(const Employee& employee) const;
    [[nodiscard]] FileSystem::NewContent contentOf(const OpenPayroll& payroll) const;
    /// The payroll, and the first instalment of a 13th where it is paid with a vacation.
    [[nodiscard]] std::vector<FileSystem::NewContent> contentsOf(const OpenPayroll& payroll,
                                                                 const FolderNames& names) const;
    [[nodiscard]] EmployeeKey keyOf(const Employee& employee) const;
    void requireUnchanged() const;
    [[nodiscard]] bool computeAll(const std::vector<Employee>& employees, const Progress& progress,
                                  std::vector<FileSystem::NewContent>& batch,
                                  Unsaved& unsaved) const;
    [[nodiscard]] bool confirmLeftOut(const Unsaved& unsaved, bool hasBatch) const;

    Workplace at_;
    std::filesystem::path legalFolder_;
    FolhaDesk desk_;
    PayrollRun run_ = PayrollRun::Month;
    MonthSettings month_;
    mutable SettingsByMonth months_;  ///< of months that a glance looks back to
    LegalTables tables_;
    PayrollSettings settings_;
    PayrollEvents companyEvents_;
    std::optional<OpenPayroll> shown_;
    std::string asShown_;  ///< what the file of the sheet would hold, before anything is typed
};

}  // namespace winvrx
