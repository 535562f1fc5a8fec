#include "timecard/punches/punch_record.h"
#include "foundation/values/faults.h"
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
    try {
        require(decodePunchLine(encode(line)) == line, "a day comes back");
    } catch (const TextFault&) {
        // A control character in the file cannot be typed into a new line.
    }
}

bool isKept(const std::string& line, const std::vector<std::string>& written) {
    return trimmed(line).empty() || std::ranges::count(written, line) > 0 ||
           std::ranges::count(written, fuzz::widened(line, kPunchWidth)) > 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    const auto name = punchFileName({fuzz::kCompany, fuzz::kEmployee}, kMonth);
    std::string& file = files.content[fuzz::kFolder.file(name)];
    file = fuzz::textOf(data, size);
    const auto before = splitLines(file);
    for (const std::string& line : before)
        checkLine(line);

    const auto load = [&] {
        return findPunchRecord({files, fuzz::kFolder}, {fuzz::kCompany, fuzz::kEmployee}, kMonth)
            .value();
    };
    const auto [days, unread] = load();
    file = editedPunchRecord(file, kMonth, days);
    const auto written = splitLines(file);
    for (const std::string& line : before)
        require(isKept(line, written), "every line is kept");
    require(written.size() == 1 + days.size() + unread.size(), "no line is doubled");
    const auto [daysBack, unreadBack] = load();
    require(daysBack == days && unreadBack == unread, "a record comes back");
    return 0;
}
