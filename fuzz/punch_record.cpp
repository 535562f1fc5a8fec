#include "timecard/punches/punch_record.h"
#include "fuzz/invariant.h"

#include <algorithm>

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

namespace {

constexpr WorkMonth kMonth = 2024y / 3;

void checkLine(const std::string& bytes) {
    const PunchLine line = decodePunchLine(bytes);
    require(encode(line, bytes) == fuzz::widened(bytes, kPunchWidth),
            "an unchanged day keeps its bytes");
    fuzz::requireBack(line, decodePunchLine, "a day comes back");
}

bool isKept(const std::string& line, const std::vector<std::string>& written) {
    return trimmed(line).empty() || std::ranges::count(written, line) > 0 ||
           std::ranges::count(written, fuzz::widened(line, kPunchWidth)) > 0;
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.file(punchFileName(fuzz::kKey, kMonth)), bytes);
    for (const std::string& line : file.before)
        checkLine(line);

    const auto load = [&] { return findPunchRecord(file.store, fuzz::kKey, kMonth).value(); };
    const auto [days, unread] = load();
    file.content = editedPunchRecord(file.content, kMonth, days);
    const auto written = file.lines();
    for (const std::string& line : file.before)
        require(isKept(line, written), "every line is kept");
    require(written.size() == 1 + days.size() + unread.size(), "no line is doubled");
    const auto [daysBack, unreadBack] = load();
    require(daysBack == days && unreadBack == unread, "a record comes back");
}
