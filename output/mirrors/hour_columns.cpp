#include "output/mirrors/hour_columns.h"

#include "foundation/values/text.h"
#include "output/stocks/card_rows.h"
#include "timecard/hours/hours_summary.h"

namespace winvrx {

namespace {

using enum HourCategory;

std::function<std::chrono::seconds(const HourTotals&)> figure(HourCategory category) {
    return [category](const HourTotals& totals) { return totals[category]; };
}

std::string percent(HourCategory category, const OvertimeRules& rules) {
    return std::to_string(rules.*percentOf(category));
}

/// "Extra 50%"; what is longer than the column goes without the blank.
std::string rateTitle(std::string_view word, std::string_view rate, std::size_t width) {
    const std::string blank = word.size() + rate.size() + 2 <= width ? " " : "";
    return std::string(word).append(blank).append(rate) + "%";
}

HourColumn ofRate(std::string_view word, HourCategory category, const OvertimeRules& rules,
                  std::size_t width) {
    return {rateTitle(word, percent(category, rules), width), width, figure(category)};
}

/// Extra hours of both rates: "Ext 50/100%", or "Extra 100%" where there is one only.
std::string bothRates(std::string_view word, std::string_view shortWord, HourCategory least,
                      HourCategory most, const OvertimeRules& rules, std::size_t width) {
    const std::string high = percent(most, rules);
    if (rules.mode == OvertimeMode::SingleLevel) return rateTitle(word, high, width);
    return rateTitle(shortWord, percent(least, rules) + "/" + high, width);
}

}  // namespace

std::vector<HourColumn> dayColumns(const OvertimeRules& rules) {
    constexpr std::size_t kWidth = 11;
    return {{"Hora Normal", kWidth, figure(NormalDay)},
            {" H Noturna", kWidth, figure(NormalNight)},
            {bothRates("Extra", "Ext", ExtraMinimum, ExtraMaximum, rules, kWidth), kWidth,
             [](const HourTotals& day) { return day.extra() - day.nightExtra(); }},
            {bothRates("NotExtr", "Not", NightExtraMinimum, NightExtraMaximum, rules, kWidth),
             kWidth, [](const HourTotals& day) { return day.nightExtra(); }},
            {"HorasFalta", 10, figure(Missing)}};
}

std::vector<HourColumn> summaryColumns(const OvertimeRules& rules) {
    return {{" H Padr.", 8, figure(Standard)},
            ofRate("Extra", ExtraMinimum, rules, 9),
            ofRate("Extra", ExtraMaximum, rules, 10),
            {" H Noturna", 11, figure(NormalNight)},
            ofRate("NotExtr", NightExtraMinimum, rules, 11),
            ofRate("NotExtr", NightExtraMaximum, rules, 11),
            {"H Falta", 8, figure(Missing)},
            {"Hora Normal", 11, figure(NormalDay)}};
}

std::string workedTimes(const MirrorDay& day) {
    if (!day.line.hasTimes()) return " " + day.situation;
    constexpr std::size_t kTimeWidth = 5;
    std::string text;
    text.reserve(kPunchTimes.size() * (kTimeWidth + 1));
    for (const auto time : kPunchTimes) {
        if (!text.empty()) text += ' ';
        appendFitted(text, day.line.*time, kTimeWidth);
    }
    return text;
}

}  // namespace winvrx
