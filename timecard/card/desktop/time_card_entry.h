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

/// Opens the rotations over a window.
using RotationOpener = std::function<void(QWidget* parent)>;

/// Opens the mirrors and the summary of the hours over a window.
using MirrorOpener = std::function<void(QWidget* parent)>;

/// The time card's command of the main window. Its window leads on to the leaves, the rotations and
/// the mirrors.
[[nodiscard]] MenuEntry timeCardEntry(const Workplace& at,
                                      std::shared_ptr<const RotationCalendar> rotation,
                                      LeavesOpener openLeaves, RotationOpener openRotation,
                                      MirrorOpener openMirrors);

}  // namespace winvrx
