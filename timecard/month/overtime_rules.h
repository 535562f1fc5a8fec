#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// Which overtime percentages a month uses.
enum class OvertimeMode { BothLevels, SingleLevel };

/// "Opções de Formatação do Resultado Resumo Horas:".
enum class TotalsFormat { HoursAndMinutes, DecimalHours };

/// What is added to the wage of an extra hour, 50 to 100 percent of it by custom (Constituição,
/// art. 7º, XVI: at least 50): a month's, or an employee's own.
struct OvertimePercents {
    int minimumPercent = 50;
    int nightMinimumPercent = 50;
    int maximumPercent = 100;
    int nightMaximumPercent = 100;

    [[nodiscard]] bool operator==(const OvertimePercents&) const = default;
};

/// All of them, in the order of the records.
inline constexpr std::array kPercents = {
    &OvertimePercents::minimumPercent, &OvertimePercents::nightMinimumPercent,
    &OvertimePercents::maximumPercent, &OvertimePercents::nightMaximumPercent};

inline constexpr int kHighestPercent = 999;

/// How extra hours are paid and how totals are shown. All but the percentages belongs to the month
/// alone.
struct OvertimeRules : OvertimePercents {
    /// The extra hours of a day are paid at the minimum up to `threshold` and at the maximum above.
    bool differentiatedPercent = false;
    OvertimeMode mode = OvertimeMode::BothLevels;
    TotalsFormat totalsFormat = TotalsFormat::HoursAndMinutes;
    std::chrono::seconds threshold = std::chrono::hours{2};

    [[nodiscard]] bool operator==(const OvertimeRules&) const = default;
};

/// The daily threshold as it is typed and recorded, from 0 to 24 hours: "2", "1,5" or "01:30".
[[nodiscard]] std::optional<std::chrono::seconds> parseThreshold(std::string_view text);
/// The shortest of these forms that says it exactly.
[[nodiscard]] std::string thresholdText(std::chrono::seconds threshold);

}  // namespace winvrx
