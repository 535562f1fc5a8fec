#include "timecard/punches/period_record.h"

namespace winvrx {

namespace {

bool isCalendarMonth(const DayPeriod& period) {
    const WorkMonth month = monthOf(period.last);
    return period == DayPeriod{firstDay(month), lastDay(month)};
}

bool reachesBack(const DayPeriod& period) {
    return monthOf(period.first) != monthOf(period.last);
}

using Lines = std::vector<std::string>;

std::string periodBytes(const DayPeriod& period, const Lines& recordBefore, const Lines& record) {
    Lines lines{std::string(kOpeningPunchLine)};
    const WorkMonth month = monthOf(period.last);
    if (reachesBack(period)) {
        const auto before = dayLines(recordBefore, month - kOneMonth);
        lines.insert(lines.end(), before.begin() + (dayNumber(period.first) - 1), before.end());
    }
    const auto days = dayLines(record, month);
    lines.insert(lines.end(), days.begin(), days.begin() + dayNumber(period.last));
    return joinedLines(lines);
}

/// `period` with the days of `month` as `record` has them. Its other lines stay.
std::string refreshed(Lines period, WorkMonth month, const Lines& record) {
    const auto days = dayLines(record, month);
    for (std::string& bytes : period) {
        const PunchLine line = decodePunchLine(bytes);
        const int day = line.day();
        if (day > 0 && day <= daysIn(month) &&
            line.label == dayLabel(plusDays(firstDay(month), day - 1)))
            bytes = days[static_cast<std::size_t>(day) - 1];
    }
    return joinedLines(period);
}

}  // namespace

PunchFiles::PunchFiles(const Store& store, const PayrollLock& payroll,
                       const MonthSettings& settings)
    : store_(store),
      payroll_(payroll),
      month_(settings.month),
      period_(closingPeriod(settings)),
      nextPeriod_(closingPeriod(loadMonthSettings(store, month_ + kOneMonth))) {}

bool PunchFiles::hasPeriodFile(const EmployeeKey& key, WorkMonth month) const {
    const std::string name = closingFileName(key, month);
    return names_ ? names_->contains(name) : store_.files.exists(store_.folder.file(name));
}

void PunchFiles::add(std::vector<FileSystem::NewContent>& batch, const EmployeeKey& key,
                     std::string record) const {
    const auto recorded = [&](WorkMonth month) {
        return RecordFile(store_, punchFileName(key, month)).lines();
    };
    const auto periodFile = [&](WorkMonth month) {
        return store_.folder.file(closingFileName(key, month));
    };
    // The month was once counted otherwise: should it be again, its record must not be out of date.
    const auto refreshedPeriod = [&](WorkMonth month) {
        return refreshed(RecordFile(store_.files, periodFile(month)).lines(), month_,
                         splitLines(record));
    };
    if (!isCalendarMonth(period_)) {
        const Lines before = reachesBack(period_) ? recorded(month_ - kOneMonth) : Lines();
        batch.push_back({periodFile(month_), periodBytes(period_, before, splitLines(record))});
    } else if (hasPeriodFile(key, month_)) {
        batch.push_back({periodFile(month_), refreshedPeriod(month_)});
    }
    const WorkMonth next = month_ + kOneMonth;
    if (hasPeriodFile(key, next) && !payroll_.isClosed(key, next))
        batch.push_back(
            {periodFile(next), reachesBack(nextPeriod_)
                                   ? periodBytes(nextPeriod_, splitLines(record), recorded(next))
                                   : refreshedPeriod(next)});
    batch.push_back({store_.folder.file(punchFileName(key, month_)), std::move(record)});
}

void PunchFiles::remove(const EmployeeKey& key) const {
    std::vector<FileSystem::NewContent> batch;
    add(batch, key, {});
    const auto punches = store_.folder.file(punchFileName(key, month_));
    const auto period = store_.folder.file(closingFileName(key, month_));
    std::erase_if(batch,
                  [&](const auto& one) { return one.file == punches || one.file == period; });
    if (!batch.empty()) store_.files.replaceAll(batch);
    store_.files.remove(period);
    store_.files.remove(punches);
}

}  // namespace winvrx
