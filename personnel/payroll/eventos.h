#pragma once

#include "foundation/desk/list_commands.h"
#include "personnel/payroll/payroll_event.h"

#include <optional>

namespace winvrx {

/// What the check box of the kind says.
inline constexpr std::string_view kEarningCaption = "Crédito";
inline constexpr std::string_view kDeductionCaption = "Débito";

/// The catalogue of payroll events, of the selected company or of one of its employees. Where no
/// list is on record it shows what holds instead, and records it with the first change.
class Eventos : public ListCommands<PayrollEvent> {
  public:
    /// `rates` are the month's, for the names of the events of overtime.
    Eventos(const Workplace& at, const OvertimeRules& rates,
            std::optional<EmployeeCode> employee = std::nullopt);

    [[nodiscard]] std::string newRecordTitle() const override { return "Novo evento"; }

    /// Includes an event under the lowest free code, with the flags that the answers give.
    [[nodiscard]] bool includeNew(const NewEvent& said);
    /// "RESTAURAR PADRÃO": the default events take the list's place. Asks first.
    [[nodiscard]] bool restoreDefault();

  protected:
    [[nodiscard]] Lines read() const override;
    void write(const Lines& lines) override { file().save(lines); }
    void reread() override;
    [[nodiscard]] ListRow rowOf(const PayrollEvent& event) const override;
    [[nodiscard]] PayrollEvent completed(const PayrollEvent& typed) const override;
    [[nodiscard]] bool requireAcceptable(const PayrollEvent& typed, const Line* before) override;
    [[nodiscard]] Message inclusionOf(const PayrollEvent& event) const override;

  private:
    [[nodiscard]] LineFile<PayrollEvent> file() const;

    OvertimeRules rates_;
    std::optional<EmployeeCode> employee_;
};

}  // namespace winvrx
