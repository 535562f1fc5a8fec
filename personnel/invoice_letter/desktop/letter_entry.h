#pragma once

#include "foundation/desk/command.h"

class QWidget;

namespace winvrx {

class ReportEngine;

/// Opens the correction letters on the folder of the user's downloads, and returns when the window
/// is closed.
void openCorrectionLetters(const Workplace& at, ReportEngine& engine, QWidget* parent);

}  // namespace winvrx
