#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/register/company_register.h"

#include <string>
#include <vector>

namespace winvrx {

/// The screens that the main window opens.
enum class MenuCommand {
    Companies,
    Employees,
    Shifts,
    TimeCard,
    PrintCards,
    CardSheet,
    WorkMonth,
    Rotation,
    Mirror,
    Leaves,
    Payroll,
    Documents,
    Contract,
    Labels,
    Backup,
    Restore,
    Internet,
    Help
};

/// Keeps a second copy of the program from starting. The claim ends with the process, however it
/// ends.
class SingleInstance {
  public:
    virtual ~SingleInstance() = default;
    /// False when another copy holds the claim.
    [[nodiscard]] virtual bool claim() = 0;
};

/// The main window's rules: start-up, the selected company, the guards before a screen opens, and
/// the clean-up at exit.
class Menu {
  public:
    /// `programFolder` is the folder that the program was started from, as the system writes it.
    Menu(const Workplace& at, const Drives& drives, SingleInstance& instance, Browser& browser,
         std::string programFolder);

    /// Start-up up to the company list; false when another copy is running.
    [[nodiscard]] bool start();
    /// The last step of start-up: offers the data of an earlier installation.
    void offerEarlierData();

    /// Reads the company list again and drops the selection when its company is gone.
    void reloadCompanies();
    [[nodiscard]] const std::vector<CompanyLine>& companies() const { return companies_; }
    /// The selected company's line; nullptr when none is selected.
    [[nodiscard]] const CompanyLine* selected() const;

    /// A click in the list: the work month has to be chosen again.
    void select(std::size_t position);
    void setShiftFilter(ShiftFilter filter) { at_.session.shiftFilter = filter; }

    /// Moves to the data folder of another drive and remembers the letter for this run.
    void useDrive(char letter);
    [[nodiscard]] std::vector<char> driveLetters() const { return drives_.letters(); }

    /// Runs the guards of a command, with their messages. True when its screen may open.
    [[nodiscard]] bool mayOpen(MenuCommand command);

    void openHelp();
    void exit();

  private:
    void readDriveLetter();
    void openFolder(char letter);
    /// Leaves them to the next start while another computer writes.
    void removeLeftovers(const std::filesystem::path& folder);
    void removeHeld(const std::filesystem::path& file);
    void importEarlier(const std::filesystem::path& earlier);
    void importList(const std::filesystem::path& earlier, const CompanyCode& company);
    void discardEarlier(const std::filesystem::path& earlier);
    [[nodiscard]] std::filesystem::path localFolder(char letter) const;

    Workplace at_;
    const Drives& drives_;
    SingleInstance& instance_;
    Browser& browser_;
    std::string programFolder_;
    std::vector<CompanyLine> companies_;
};

}  // namespace winvrx
