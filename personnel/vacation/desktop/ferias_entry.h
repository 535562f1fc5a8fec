#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "personnel/vacation/vacation_notice.h"

#include <functional>
#include <optional>

namespace winvrx {

/// What the vacations work with beside the workplace.
struct FeriasEntryDesk {
    PaperDesk papers;
    /// The net total of the vacation pay recorded in a month; nullopt where none is.
    std::function<std::optional<Money>(const EmployeeKey& key, WorkMonth month)> netPaid;
    /// Shows what is provided for in a month.
    std::function<void(WorkMonth month)> showProvisions;
};

/// Opens the vacation periods, on `inHand` where an employee is chosen, and returns when the window
/// is closed.
void openVacations(const Workplace& at, const FeriasEntryDesk& desk, QWidget* parent,
                   const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The vacations' command of the main window; says what is due soon.
[[nodiscard]] MenuEntry vacationsEntry(const Workplace& at, const FeriasEntryDesk& desk);

}  // namespace winvrx
