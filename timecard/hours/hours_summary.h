#pragma once

#include "timecard/hours/hours.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// The percentage at which a category of extra hours is paid; nullptr for the other categories.
[[nodiscard]] int OvertimeRules::*percentOf(HourCategory category);

/// "Hora Extra 50%": the caption of a figure, with the percentage that holds.
[[nodiscard]] std::string captionOf(HourCategory category, const OvertimeRules& rules);

/// Why some minutes count where they count: "noturno, acima de 2 hs: 100%".
[[nodiscard]] std::string ruleText(const HourPart& part, const OvertimeRules& rules);

/// One line of a figure's explanation, as text.
struct ExplainedPart {
    std::string day;   ///< "05/ter/mar"
    std::string span;  ///< "22:10–05:00"; empty for what was not worked
    std::string length;
    std::string rule;

    [[nodiscard]] bool operator==(const ExplainedPart&) const = default;
};

/// "Resumo das Horas": the figures of a month of punches, by half and whole, each with the days and
/// minutes that make it up.
class HoursSummary {
  public:
    /// Nothing to sum: every figure is zero.
    HoursSummary() = default;
    /// `lines` hold the days of `month`, one each, in date order.
    HoursSummary(std::vector<PunchLine> lines, WorkMonth month, WorkTerms terms);

    [[nodiscard]] const OvertimeRules& rules() const { return terms_.overtime; }
    [[nodiscard]] std::string caption(HourCategory category) const {
        return captionOf(category, rules());
    }

    /// Of one half, or of the whole month where none is named.
    [[nodiscard]] const HourTotals& totals(std::optional<HalfMonth> half) const;
    [[nodiscard]] std::string figure(HourCategory category, std::optional<HalfMonth> half) const;
    /// The lengths of its parts add up to the figure. What is asked for and what is missing names
    /// the leave of a day away, without length.
    [[nodiscard]] std::vector<ExplainedPart> explanation(HourCategory category,
                                                         std::optional<HalfMonth> half) const;

  private:
    std::vector<PunchLine> lines_;
    Date first_{};
    WorkTerms terms_;
    HourTotals firstHalf_;
    HourTotals secondHalf_;
    HourTotals month_;
};

}  // namespace winvrx
