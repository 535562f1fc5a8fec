#include "fuzz/invariant.h"
#include "timecard/punches/leave_calendar.h"

using namespace winvrx;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    files.content[fuzz::kFolder.companyFile(fuzz::kCompany, std::string(kLeaveStem) + "001")] =
        fuzz::textOf(data, size);
    const EmployeeLeaves leaves =
        RecordedLeaves({files, fuzz::kFolder}).leavesOf({fuzz::kCompany, fuzz::kEmployee});
    for (const LeavePeriod& one : leaves.periods) {
        require(one.first.ok() && one.last.ok(), "a leave's days are of the calendar");
        require(one.first <= one.last, "a leave does not end before it begins");
        require(leaves.contain(one.first) && leaves.touch(monthOf(one.last)),
                "a leave holds its own days");
    }
    for (const std::string& line : leaves.unread)
        require(isUtf8(line), "a leave that is not understood can be shown");
    return 0;
}
