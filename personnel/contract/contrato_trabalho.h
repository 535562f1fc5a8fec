#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/word_processor.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_list.h"
#include "personnel/contract/booklet_box.h"
#include "personnel/contract/contract.h"
#include "report/print_calibration.h"
#include "report/printers.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// What the contract screen works with beside the desk. All outlive the screen.
struct ContractDesk {
    ReportEngine& engine;
    const Printers& printers;
    WordProcessor& writer;
    /// Where the texts of contracts lie, the office's own first.
    std::function<std::vector<std::filesystem::path>()> templateFolders;
};

/// The contract screen: records the contract of an employee, prints its box into the work booklet,
/// and hands its text to the word processor. A command that is refused or fails leaves every file
/// as it was.
class ContratoTrabalho {
  public:
    ContratoTrabalho(const Workplace& at, const ContractDesk& desk);

    /// Reads company and employees again; the employee chosen before stays. False, and told, when
    /// they cannot be read.
    bool load();
    [[nodiscard]] const Company& company() const { return company_; }
    [[nodiscard]] EmployeeList& list() { return list_; }
    /// The trials that end within fifteen days.
    [[nodiscard]] const std::string& endingTrials() const { return endingTrials_; }

    /// Loads the contract of the employee at `position` of the list; nullopt for nobody's. False,
    /// and told, when it cannot be read.
    bool select(std::optional<std::size_t> position);
    /// nullptr when there is none.
    [[nodiscard]] const Employee* selected() const { return list_.selected(); }
    [[nodiscard]] bool isRecorded() const { return bytes_.has_value(); }
    /// The contract on record, or what is proposed for one.
    [[nodiscard]] const Contract& contract() const { return contract_; }

    /// What speaks against the contract as typed, refused and doubtful.
    [[nodiscard]] Findings<Contract> findings(const Contract& typed) const;
    /// What the last command was refused for.
    [[nodiscard]] std::string Contract::*blamed() const { return blamed_; }

    [[nodiscard]] bool save(const Contract& typed);
    [[nodiscard]] bool remove();
    /// The box as typed, on the booklet's page; a preview shows the page behind it.
    [[nodiscard]] bool printBox(const Contract& typed, BookletPlace place, ReportOutput output);
    /// The recorded contract's full text, in the word processor.
    [[nodiscard]] bool showText(const Contract& typed);

    /// Of the chosen printer and the booklet.
    [[nodiscard]] PrintCalibration& calibration() { return calibration_; }
    /// Reads the chosen printer and its scale again. False, and told, when they cannot be read.
    bool loadPrinter();

    [[nodiscard]] Date today() const { return at_.clock.today(); }
    /// Asks before what is typed is left behind. True when the screen may go on.
    [[nodiscard]] bool confirmLeaving() { return at_.person.agrees(discardTyped()); }

  private:
    [[nodiscard]] EmployeeKey key() const;
    [[nodiscard]] bool refuse(const Message& message, std::string Contract::*blamed = nullptr);
    [[nodiscard]] bool requireEmployee();
    [[nodiscard]] bool requireSalary(const Contract& typed);
    [[nodiscard]] bool requireSound(const Contract& typed);
    [[nodiscard]] bool confirmSaving(const Contract& typed);
    void requireUnchanged() const;
    void readSelected();

    Workplace at_;
    ContractDesk desk_;
    Company company_;
    EmployeeList list_;
    std::string endingTrials_;
    Contract contract_;
    std::optional<std::string> bytes_;  ///< of the line on record
    std::string Contract::*blamed_ = nullptr;
    std::string printer_;
    PrintCalibration calibration_;
};

/// "Experiência de ANA até 20/03/2024", "2 experiências terminam até 30/03/2024"; empty where none
/// ends within fifteen days. Throws FileFault.
[[nodiscard]] std::string endingTrialsText(const Store& store, const CompanyCode& company,
                                           Date today);

}  // namespace winvrx
