#pragma once

#include "foundation/desk/command.h"
#include "personnel/payroll/settings_file.h"

#include <string>

namespace winvrx {

inline constexpr std::string_view kOptionsTitle = "Opções da Folha";

/// The screen of how the selected company computes its payroll.
class FolhaOpcoes {
  public:
    explicit FolhaOpcoes(const Workplace& at) : at_(at) {}

    /// Reads them. False, and told, when they cannot be read.
    [[nodiscard]] bool load();
    /// The choice of the setting at a place of payrollSettings().
    [[nodiscard]] std::size_t choice(std::size_t setting) const;
    void choose(std::size_t setting, std::size_t choice);
    /// Chooses what is usual.
    void chooseUsual() { chosen_ = {}; }
    [[nodiscard]] bool isChanged() const { return chosen_ != recorded_.settings; }
    /// Lines of the record that say no setting; they are kept.
    [[nodiscard]] const std::vector<std::string>& unread() const { return recorded_.unread; }
    /// Asks, naming each setting that changes, and records. Refuses when another machine changed
    /// them meanwhile.
    [[nodiscard]] bool save();
    /// Asks before changed choices are left behind. True when they may go.
    [[nodiscard]] bool confirmDiscard();

  private:
    [[nodiscard]] std::string changesText() const;

    Workplace at_;
    CompanyPayrollSettings recorded_;
    PayrollSettings chosen_;
};

}  // namespace winvrx
