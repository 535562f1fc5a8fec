#include "timecard/hours/hours_summary.h"

#include "timecard/hours/night_time.h"

namespace winvrx {

namespace {

/// A figure's caption; a percentage follows where the category has one.
struct Caption {
    std::string_view text;
    int OvertimeRules::*percent = nullptr;
};

constexpr std::array<Caption, kHourCategories.size()> kCaptions = {{
    {"Hora Padrão"},
    {"Hora Normal"},
    {"Hora Noturna Norm"},
    {"Hora Extra ", &OvertimeRules::minimumPercent},
    {"Hora Extra ", &OvertimeRules::maximumPercent},
    {"Hor Notur Extr ", &OvertimeRules::nightMinimumPercent},
    {"Hor Notur Extr ", &OvertimeRules::nightMaximumPercent},
    {"Hora Falta"},
    {"Hora D.S.R."},
}};

const Caption& entryOf(HourCategory category) {
    return kCaptions[static_cast<std::size_t>(category)];
}

/// In the order of HourRule; "%" stands for the daily threshold.
constexpr std::array<std::string_view, 12> kRuleWords = {
    "jornada do dia",
    "dentro da jornada",
    "tolerância: até 5 min por marcação e 10 min no dia",
    "além da jornada",
    "até % hs",
    "acima de % hs",
    "domingo, feriado ou descanso",
    "descanso semanal do funcionário",
    "percentual único",
    "dia marcado como falta: jornada inteira",
    "abaixo da jornada, além da tolerância",
    "domingo ou feriado: jornada diária",
};
static_assert(static_cast<std::size_t>(HourRule::PaidRest) + 1 == kRuleWords.size());

/// Why a day away asks for no hours; empty for any other.
std::string leaveReason(const PunchLine& line, Date date, const WorkTerms& terms) {
    if (meaningOn(line, date, terms) != DayMeaning::Leave ||
        !isWithinContract(terms.leaves.standingOn(date)))
        return {};
    const DatedLeave* leave = terms.leaves.leaveOn(date);
    return "afastamento: " + (leave ? leaveText(*leave) : "nenhum registrado neste dia");
}

}  // namespace

int OvertimeRules::*percentOf(HourCategory category) {
    return entryOf(category).percent;
}

std::string captionOf(HourCategory category, const OvertimeRules& rules) {
    const Caption& caption = entryOf(category);
    std::string text(caption.text);
    return caption.percent ? text + std::to_string(rules.*caption.percent) + "%" : text;
}

std::string ruleText(const HourPart& part, const OvertimeRules& rules) {
    std::string text(kRuleWords[static_cast<std::size_t>(part.rule)]);
    if (const auto place = text.find('%'); place != std::string::npos)
        text.replace(place, 1, thresholdText(rules.threshold));
    if (part.span && isNight(part.span->from.sinceMidnight)) text.insert(0, "noturno, ");
    if (const auto percent = percentOf(part.category))
        text += ": " + std::to_string(rules.*percent) + "%";
    return text;
}

HoursSummary::HoursSummary(std::vector<PunchLine> lines, WorkMonth month, WorkTerms terms)
    : lines_(std::move(lines)),
      first_(firstDay(month)),
      terms_(std::move(terms)),
      firstHalf_(periodHours(lines_, first_, terms_, HalfMonth::First)),
      secondHalf_(periodHours(lines_, first_, terms_, HalfMonth::Second)),
      month_(firstHalf_) {
    month_ += secondHalf_;
}

const HourTotals& HoursSummary::totals(std::optional<HalfMonth> half) const {
    if (!half) return month_;
    return *half == HalfMonth::First ? firstHalf_ : secondHalf_;
}

std::string HoursSummary::figure(HourCategory category, std::optional<HalfMonth> half) const {
    return formatted(totals(half)[category], rules().totalsFormat);
}

std::vector<ExplainedPart> HoursSummary::explanation(HourCategory category,
                                                     std::optional<HalfMonth> half) const {
    std::vector<ExplainedPart> explained;
    const auto add = [&](Date date, std::string span, std::chrono::seconds length,
                         std::string rule) {
        explained.push_back({dayLabel(date), std::move(span),
                             formatted(length, rules().totalsFormat), std::move(rule)});
    };
    const bool asked = category == HourCategory::Standard || category == HourCategory::Missing;
    for (std::size_t at = 0; at < lines_.size(); ++at) {
        const Date date = plusDays(first_, static_cast<int>(at));
        if (half && halfOf(date) != *half) continue;
        if (std::string reason = leaveReason(lines_[at], date, terms_); asked && !reason.empty())
            add(date, {}, std::chrono::seconds{0}, std::move(reason));
        for (const HourPart& part : dayParts(lines_[at], date, terms_))
            if (part.category == category)
                add(date,
                    part.span ? timeText(part.span->from) + "–" + timeText(part.span->to) : "",
                    part.length, ruleText(part, rules()));
    }
    return explained;
}

}  // namespace winvrx
