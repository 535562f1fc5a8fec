#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/register/employee.h"

#include <functional>
#include <optional>

namespace winvrx {

class ReportEngine;
class TextEditor;

/// Where the month's absences and the end of a contract are shown. All outlive the entry.
struct LeavesDesk {
    ReportEngine& engine;
    TextEditor& editor;
    /// Returns when the figures of the employee's end of contract are closed.
    std::function<void(QWidget* parent, const Employee& employee)> openTermination;
};

/// Opens the leave screen, on `inHand` where an employee is chosen, and returns when it is closed.
void openLeaves(const Workplace& at, const LeavesDesk& desk, QWidget* parent,
                const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The leaves' command of the main window.
[[nodiscard]] MenuEntry leavesEntry(const Workplace& at, const LeavesDesk& desk);

}  // namespace winvrx
