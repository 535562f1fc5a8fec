#pragma once

#include "personnel/pay/card_history.h"
#include "personnel/pay/termination_pay.h"
#include "personnel/payroll/month_inputs.h"
#include "personnel/payroll/pay_sheet.h"
#include "personnel/termination/termination_record.h"

#include <filesystem>
#include <string>
#include <vector>

// The figures of the end of an employee's contract, line by line: for the screen, its page and the
// termination statement.

namespace winvrx {

/// What the records say of it.
struct TerminationInputs {
    TerminationRecord record;
    EmployeeMonth lastMonth = {};  ///< the month of the last day worked
    PayrollEvents events = {};
    TypedAmounts typed = {};   ///< over the last month's recorded payroll
    CardHistory history = {};  ///< of the last twelve months
    int overduePeriods = 0;    ///< vacations earned and not taken
    int doubledPeriods = 0;    ///< of these, past the limit of the concession
    int overdueDays = 0;       ///< left of periods partly taken; past the limit counted twice
    PaidBeforeTheEnd paid = {};
    AcquisitionCount periods = {};  ///< of the vacations
};

struct TerminationLine {
    std::string words;
    std::string quantity;  ///< "15 dias", "7/12 avos"; empty where there is none
    Money amount;
    Memo memo;
};

struct TerminationSheet {
    TerminationRecord record;
    Employee employee;
    Money salary;
    TerminationPay pay;  ///< the figures one by one
    std::vector<TerminationLine> credits = {};
    std::vector<TerminationLine> debits = {};
    std::vector<TerminationLine> deposits =
        {};  ///< FGTS and its fine: into the account, not paid out
    Money gross = {};
    Money deductions = {};
    Money net = {};  ///< gross − deductions; below zero where more is taken off than is due
    std::vector<std::string> remarks = {};  ///< what the operator should know of the figures
};

/// Throws LegalTableFault for dates before the tables, Fault for an employee without a salary.
[[nodiscard]] TerminationSheet terminationSheet(const PayrollLaw& law,
                                                const TerminationInputs& inputs);

/// Reads everything and computes. Throws Fault, in words, where no termination is on record or
/// something of it is missing; LegalTableFault, FileFault. `legalFolder` has the delivered tables.
[[nodiscard]] TerminationSheet loadTerminationSheet(const Store& store,
                                                    const std::filesystem::path& legalFolder,
                                                    const CompanyCode& company,
                                                    const Employee& employee);

}  // namespace winvrx
