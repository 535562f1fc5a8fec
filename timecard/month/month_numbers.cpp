#include "timecard/month/month_numbers.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

namespace winvrx {

std::optional<int> MonthNumberField::valueOf(const MonthNumbers& numbers) const {
    return parseWholeNumber(numbers.*typed, lowest, highest);
}

std::string MonthNumberField::wanted() const {
    return "um número de " + std::to_string(lowest) + " a " + std::to_string(highest);
}

MonthNumbers numbersOf(const MonthSettings& settings) {
    MonthNumbers numbers;
    for (const MonthNumberField& field : kMonthNumberFields)
        numbers.*field.typed = std::to_string(field.valueIn(settings));
    return numbers;
}

MonthSettings withNumbers(MonthSettings settings, const MonthNumbers& numbers) {
    for (const MonthNumberField& field : kMonthNumberFields) {
        const std::string caption(field.caption.substr(0, field.caption.find(':')));
        const auto value = field.valueOf(numbers);
        if (!value)
            throw Fault("not a number of its range: " + caption + " " + numbers.*field.typed,
                        caption + ": informe " + field.wanted() + ".");
        field.put(settings, *value);
    }
    return settings;
}

}  // namespace winvrx
