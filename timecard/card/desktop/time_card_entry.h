#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <functional>
#include <memory>
#include <optional>

namespace winvrx {

class RotationCalendar;

/// Opens the leaves, of the employee in hand where there is one, over a window.
using LeavesOpener = std::function<void(const Workplace& at, QWidget* parent,
                                        const std::optional<EmployeeCode>& inHand)>;

/// Opens the rotations, the mirrors or the summary of the hours over a window.
using ScreenOpener = std::function<void(QWidget* parent)>;

/// What the time card's window leads on to.
struct TimeCardDesk {
    std::shared_ptr<const RotationCalendar> rotation;
    LeavesOpener openLeaves;
    ScreenOpener openRotation;
    ScreenOpener openMirrors;
    ScreenOpener openSummary;
};

/// Opens the time card, on `inHand` where an employee is chosen, and returns when it is closed.
void openTimeCard(const Workplace& at, const TimeCardDesk& desk, QWidget* parent,
                  const std::optional<EmployeeCode>& inHand = std::nullopt);

/// The time card's command of the main window.
[[nodiscard]] MenuEntry timeCardEntry(const Workplace& at, const TimeCardDesk& desk);

}  // namespace winvrx
