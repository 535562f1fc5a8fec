#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_list.h"
#include "output/cards/card_run.h"
#include "output/stocks/card_alignment.h"
#include "output/stocks/card_rows.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kCartaoTitle = "CARTÃO PONTO";

/// The time-card printing screen.
///
/// Prints the cards of those whom the list shows, in file order. The month is read once a run, a
/// card's own records when its turn comes. A failed card ends the run; cards already printed stay
/// printed.
class Cartao {
  public:
    /// `alignment` outlives the screen.
    Cartao(const Workplace& at, const PrintingDesk& desk, const AlignmentMemory& alignment);

    /// Reads company, employees, work month, stock, printer and what the screen remembers again.
    void load();
    /// Puts what the screen remembers of the choices on the disk, if it changed. False when it
    /// could not be written.
    bool remember();

    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const Company& company() const { return company_; }
    /// The stock's display name; empty when none is chosen.
    [[nodiscard]] std::string stockLabel() const;
    /// Empty stands for the system's default printer.
    [[nodiscard]] const std::string& printerName() const { return printer_; }
    [[nodiscard]] std::optional<WorkMonth> month() const { return month_; }

    [[nodiscard]] PrintChoices& choices() { return choices_; }

    /// The header block of the card of the employee at `position`; empty when nobody is selected
    /// or no work month is chosen.
    [[nodiscard]] std::string headerPreview(std::optional<std::size_t> position) const;

    /// "Imprimir >": the card of the selected employee. True when it was printed.
    [[nodiscard]] bool printOne(std::optional<std::size_t> position, const PrintRun& run);
    /// "Imprimir >>": every card of the list; asks whether those of employees who were inactive
    /// before the month or are admitted after it are meant too. True when all were printed.
    [[nodiscard]] bool printAll(const PrintRun& run);

  private:
    [[nodiscard]] bool isShown(std::optional<std::size_t> position) const {
        return position && list_.isShown(*position);
    }
    [[nodiscard]] bool requireChoices(bool anyEmployee, const PrintRun& run);
    [[nodiscard]] bool print(const std::vector<Employee>& people, const PrintRun& run);
    [[nodiscard]] CardBatch batchOf(const std::vector<Employee>& people) const;
    /// The work month, which is chosen, with what its cards have in common.
    [[nodiscard]] CardRunMonth runMonth() const;

    Workplace at_;
    PrintingDesk desk_;
    const AlignmentMemory& alignment_;
    PrintChoices choices_;
    PrinterMemory remembered_;
    EmployeeList list_;
    Company company_;
    std::optional<WorkMonth> month_;
    const CardStock* stock_ = nullptr;
    std::string printer_;
};

}  // namespace winvrx
