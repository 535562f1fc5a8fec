#pragma once

#include "timecard/month/month_settings.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// The numbers of the work month's screen as they are typed.
struct MonthNumbers {
    std::string minimumPercent;
    std::string maximumPercent;
    std::string nightMinimumPercent;
    std::string nightMaximumPercent;
    std::string thresholdHours;
    std::string closingDay;

    [[nodiscard]] bool operator==(const MonthNumbers&) const = default;
};

/// One typed number: where it goes, which values it takes and what the screen calls it.
struct MonthNumberField {
    std::string MonthNumbers::*typed;
    int OvertimeRules::*rule;  ///< nullptr for the closing day
    int lowest;
    int highest;
    std::string_view caption;

    [[nodiscard]] int valueIn(const MonthSettings& settings) const {
        return rule ? settings.overtime.*rule : settings.closingDay;
    }
    void put(MonthSettings& settings, int value) const {
        (rule ? settings.overtime.*rule : settings.closingDay) = value;
    }
    /// nullopt when what was typed is no number of the range.
    [[nodiscard]] std::optional<int> valueOf(const MonthNumbers& numbers) const;
    /// "um número de 0 a 999"
    [[nodiscard]] std::string wanted() const;
};

inline constexpr std::array kMonthNumberFields = {
    MonthNumberField{&MonthNumbers::minimumPercent, &OvertimeRules::minimumPercent, 0,
                     kHighestPercent, "Hora Extra Índice Mínimo:"},
    MonthNumberField{&MonthNumbers::maximumPercent, &OvertimeRules::maximumPercent, 0,
                     kHighestPercent, "Hora Extra Índice Máximo:"},
    MonthNumberField{&MonthNumbers::nightMinimumPercent, &OvertimeRules::nightMinimumPercent, 0,
                     kHighestPercent, "Hora Extra Noturna Mínima:"},
    MonthNumberField{&MonthNumbers::nightMaximumPercent, &OvertimeRules::nightMaximumPercent, 0,
                     kHighestPercent, "Hora Extra Noturna Máxima:"},
    MonthNumberField{&MonthNumbers::thresholdHours, &OvertimeRules::thresholdHours, 0,
                     kHighestThreshold, "Horas"},
    MonthNumberField{&MonthNumbers::closingDay, nullptr, 1, kHighestClosingDay,
                     "Iníciar todo dia:"},
};

[[nodiscard]] MonthNumbers numbersOf(const MonthSettings& settings);

/// `settings` with what was typed. Throws Fault, naming the first number that is none of its range.
[[nodiscard]] MonthSettings withNumbers(MonthSettings settings, const MonthNumbers& numbers);

}  // namespace winvrx
