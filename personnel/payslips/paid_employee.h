#pragma once

#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "personnel/payroll/payroll_runs.h"
#include "personnel/payroll/sheet_dues.h"

#include <string>
#include <vector>

// What the papers of a payroll are written from.

namespace winvrx {

struct PaidEmployee {
    Employee employee;
    PaySheet sheet;
    SheetDues dues;
};

/// The heading of every paper.
struct PaperHeading {
    Company company;
    WorkMonth month{};
    PayrollRun run = PayrollRun::Month;
    Money inssCeiling;

    /// "março/2026", and of another run than the month's its caption.
    [[nodiscard]] std::string period() const;
};

/// The events that have an amount, in the order of the computation.
[[nodiscard]] std::vector<const PayLine*> paidLines(const PaySheet& sheet);

}  // namespace winvrx
