#pragma once

#include "personnel/pay/legal_tables.h"
#include "personnel/pay/payroll_settings.h"

namespace winvrx {

/// What a computation goes by: the figures of the law and the company's choices. Both outlive it.
struct PayrollLaw {
    const LegalTables& tables;
    const PayrollSettings& settings;
};

}  // namespace winvrx
