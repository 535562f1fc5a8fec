#pragma once

#include "timecard/month/month_settings.h"

#include <array>
#include <string>
#include <string_view>

namespace winvrx {

/// The numbers of the work month's screen as they are typed.
struct MonthNumbers {
    std::string minimumPercent;
    std::string maximumPercent;
    std::string nightMinimumPercent;
    std::string nightMaximumPercent;
    std::string threshold;
    std::string closingDay;

    [[nodiscard]] bool operator==(const MonthNumbers&) const = default;
};

/// One typed number: the line of the record that it goes to, what the screen calls it, and what may
/// be typed.
struct MonthNumberField {
    std::string MonthNumbers::*typed;
    MonthLine line;
    std::string_view caption;
    std::string_view wanted;

    /// False, and nothing put, when what was typed is none of the wanted.
    [[nodiscard]] bool put(MonthSettings& settings, const MonthNumbers& numbers) const {
        return take(settings, line, numbers.*typed);
    }
};

inline constexpr std::string_view kWantedPercent = "um número de 0 a 999";
static_assert(kHighestPercent == 999 && kHighestClosingDay == 31);

inline constexpr std::array kMonthNumberFields = {
    MonthNumberField{&MonthNumbers::minimumPercent, MonthLine::MinimumPercent,
                     "Hora Extra Índice Mínimo:", kWantedPercent},
    MonthNumberField{&MonthNumbers::maximumPercent, MonthLine::MaximumPercent,
                     "Hora Extra Índice Máximo:", kWantedPercent},
    MonthNumberField{&MonthNumbers::nightMinimumPercent, MonthLine::NightMinimumPercent,
                     "Hora Extra Noturna Mínima:", kWantedPercent},
    MonthNumberField{&MonthNumbers::nightMaximumPercent, MonthLine::NightMaximumPercent,
                     "Hora Extra Noturna Máxima:", kWantedPercent},
    MonthNumberField{&MonthNumbers::threshold, MonthLine::Threshold, "Horas",
                     "um número de 0 a 24, como 2, 1,5 ou 01:30"},
    MonthNumberField{&MonthNumbers::closingDay, MonthLine::ClosingDay,
                     "Iníciar todo dia:", "um número de 1 a 31"},
};

[[nodiscard]] MonthNumbers numbersOf(const MonthSettings& settings);

/// `settings` with what was typed, as far as it can be read.
[[nodiscard]] MonthSettings withReadable(MonthSettings settings, const MonthNumbers& numbers);
/// `settings` with what was typed. Throws Fault, naming the first number that cannot be read.
[[nodiscard]] MonthSettings withNumbers(MonthSettings settings, const MonthNumbers& numbers);

}  // namespace winvrx
