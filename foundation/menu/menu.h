#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/menu_needs.h"
#include "foundation/desk/user_settings.h"
#include "foundation/register/company_register.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// In the data folder: the earlier folders, one a line, whose list was imported or discarded and
/// could not be deleted yet.
inline constexpr std::string_view kEarlierNoteName = "BaseAnterior";

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
    Menu(const Workplace& at, const Drives& drives, SingleInstance& instance,
         UserSettings& settings, std::string programFolder);

    /// The first step of start-up: false, with its message, when another copy is running.
    [[nodiscard]] bool claimRun();
    /// Start-up from the drive letter up to the company list.
    void load();
    /// Selects the company used last, or the only one.
    void selectAsBefore();
    /// The last step of start-up: offers the data of an earlier installation. True when it was
    /// imported.
    bool offerEarlierData();

    /// Reads the company list again and drops the selection when its company is gone.
    void reloadCompanies();
    [[nodiscard]] const std::vector<CompanyLine>& companies() const { return companies_; }
    /// The selected company's line; nullptr when none is selected.
    [[nodiscard]] const CompanyLine* selected() const;

    /// A click in the list: the work month has to be chosen again. The company in use stays when
    /// the month that was chosen for it cannot be taken back.
    void select(std::size_t position);
    void setShiftFilter(ShiftFilter filter) { at_.session.shiftFilter = filter; }

    /// Moves to the data folder of another drive and remembers the letter for this run. Drive and
    /// company stay when that fails.
    void useDrive(char letter);
    [[nodiscard]] std::vector<char> driveLetters() const { return drives_.letters(); }

    /// Runs the guards of a screen, with their messages. True when it may open.
    [[nodiscard]] bool require(MenuNeeds needs);

    /// Keeps the company and the month in use for the next start.
    void remember();

    void exit();

  private:
    [[nodiscard]] char rememberedLetter();
    void readDriveLetter();
    void openFolder(char letter);
    [[nodiscard]] bool openShare(char letter);
    void useFolder(const DataFolder& folder);
    /// Leaves them to the next start while another computer writes.
    void removeLeftovers(const std::filesystem::path& folder);
    void removeHeld(const std::filesystem::path& file);
    [[nodiscard]] bool offerEarlier(std::string_view literal);
    void importEarlier(const std::filesystem::path& earlier);
    void importList(const std::filesystem::path& earlier, const CompanyCode& company);
    void removeEarlier(const std::filesystem::path& earlier, std::string_view literal);
    [[nodiscard]] std::filesystem::path localFolder(char letter) const;

    Workplace at_;
    const Drives& drives_;
    SingleInstance& instance_;
    UserSettings& settings_;
    std::string programFolder_;
    std::vector<CompanyLine> companies_;
    std::set<std::filesystem::path> usedFolders_;  ///< which files of the run are to leave
    bool shareIsMissing_ = false;                  ///< and the operator knows
};

}  // namespace winvrx
