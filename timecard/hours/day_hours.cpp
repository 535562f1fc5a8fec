#include "timecard/hours/hours.h"
#include "timecard/hours/night_time.h"
#include "timecard/hours/tolerance.h"

#include <algorithm>
#include <array>
#include <optional>

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr std::chrono::hours kDay{24};

struct DayPunches {
    DaySchedule regular;
    TimePair extra;
};

/// What the calendar, the schedule and the line's mark make of a day.
struct DayTerms {
    DayMeaning meaning = DayMeaning::Work;
    DaySchedule scheduled;
    std::optional<HourRule> rest;  ///< why the day is one of rest, where it is
    bool paidRest = false;
};

constexpr std::array kRegularPairs = {&DaySchedule::morning, &DaySchedule::afternoon};

DaySchedule scheduledOn(std::chrono::weekday weekday, const WorkTerms& terms) {
    if (weekday != std::chrono::Saturday) return terms.weekday;
    return terms.saturdayIsNormal ? terms.saturday : DaySchedule();
}

DayMeaning meaningFor(const PunchLine& line, DayMeaning marked, Standing standing) {
    if (marked != DayMeaning::Work || standing != Standing::OnLeave) return marked;
    return line.hasTimes() ? DayMeaning::Excused : DayMeaning::Leave;
}

DayTerms dayTerms(const PunchLine& line, Date date, Standing standing, const WorkTerms& terms) {
    const DayMeaning marked = meaningOf(line.situation);
    const std::chrono::weekday weekday = weekdayOf(date);
    DayTerms day;
    day.meaning = meaningFor(line, marked, standing);
    day.paidRest = weekday == std::chrono::Sunday || terms.isHoliday(date);
    if (day.paidRest || marked == DayMeaning::Holiday || marked == DayMeaning::WeeklyRest)
        day.rest = HourRule::RestDay;
    else if (weekday == terms.restDay && marked == DayMeaning::Work)
        day.rest = HourRule::OwnRestDay;
    if (!day.rest && day.meaning != DayMeaning::Leave) day.scheduled = scheduledOn(weekday, terms);
    return day;
}

TimeOfDay clockAt(seconds sinceMidnight) {
    return {std::chrono::duration_cast<std::chrono::minutes>(sinceMidnight % kDay)};
}

/// Goes through a day and hands each piece of it to `visit`.
template <typename Visit>
class DayWalk {
  public:
    DayWalk(const DayTerms& day, const WorkTerms& terms, Visit visit)
        : day_(day),
          overtime_(terms.overtime),
          standard_(lengthOf(day.scheduled)),
          dayLeft_(terms.overtime.threshold),
          nightLeft_(dayLeft_),
          visit_(visit) {
        give(HourCategory::Standard, HourRule::Schedule, standard_);
        if (day.paidRest)
            give(HourCategory::WeeklyRest, HourRule::PaidRest, lengthOf(terms.weekday));
    }

    void work(const DayPunches& punches) {
        if (day_.meaning == DayMeaning::Missing) {
            give(HourCategory::Missing, HourRule::MarkedMissing, standard_);
            return;
        }
        const bool tolerated = toleratedVariation(punches.regular, day_.scheduled).has_value();
        seconds left = tolerated ? tolerate(punches.regular) : standard_;
        for (const auto pair : kRegularPairs) {
            const seconds normal = std::min(seconds{lengthOf(punches.regular.*pair)}, left);
            workPair(punches.regular.*pair, normal);
            left -= normal;
        }
        workPair(punches.extra, seconds{0});
        if (day_.meaning != DayMeaning::Excused)
            give(HourCategory::Missing, HourRule::ShortOfSchedule, left);
    }

  private:
    /// How long the scheduled pairs were worked: so much of a tolerated day is normal.
    seconds tolerate(const DaySchedule& worked) {
        seconds normal{0};
        for (const auto pair : kRegularPairs) {
            if (lengthOf(day_.scheduled.*pair).count() == 0) continue;
            normal += lengthOf(worked.*pair);
            if (worked.*pair != day_.scheduled.*pair) normalRule_ = HourRule::Tolerated;
        }
        return normal;
    }

