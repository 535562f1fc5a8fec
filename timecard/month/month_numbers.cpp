#include "timecard/month/month_numbers.h"

#include "foundation/values/faults.h"

namespace winvrx {

MonthNumbers numbersOf(const MonthSettings& settings) {
    MonthNumbers numbers;
    for (const MonthNumberField& field : kMonthNumberFields)
        numbers.*field.typed = textOf(settings, field.line);
    return numbers;
}

MonthSettings withReadable(MonthSettings settings, const MonthNumbers& numbers) {
    for (const MonthNumberField& field : kMonthNumberFields)
        (void)field.put(settings, numbers);
    return settings;
}

MonthSettings withNumbers(MonthSettings settings, const MonthNumbers& numbers) {
    for (const MonthNumberField& field : kMonthNumberFields) {
        if (field.put(settings, numbers)) continue;
        const std::string caption(field.caption.substr(0, field.caption.find(':')));
        throw Fault("not a number of its range: " + caption + " " + numbers.*field.typed,
                    caption + ": informe " + std::string(field.wanted) + ".");
    }
    return settings;
}

}  // namespace winvrx
