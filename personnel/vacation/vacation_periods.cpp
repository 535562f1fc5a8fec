#include "personnel/vacation/vacation_periods.h"

#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr int kFullVacation = 30;
/// By the number of the status, behind the number of days.
constexpr std::array<std::string_view, 5> kStatusTexts = {"Dias  - Pendente", "Dias  -  Quitar ",
                                                          "Dias  -  Quitada", "Dias  -  Provisão",
                                                          "Dias  -  Perdidas"};

bool isOf(const VacationLine& line, const AcquisitionPeriod& period) {
    return line.key() && line.record.periodFirst() == period.first;
}

bool isVacationOf(const VacationLine& line, const AcquisitionPeriod& period) {
    return isOf(line, period) && !line.record.isProvision();
}

PeriodStatus statusOf(const VacationItem& item) {
    if (item.isProvision()) return PeriodStatus::Provision;
    return item.isSettled() ? PeriodStatus::Settled : PeriodStatus::ToSettle;
}

int daysOf(const VacationItem& item) {
    return item.days() + item.soldDays();
}

TimeAway::Kind kindOf(const Leave& leave) {
    const std::string_view number = leaveTypeOf(leave.type).substr(0, 3);
    if (number == "001" || number == "003") return TimeAway::Kind::Illness;
    return number == "005" ? TimeAway::Kind::PaidLeave : TimeAway::Kind::Other;
}

std::vector<TimeAway> timesAway(const LeaveCalendar& leaves) {
    std::vector<TimeAway> sorted;
    for (const DatedLeave& one : leaves.leaves())
        if (one.away) sorted.push_back({kindOf(one.leave), *one.away});
    std::ranges::stable_sort(sorted, {}, [](const TimeAway& one) { return one.days.first; });
    std::vector<TimeAway> away;
    for (const TimeAway& one : sorted)
        if (!away.empty() && away.back().kind == one.kind &&
            one.days.first <= plusDays(away.back().days.last, 1))
            away.back().days.last = std::max(away.back().days.last, one.days.last);
        else
            away.push_back(one);
    return away;
}

/// As a vacation of the period has it on record.
std::optional<int> recordedGrant(const VacationLines& lines, const AcquisitionPeriod& period) {
    for (const VacationLine& line : lines)
        if (isVacationOf(line, period)) return line.record.grantedDays();
    return std::nullopt;
}

}  // namespace

std::string statusText(int days, PeriodStatus status) {
    return std::to_string(days) + std::string(kStatusTexts[static_cast<std::size_t>(status)]);
}

AcquisitionCount acquisitionCount(Date admission, const LeaveCalendar& leaves,
                                  const VacationLines& lines) {
    AcquisitionCount count{admission, timesAway(leaves), {}};
    for (const VacationLine& line : lines)
        if (line.key() && !line.record.isProvision())
            count.recorded.push_back(line.record.periodFirst().value());
    return count;
}

std::vector<PeriodRow> periodRows(const AcquisitionCount& of, Date date, const VacationLines& lines,
                                  const GrantedDays& granted) {
    std::vector<PeriodRow> rows;
    for (const AcquisitionPeriod& period : acquisitionPeriods(of, date)) {
        const auto recorded = recordedGrant(lines, period);
        const int days = period.forfeit ? 0 : recorded ? *recorded : granted(period);
        for (std::size_t at = 0; at < lines.size(); ++at) {
            if (!isOf(lines[at], period)) continue;
            const VacationItem& item = lines[at].record;
            rows.push_back({period, days, item.isProvision() ? item.grantedDays() : daysOf(item),
                            statusOf(item), at});
        }
        const int left = days - daysRecorded(lines, period);
        const auto status = period.forfeit ? PeriodStatus::Forfeit : PeriodStatus::Pending;
        if (left > 0 || (days == 0 && !recorded))
            rows.push_back({period, days, left, status, std::nullopt});
    }
    return rows;
}

int daysRecorded(const VacationLines& lines, const AcquisitionPeriod& period) {
    int days = 0;
    for (const VacationLine& line : lines)
        if (isVacationOf(line, period)) days += daysOf(line.record);
    return days;
}

AcquisitionPeriod periodOf(std::optional<Date> admission, const VacationItem& item) {
    const Date first = item.periodFirst().value();
    if (admission)
        for (const AcquisitionPeriod& period : acquisitionPeriods({*admission}, first))
            if (period.first == first) return period;
    return acquisitionPeriod(first, 1);
}

int overdue(const std::vector<PeriodRow>& rows, Date date) {
    return static_cast<int>(std::ranges::count_if(rows, [&](const PeriodRow& row) {
        return row.status == PeriodStatus::Pending && row.days > 0 && row.period.limit < date;
    }));
}

std::optional<DueVacation> dueVacation(const AcquisitionCount& of, Date today,
                                       const VacationLines& lines) {
    for (const AcquisitionPeriod& period : acquisitionPeriods(of, today)) {
        if (period.forfeit || period.limit < today || period.last >= today) continue;
        const int left =
            recordedGrant(lines, period).value_or(kFullVacation) - daysRecorded(lines, period);
        if (left <= 0) continue;
        const Date lastStart = period.lastStart(left);
        if (lastStart <= plusDays(today, kDueWithinDays))
            return DueVacation{period, left, lastStart};
    }
    return std::nullopt;
}

}  // namespace winvrx
