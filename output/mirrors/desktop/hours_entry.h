#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"

#include <functional>
#include <memory>

namespace winvrx {

class Browser;
class Printers;
class ReportEngine;
class RotationCalendar;
class TextEditor;

/// What the hours reports open things with. All outlive the entry.
struct HoursEntryDesk {
    TextEditor& editor;
    Browser& browser;
    ReportEngine& engine;
    const Printers& printers;
    std::shared_ptr<const RotationCalendar> rotation;
};

/// Opens the screen of the hours reports.
void openHoursReports(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent);

/// Shows the work month at a glance: bars of everyone's hours.
void showHoursSummary(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent);

/// The commands of the main window: the reports, and the mirror, which the same screen prints.
[[nodiscard]] MenuEntries hoursEntries(const Workplace& at, const HoursEntryDesk& desk);

}  // namespace winvrx
