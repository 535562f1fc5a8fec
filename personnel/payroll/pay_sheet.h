#pragma once

#include "personnel/payroll/pay_sheet_case.h"
#include "personnel/payroll/payroll_event.h"

#include <map>
#include <span>
#include <vector>

// The payroll of an employee and month, event by event: what the screen shows, the file keeps and
// the receipt prints.

namespace winvrx {

/// Amounts that the operator typed over what is computed, by event.
using TypedAmounts = std::map<EventCode, Money>;

struct PayLine {
    PayrollEvent event;
    Money amount;
    bool isTyped = false;
    Memo memo = {};
};

struct PaySheet {
    std::vector<PayLine> lines;  ///< in the order of the computation
    Money base;                  ///< of the month's INSS, IRRF and FGTS
    Money fgtsBase;              ///< with vacation and 13th
    Money credits;
    Money debits;
    Money net;

    /// nullptr where the event is not on the sheet.
    [[nodiscard]] const PayLine* find(std::string_view code) const;
    /// Zero where the event is not on the sheet.
    [[nodiscard]] Money amountOf(std::string_view code) const;
};

/// Taxed earnings of a payroll, in a month less the hours that were lost.
[[nodiscard]] Money taxedPay(const PaySheet& sheet, PayrollKind payroll);

/// Bases and totals from the lines.
void addUp(PaySheet& sheet);

/// The month as the reference numbers of the events have it: 001 hours a month, 002 per cent, 003
/// above zero where work is dangerous, 004 children, 005 to 009 rates, 025 per cent, 031 per cent
/// of the salary or 1 for that of `month`.
[[nodiscard]] MonthPayCase withReferences(MonthPayCase month,
                                          std::span<const PayrollEventLine> events);

/// Which events of `events` the month, a vacation and a 13th salary have, where there are such,
/// each with its amount, by the reference numbers. An event that nobody computes has what was
/// typed, or nothing.
[[nodiscard]] PaySheet paySheet(const PayrollLaw& law, const PaySheetCase& one,
                                std::span<const PayrollEventLine> events,
                                const TypedAmounts& typed = {});
}  // namespace winvrx
