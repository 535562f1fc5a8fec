#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/register/employee.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace winvrx {

class Browser;
class ReportEngine;

/// What the screens of the employer's side of the payroll work with. All outlive the entry.
struct EmployerDesk {
    std::filesystem::path legalFolder;  ///< of the delivered tables
    Browser& browser;
    ReportEngine& engine;
    /// Shows the end of the employee's contract and returns when it is closed.
    std::function<void(QWidget* parent, const Employee& employee)> openTermination;
};

/// Each opens its screen and returns when it is closed.
void openLegalTables(const Workplace& at, const std::filesystem::path& legalFolder,
                     QWidget* parent);
void openPayrollOptions(const Workplace& at, const EmployerDesk& desk, QWidget* parent);
void openPayrollFacts(const Workplace& at, const EmployerDesk& desk, QWidget* parent,
                      const std::optional<EmployeeCode>& inHand = std::nullopt);
void openDomesticGuide(const Workplace& at, const EmployerDesk& desk, QWidget* parent);

/// The commands of the main window: "Tabelas Legais" and "Opções da Folha", from where the others
/// are reached.
[[nodiscard]] MenuEntries employerEntries(const Workplace& at, const EmployerDesk& desk);

}  // namespace winvrx
