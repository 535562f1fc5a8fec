// Reads hours_cases.txt, which says how its lines are written.
#include "foundation/values/text.h"
#include "tests/support/leave_files.h"
#include "timecard/hours/hours.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

namespace winvrx {
namespace {

constexpr std::size_t kFewestCases = 120;
const std::vector<std::string> kCodes = {"P",     "N",     "NN", "Emin", "Emax",
                                         "NEmin", "NEmax", "F",  "D"};
const std::set<Date> kHolidays = {*parseDate("29/03/2024"), *parseDate("30/03/2024"),
                                  *parseDate("31/03/2024")};

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text + separator);
    for (std::string part; std::getline(in, part, separator);)
        parts.emplace_back(trimmed(part));
    return parts;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

std::pair<std::string, std::string> assignment(const std::string& text) {
    const auto parts = split(text, '=');
    if (parts.size() != 2) throw std::invalid_argument("no value in \"" + text + "\"");
    return {parts[0], parts[1]};
}

template <typename Value>
Value required(std::optional<Value> value, const std::string& text) {
    if (!value) throw std::invalid_argument("not understood: \"" + text + "\"");
    return *value;
}

Date dateOf(const std::string& text) {
    return required(parseDate(text + "/2024"), text);
}

std::chrono::seconds durationOf(const std::string& text) {
    const auto colon = text.find(':');
    if (colon == std::string::npos || text.size() != colon + 3)
        throw std::invalid_argument("no duration: \"" + text + "\"");
    return std::chrono::hours{std::stoi(text)} +
           std::chrono::minutes{std::stoi(text.substr(colon + 1))};
}

std::optional<TimeOfDay> timeOrBlank(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(required(parseTime(text), text));
}

/// "08:00-12:00 13:00-17:00", as many as are written.
std::vector<TimePair> pairsOf(const std::string& text, std::size_t most) {
    std::vector<TimePair> pairs;
    for (const std::string& word : words(text)) {
        const auto times = split(word, '-');
        if (times.size() != 2) throw std::invalid_argument("no pair: \"" + word + "\"");
        pairs.push_back({timeOrBlank(times[0]), timeOrBlank(times[1])});
    }
    if (pairs.size() > most) throw std::invalid_argument("too many pairs");
    pairs.resize(most);
    return pairs;
}

DaySchedule daySchedule(const std::string& text) {
    const auto pairs = pairsOf(text, 2);
    return {pairs[0], pairs[1]};
}

WorkTerms scheduleOf(const std::string& text) {
    const auto parts = split(text, '|');
    if (parts.size() != 3) throw std::invalid_argument("no schedule");
    WorkTerms terms;
    terms.weekday = daySchedule(parts[0]);
    terms.saturday = daySchedule(parts[1]);
    terms.saturdayIsNormal = parts[2] == "normal";
    terms.holidays.assign(kHolidays.begin(), kHolidays.end());
    return terms;
}

std::chrono::weekday weekdayNamed(const std::string& name) {
    for (unsigned day = 0; day < 7; ++day)
        if (weekdayShort(std::chrono::weekday(day)) == name) return std::chrono::weekday(day);
    throw std::invalid_argument("no weekday: \"" + name + "\"");
}

void putSettings(WorkTerms& terms, const std::string& text) {
    for (const std::string& word : words(text)) {
        if (word == "dif") {
            terms.overtime.differentiatedPercent = true;
        } else if (word == "unico") {
            terms.overtime.mode = OvertimeMode::SingleLevel;
        } else {
            const auto [name, value] = assignment(word);
            if (name == "limite")
                terms.overtime.threshold = required(parseThreshold(value), value);
            else if (name == "adm")
                terms.leaves = {"", dateOf(value)};
            else if (name == "afa")
                terms.leaves = {testing::leaveBytes({testing::vacation((value + "/2024").c_str(),
                                                                       (value + "/2024").c_str())}),
                                {}};
            else if (name == "fim")
                terms.leaves = {leaveStatusLine(dateOf(value)), {}};
            else if (name == "desc")
                terms.restDay = weekdayNamed(value);
            else
                throw std::invalid_argument("no setting: \"" + word + "\"");
        }
    }
}

PunchLine lineOf(Date date, const std::string& pairs, const std::string& situation) {
    const auto text = [](const std::optional<TimeOfDay>& time) {
        return time ? timeText(*time) : std::string();
    };
    const auto punched = pairsOf(pairs, 3);
    return {dayLabel(date),
            text(punched[0].entry),
            text(punched[0].exit),
            text(punched[1].entry),
            text(punched[1].exit),
            text(punched[2].entry),
            text(punched[2].exit),
            {},
            situation,
            {}};
}

HourTotals totalsOf(const std::string& text) {
    HourTotals totals;
    for (const std::string& word : words(text)) {
        const auto [code, value] = assignment(word);
        const auto found = std::find(kCodes.begin(), kCodes.end(), code);
        if (found == kCodes.end()) throw std::invalid_argument("no category: \"" + code + "\"");
        totals[static_cast<HourCategory>(found - kCodes.begin())] = durationOf(value);
    }
    return totals;
}

std::string textOf(const HourTotals& totals) {
    std::string text;
    for (const HourCategory category : kHourCategories)
        if (totals[category].count() != 0)
            text += kCodes[static_cast<std::size_t>(category)] + "=" +
                    formatted(totals[category], TotalsFormat::HoursAndMinutes) + " ";
    return text;
}

class HourCases {
  public:
    /// Tries a line of the file; whatever cannot be read of it throws.
    void read(const std::string& text) {
        if (text.empty() || text.front() == '#') return;
        const auto columns = split(text, '|');
        if (columns.size() == 3)
            define(text);
        else if (columns.size() == 7)
            tryCase(columns);
        else
            throw std::invalid_argument("neither a schedule nor a case");
    }

    [[nodiscard]] std::size_t count() const { return count_; }

  private:
    void define(const std::string& text) {
        const auto [name, value] = assignment(text);
        schedules_[name] = scheduleOf(value);
    }

    void tryCase(const std::vector<std::string>& columns) {
        const auto day = words(columns[0]);
        const Date date = dateOf(day.at(0));
        if (weekdayOf(date) != weekdayNamed(day.at(1)))
            throw std::invalid_argument("another weekday: " + columns[0]);
        WorkTerms terms = schedules_.at(columns[1]);
        putSettings(terms, columns[4]);
        if (columns[6].empty()) throw std::invalid_argument("no reason");
        const HourTotals found = dayHours(lineOf(date, columns[2], columns[3]), date, terms);
        EXPECT_EQ(textOf(found), textOf(totalsOf(columns[5]))) << columns[6];
        ++count_;
    }

    std::map<std::string, WorkTerms> schedules_;
    std::size_t count_ = 0;
};

TEST(HourCases, EachDayHasTheHoursWorkedOutByHand) {
    std::ifstream in(WINVRX_HOUR_CASES);
    HourCases cases;
    int number = 0;
    for (std::string text; std::getline(in, text);) {
        ++number;
        SCOPED_TRACE("hours_cases.txt:" + std::to_string(number));
        try {
            cases.read(text);
        } catch (const std::exception& fault) {
            ADD_FAILURE() << fault.what();
        }
    }
    EXPECT_GE(cases.count(), kFewestCases);
}

}  // namespace
}  // namespace winvrx
