#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee.h"

#include <filesystem>

class QWidget;

namespace winvrx {

class ReportEngine;

/// Shows the figures of the employee's end of contract and returns when their screen is closed;
/// what is missing on record is told instead. `legalFolder` has the delivered tables.
void openTermination(const Workplace& at, ReportEngine& engine,
                     const std::filesystem::path& legalFolder, const Employee& employee,
                     QWidget* parent);

}  // namespace winvrx
