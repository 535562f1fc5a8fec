#pragma once

#include "foundation/values/text.h"
#include "personnel/payroll/pay_sheet.h"

namespace winvrx::testing {

/// The default events, with the reference numbers that say what `month` says itself.
inline PayrollEvents eventsSaying(const MonthPayCase& month) {
    const std::map<std::string, Fraction> references = {{"001", month.divisor},
                                                        {"002", month.unhealthyPercent},
                                                        {"003", month.isDangerous},
                                                        {"004", month.children},
                                                        {"005", month.minimum.percent},
                                                        {"006", month.maximum.percent},
                                                        {"008", month.minimum.nightPercent},
                                                        {"009", month.maximum.nightPercent},
                                                        {"025", month.voucherPercent},
                                                        {"031", month.advancePercent}};
    PayrollEvents events = defaultEvents({});
    for (PayrollEventLine& line : events)
        if (const auto said = references.find(line.record.code); said != references.end()) {
            line.record.reference = padded(static_cast<int>(truncated(said->second)), 3);
            line = lineOf(line.record, line.bytes);
        }
    return events;
}

}  // namespace winvrx::testing
