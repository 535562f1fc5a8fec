#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "personnel/vacation/vacation_notice.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace winvrx {

class ReportEngine;

/// What the payroll works with beside the workplace. All outlive the entry.
struct PayrollDesk {
    ReportEngine& engine;
    PaperDesk papers;
    std::filesystem::path legalFolder;  ///< of the delivered tables
    /// Returns when the time card of the employee is closed.
    std::function<void(QWidget* parent, const std::optional<EmployeeCode>& inHand)> openTimeCard;
    /// Return when the company's options, and what the payroll needs of the employee, are closed.
    std::function<void(QWidget* parent)> openOptions;
    std::function<void(QWidget* parent, const std::optional<EmployeeCode>& inHand)> openFacts;
    /// Returns when the vacation periods of the employee are closed.
    std::function<void(QWidget* parent, const std::optional<EmployeeCode>& inHand)> openVacations;
};

/// Opens the payroll's screen and returns when it is closed.
void openPayroll(const Workplace& at, const PayrollDesk& desk, QWidget* parent);

/// The payroll's command of the main window.
[[nodiscard]] MenuEntry payrollEntry(const Workplace& at, const PayrollDesk& desk);

}  // namespace winvrx
