#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <optional>

namespace winvrx {

class ReportEngine;
class TextEditor;

/// Where the month's absences are shown. Both outlive the entry.
struct LeavesDesk {
    ReportEngine& engine;
    TextEditor& editor;
};

/// Opens the leave screen, on `inHand` where an employee is chosen, and returns when it is closed.
void openLeaves(const Workplace& at, const LeavesDesk& desk, QWidget* parent,
                const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The leaves' command of the main window.
[[nodiscard]] MenuEntry leavesEntry(const Workplace& at, const LeavesDesk& desk);

}  // namespace winvrx
