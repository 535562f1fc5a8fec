#include "foundation/register/leave_calendar.h"
#include "foundation/register/leave_file.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using fuzz::require;

namespace {

void requireKept(const std::string& line) {
    const auto leave = decodeLeave(line);
    if (!leave) return;
    require(encode(*leave, line) == fuzz::widened(line, kLeaveWidth),
            "a leave that is not changed keeps its bytes");
    const auto period = leave->period();
    if (!period) return;
    require(period->first.ok() && period->last.ok(), "a leave's days are of the calendar");
    require(period->first <= period->last, "a leave does not end before it begins");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile record(
        fuzz::kFolder.companyFile(fuzz::kCompany, leaveFileName(fuzz::kKey.employee)), bytes);
    for (const std::string& line : record.before)
        requireKept(line);
    LeaveFile file = parseLeaveFile(bytes);
    const LeaveFile again = parseLeaveFile(encode(file));
    file.strays.clear();
    require(again == file, "a rewrite keeps the leaves and the status");
    const LeaveCalendar calendar = loadLeaveCalendar(record.store, fuzz::kKey);
    for (const DatedLeave& one : calendar.leaves()) {
        require(calendar.touches(monthOf(one.period.last)), "a leave holds its own days");
        if (one.away)
            require(calendar.leaveOn(one.away->first) && one.period.contains(one.away->last),
                    "the days away are the leave's own");
    }
    for (const std::string& line : calendar.unread())
        require(isUtf8(line), "a leave that is not understood can be shown");
    if (const auto since = inactiveSince(bytes))
        require(since->ok() && calendar.contractEnd() <= since,
                "an employee is inactive since a day of the calendar, which ends the contract");
}
