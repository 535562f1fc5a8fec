#include "foundation/register/leave_calendar.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

std::optional<LeavePeriod> daysAway(const Leave& leave, LeavePeriod period) {
    if (leave.isOfHours()) return std::nullopt;
    if (const auto worked = leave.lastDayWorked(); worked && *worked >= period.first)
        period.first = plusDays(*worked, 1);
    return period.first <= period.last ? std::optional(period) : std::nullopt;
}

/// Between the last day worked and the end there is a notice at most; a termination from longer
/// ago is of an earlier contract. Lei 12.506/2011: up to ninety days.
constexpr int kLongestNotice = 90;

Date endOfContract(const std::vector<DatedLeave>& leaves, Date inactiveSince) {
    for (auto one = leaves.rbegin(); one != leaves.rend(); ++one)
        if (const auto worked = one->leave.lastDayWorked();
            worked && plusDays(*worked, kLongestNotice) >= inactiveSince)
            return std::min(*worked, inactiveSince);
    return inactiveSince;
}

}  // namespace

std::string leaveText(const DatedLeave& leave) {
    return wordOf(leave.leave) + ", " + dateText(leave.period.first) + " a " +
           dateText(leave.period.last);
}

LeaveCalendar::LeaveCalendar(std::string_view leaveFileBytes, std::optional<Date> admission)
    : admission_(admission), inactiveSince_(winvrx::inactiveSince(leaveFileBytes)) {
    for (const std::string& line : splitLines(leaveFileBytes)) {
        auto leave = decodeLeave(line);
        if (!leave) continue;
        if (const auto period = leave->period()) {
            leaves_.push_back({*leave, *period, daysAway(*leave, *period)});
        } else {
            undated_.push_back(*std::move(leave));
            unread_.push_back(readableText(line));
        }
    }
    if (inactiveSince_) contractEnd_ = endOfContract(leaves_, *inactiveSince_);
}

Standing LeaveCalendar::standingOn(Date date) const {
    if (admission_ && date < *admission_) return Standing::BeforeAdmission;
    if (contractEnd_ && date > *contractEnd_) return Standing::AfterEnd;
    return leaveOn(date) ? Standing::OnLeave : Standing::Employed;
}

const DatedLeave* LeaveCalendar::leaveOn(Date date) const {
    const auto found = std::ranges::find_if(
        leaves_, [date](const DatedLeave& one) { return one.away && one.away->contains(date); });
    return found == leaves_.end() ? nullptr : &*found;
}

bool LeaveCalendar::touches(WorkMonth month) const {
    return std::ranges::any_of(
        leaves_, [month](const DatedLeave& one) { return one.period.touches(month); });
}

LeaveCalendar loadLeaveCalendar(const Store& store, const EmployeeKey& key,
                                std::optional<Date> admission) {
    const auto file = store.folder.companyFile(key.company, leaveFileName(key.employee));
    return {store.files.read(file).value_or(std::string()), admission};
}

}  // namespace winvrx
