#pragma once

#include <array>
#include <type_traits>

namespace winvrx {

/// Which overtime percentages a month uses.
enum class OvertimeMode { BothLevels, SingleLevel };

/// "Opções de Formatação do Resultado Resumo Horas:".
enum class TotalsFormat { HoursAndMinutes, DecimalHours };

/// How extra hours are paid and how totals are shown: chosen for a month, and for an employee where
/// he has figures of his own. Percentages are what is added to the wage of an hour, 50 to 100 of it
/// by custom (Constituição, art. 7º, XVI: at least 50).
struct OvertimeRules {
    int minimumPercent = 50;
    int nightMinimumPercent = 50;
    int maximumPercent = 100;
    int nightMaximumPercent = 100;
    /// The extra hours of a day are paid at the minimum up to `thresholdHours` and at the maximum
    /// above.
    bool differentiatedPercent = false;
    OvertimeMode mode = OvertimeMode::BothLevels;
    TotalsFormat totalsFormat = TotalsFormat::HoursAndMinutes;
    int thresholdHours = 2;

    [[nodiscard]] bool operator==(const OvertimeRules&) const = default;
};

/// Highest values that the records take.
inline constexpr int kHighestPercent = 999;
inline constexpr int kHighestThreshold = 24;

/// One figure of the rules as the records keep it: a whole number from 0 to `highest`.
struct OvertimeFigure {
    int highest;
    int (*read)(const OvertimeRules&);
    void (*write)(OvertimeRules&, int);
};

template <auto Member>
[[nodiscard]] constexpr OvertimeFigure overtimeFigure(int highest) {
    using Value = std::remove_cvref_t<decltype(OvertimeRules{}.*Member)>;
    return {highest, [](const OvertimeRules& rules) { return static_cast<int>(rules.*Member); },
            [](OvertimeRules& rules, int value) { rules.*Member = static_cast<Value>(value); }};
}

/// All of them, in the order of the records.
inline constexpr std::array kOvertimeFigures = {
    overtimeFigure<&OvertimeRules::minimumPercent>(kHighestPercent),
    overtimeFigure<&OvertimeRules::nightMinimumPercent>(kHighestPercent),
    overtimeFigure<&OvertimeRules::maximumPercent>(kHighestPercent),
    overtimeFigure<&OvertimeRules::nightMaximumPercent>(kHighestPercent),
    overtimeFigure<&OvertimeRules::differentiatedPercent>(1),
    overtimeFigure<&OvertimeRules::mode>(1),
    overtimeFigure<&OvertimeRules::totalsFormat>(1),
    overtimeFigure<&OvertimeRules::thresholdHours>(kHighestThreshold),
};

}  // namespace winvrx
