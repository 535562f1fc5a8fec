#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <functional>

namespace winvrx {

class ReportEngine;
class TextEditor;

/// Opens the rotations of the company and the work month; says what is missing.
void openRotations(const Workplace& at, ReportEngine& engine, TextEditor& editor, QWidget* parent);

/// Their command of the main window. `open` is the function above.
[[nodiscard]] MenuEntry rotationEntry(const Workplace& at, std::function<void(QWidget*)> open);

}  // namespace winvrx
