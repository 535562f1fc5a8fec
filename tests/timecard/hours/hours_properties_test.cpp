// What holds for the hours of any day: tried on random cards, whose seeds are printed.
#include "timecard/hours/hours.h"
#include "timecard/hours/night_time.h"

#include <gtest/gtest.h>

#include <random>

namespace winvrx {
namespace {

using std::chrono::seconds;

constexpr int kMonths = 400;

LeaveCalendar contract(Date admission, int days) {
    return {leaveStatusLine(plusDays(admission, days)), admission};
}

/// Cards as they come: near the schedule, far from it, incomplete, marked.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    int upTo(int highest) { return std::uniform_int_distribution<int>(0, highest)(engine_); }
    bool once(int times) { return upTo(times - 1) == 0; }

    std::optional<TimeOfDay> time() {
        if (once(12)) return std::nullopt;
        return TimeOfDay{std::chrono::minutes{upTo(24 * 60 - 1)}};
    }
    std::optional<TimeOfDay> near(const std::optional<TimeOfDay>& time) {
        if (!time) return time;
        const auto minutes = time->sinceMidnight.count() + upTo(14) - 7 + 24 * 60;
        return TimeOfDay{std::chrono::minutes{minutes % (24 * 60)}};
    }
    TimePair pair() { return {time(), time()}; }
    TimePair pair(const TimePair& scheduled) {
        return once(3) ? pair() : TimePair{near(scheduled.entry), near(scheduled.exit)};
    }

    WorkTerms terms(WorkMonth month) {
        WorkTerms terms;
        terms.weekday = {pair(), once(3) ? TimePair() : pair()};
        terms.saturday = {pair(), TimePair()};
        terms.saturdayIsNormal = once(2);
        terms.restDay = std::chrono::weekday(static_cast<unsigned>(upTo(6)));
        terms.holidays = {plusDays(firstDay(month), upTo(27))};
        terms.overtime.differentiatedPercent = once(2);
        terms.overtime.threshold = std::chrono::minutes{30 * upTo(8)};
        if (once(4)) terms.overtime.mode = OvertimeMode::SingleLevel;
        if (once(4)) terms.leaves = contract(plusDays(firstDay(month), upTo(27)), upTo(27));
        return terms;
    }

    PunchLine line(Date date, const WorkTerms& terms) {
        const auto text = [](const std::optional<TimeOfDay>& time) {
            return time ? timeText(*time) : std::string();
        };
        const TimePair morning = pair(terms.weekday.morning);
        const TimePair afternoon = pair(terms.weekday.afternoon);
        const TimePair extra = once(3) ? pair() : TimePair();
        PunchLine line{dayLabel(date),
                       text(morning.entry),
                       text(morning.exit),
                       text(afternoon.entry),
                       text(afternoon.exit),
                       text(extra.entry),
                       text(extra.exit),
                       {},
                       {},
                       {}};
        if (once(6))
            line.situation =
                kSituations[static_cast<std::size_t>(upTo(kSituations.size() - 1))].word;
        return line;
    }

  private:
    std::mt19937 engine_;
};

seconds onPaper(const PunchLine& line) {
    return lengthOf(line.morning()) + lengthOf(line.afternoon()) + lengthOf(line.extra());
}

/// Night time counted minute by minute.
seconds nightOnPaper(const PunchLine& line) {
    seconds night{0};
    for (const TimePair& pair : {line.morning(), line.afternoon(), line.extra()})
        for (seconds at{0}; at < lengthOf(pair); at += std::chrono::minutes{1}) {
            const auto hour =
                std::chrono::floor<std::chrono::hours>(pair.entry->sinceMidnight + at) %
                std::chrono::hours{24};
            if (hour < kNightEnd || hour >= kNightStart) night += std::chrono::minutes{1};
        }
    return night;
}

void expectSoundDay(const PunchLine& line, Date date, const WorkTerms& terms) {
    const HourTotals day = dayHours(line, date, terms);
    const bool counts = isWithinContract(terms.leaves.standingOn(date)) &&
                        meaningOf(line.situation) != DayMeaning::Missing;
    const seconds night = day[HourCategory::NormalNight] + day.nightExtra();
    EXPECT_EQ(day.worked(), counts ? onPaper(line) : seconds{0});
    EXPECT_EQ(night, counts ? nightOnPaper(line) : seconds{0});
    for (const HourCategory category : kHourCategories)
        EXPECT_GE(day[category].count(), 0);
    EXPECT_LE(day[HourCategory::Missing], day[HourCategory::Standard]);
    HourTotals parts;
    for (const HourPart& part : dayParts(line, date, terms)) {
        EXPECT_GT(part.length.count(), 0);
        if (part.span) {
            EXPECT_EQ(part.length, lengthOf(TimePair{part.span->from, part.span->to}));
        }
        parts[part.category] += part.length;
    }
    EXPECT_EQ(parts, day);
}

/// Four weeks on: the same weekday, with the days that the terms name moved along.
WorkTerms movedBy(int days, WorkTerms terms) {
    for (Date& holiday : terms.holidays)
        holiday = plusDays(holiday, days);
    if (const auto admission = terms.leaves.admission()) {
        const auto length =
            std::chrono::sys_days(*terms.leaves.contractEnd()) - std::chrono::sys_days(*admission);
        terms.leaves = contract(plusDays(*admission, days), static_cast<int>(length.count()));
    }
    return terms;
}

TEST(HourProperties, HoldOnRandomMonths) {
    constexpr int kFourWeeks = 28;
    const WorkMonth month{std::chrono::year{2024} / 3};
    const unsigned first = std::random_device{}();
    for (unsigned seed = first; seed != first + kMonths && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Dice dice(seed);
        const WorkTerms terms = dice.terms(month);
        std::vector<PunchLine> lines;
        HourTotals sum;
        HourTotals halves;
        for (int day = 0; day < daysIn(month); ++day) {
            const Date date = plusDays(firstDay(month), day);
            SCOPED_TRACE(dateText(date));
            lines.push_back(dice.line(date, terms));
            expectSoundDay(lines.back(), date, terms);
            sum += dayHours(lines.back(), date, terms);
            EXPECT_EQ(
                dayHours(lines.back(), plusDays(date, kFourWeeks), movedBy(kFourWeeks, terms)),
                dayHours(lines.back(), date, terms));
        }
        EXPECT_EQ(periodHours(lines, firstDay(month), terms), sum);
        for (const HalfMonth half : {HalfMonth::First, HalfMonth::Second})
            halves += periodHours(lines, firstDay(month), terms, half);
        EXPECT_EQ(halves, sum);
    }
}

}  // namespace
}  // namespace winvrx