    /// The first `normal` of the pair's time is normal, the rest is extra.
    void workPair(const TimePair& pair, seconds normal) {
        const seconds length = lengthOf(pair);
        if (length.count() == 0) return;
        const seconds entry = pair.entry->sinceMidnight;
        forEachTurn(entry, entry + normal, [this](seconds from, seconds to, bool night) {
            give(night ? HourCategory::NormalNight : HourCategory::NormalDay, normalRule_, from,
                 to);
        });
        forEachTurn(entry + normal, entry + length,
                    [this](seconds from, seconds to, bool night) { giveExtra(from, to, night); });
    }

    template <typename Take>
    void forEachTurn(seconds from, seconds to, Take take) {
        while (from < to) {
            const seconds end = std::min(to, nextTurn(from));
            take(from, end, isNight(from));
            from = end;
        }
    }

    void giveExtra(seconds from, seconds to, bool night) {
        if (overtime_.mode == OvertimeMode::SingleLevel) {
            give(maximum(night), HourRule::SingleLevel, from, to);
        } else if (day_.rest) {
            give(maximum(night), *day_.rest, from, to);
        } else if (!overtime_.differentiatedPercent) {
            give(minimum(night), HourRule::WorkingDay, from, to);
        } else {
            seconds& left = night ? nightLeft_ : dayLeft_;
            const seconds turn = from + std::min(left, to - from);
            left -= turn - from;
            give(minimum(night), HourRule::UpToThreshold, from, turn);
            give(maximum(night), HourRule::AboveThreshold, turn, to);
        }
    }

    static HourCategory minimum(bool night) {
        return night ? HourCategory::NightExtraMinimum : HourCategory::ExtraMinimum;
    }
    static HourCategory maximum(bool night) {
        return night ? HourCategory::NightExtraMaximum : HourCategory::ExtraMaximum;
    }

    void give(HourCategory category, HourRule rule, seconds length) {
        if (length.count() > 0) visit_(HourPart{category, rule, length, std::nullopt});
    }
    void give(HourCategory category, HourRule rule, seconds from, seconds to) {
        if (from < to)
            visit_(HourPart{category, rule, to - from, ClockSpan{clockAt(from), clockAt(to)}});
    }

    const DayTerms& day_;
    const OvertimeRules& overtime_;
    seconds standard_;
    seconds dayLeft_;    ///< of the threshold, for extra hours by day
    seconds nightLeft_;  ///< likewise by night
    HourRule normalRule_ = HourRule::WithinSchedule;
    Visit visit_;
};

template <typename Visit>
void walk(const PunchLine& line, Date date, const WorkTerms& terms, Visit visit) {
    const Standing standing = terms.leaves.standingOn(date);
    if (!isWithinContract(standing)) return;
    const DayPunches punches{{line.morning(), line.afternoon()}, line.extra()};
    const DayTerms day = dayTerms(line, date, standing, terms);
    DayWalk(day, terms, visit).work(punches);
}

}  // namespace

DayMeaning meaningOn(const PunchLine& line, Date date, const WorkTerms& terms) {
    return meaningFor(line, meaningOf(line.situation), terms.leaves.standingOn(date));
}

DaySchedule contractedTimes(const PunchLine& line, Date date, const WorkTerms& terms) {
    const Standing standing = terms.leaves.standingOn(date);
    return isWithinContract(standing) ? dayTerms(line, date, standing, terms).scheduled
                                      : DaySchedule();
}

HourTotals dayHours(const PunchLine& line, Date date, const WorkTerms& terms) {
    HourTotals totals;
    walk(line, date, terms,
         [&totals](const HourPart& part) { totals[part.category] += part.length; });
    return totals;
}

std::vector<HourPart> dayParts(const PunchLine& line, Date date, const WorkTerms& terms) {
    std::vector<HourPart> parts;
    walk(line, date, terms, [&parts](const HourPart& part) { parts.push_back(part); });
    return parts;
}

}  // namespace winvrx
