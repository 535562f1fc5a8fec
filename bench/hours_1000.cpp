// The hours of a month of a thousand employees, beside reading the same lines without counting.
#include "bench/figure.h"
#include "bench/office.h"
#include "timecard/hours/hours.h"

#include <chrono>
#include <string>
#include <vector>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;

constexpr int kEmployees = 1000;
constexpr int kRounds = 15;
constexpr double kMostRatio = 2;

MonthSettings march() {
    MonthSettings settings;
    settings.month = 2024y / 3;
    settings.setHoliday(*parseDate("29/03/2024"), true);
    settings.overtime.differentiatedPercent = true;
    return settings;
}

/// Records as they are after a month: some minutes off, overtime, an absence, night work.
std::vector<std::vector<std::string>> records() {
    const auto clock = [](int minutes) {
        return timeText({std::chrono::minutes{minutes % (24 * 60)}});
    };
    std::vector<std::vector<std::string>> all;
    for (int employee = 0; employee < kEmployees; ++employee) {
        auto& lines = all.emplace_back();
        for (PunchLine line : blankMonth(2024y / 3)) {
            const int off = (employee * 7 + line.day() * 3) % 17 - 8;
            line.morningEntry = clock(8 * 60 + off);
            line.morningExit = "12:00";
            line.afternoonEntry = "13:00";
            line.afternoonExit = clock(17 * 60 - off);
            if (off > 5) line.extraEntry = "21:30";
            if (off > 5) line.extraExit = "00:40";
            if (off == 0) line.situation = kSituationUnjustified;
            lines.push_back(encode(line));
        }
    }
    return all;
}

std::vector<PunchLine> parsed(const std::vector<std::string>& record) {
    std::vector<PunchLine> lines;
    lines.reserve(record.size());
    for (const std::string& bytes : record)
        lines.push_back(decodePunchLine(bytes));
    return lines;
}

}  // namespace

int main() {
    const auto all = records();
    const MonthSettings settings = march();
    const Employee employee;
    const StandardSchedule schedule = eightHours();
    std::size_t read = 0;
    std::chrono::seconds worked{0};
    Figure figure("hours-1000", kMostRatio);
    for (int round = 0; round <= kRounds; ++round) {
        figure.floor([&] {
            for (const auto& record : all)
                read += parsed(record).size();
        });
        figure.ours([&] {
            for (const auto& record : all) {
                const WorkTerms terms =
                    workTerms(settings, settings.overtime, schedule, employee, {});
                worked += periodHours(parsed(record), firstDay(settings.month), terms).worked();
            }
        });
    }
    return figure.report() && read > 0 && worked.count() > 0 ? 0 : 1;
}
