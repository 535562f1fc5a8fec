#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <memory>

namespace winvrx {

class RotationCalendar;

/// The time card's command of the main window.
[[nodiscard]] MenuEntry timeCardEntry(const Workplace& at,
                                      std::shared_ptr<const RotationCalendar> rotation);

}  // namespace winvrx
