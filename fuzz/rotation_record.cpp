#include "fuzz/invariant.h"
#include "timecard/rotation/rotation_plan.h"
#include "timecard/rotation/work_table.h"

using namespace winvrx;
using namespace std::chrono_literals;
using fuzz::require;

namespace {

constexpr WorkMonth kMonth = 2024y / 3;

void checkGroup(const RotationGroup& group) {
    require(groupOf(recordOf(group)) == group, "a group comes back");
    const RotationPlan plan = planOf(group, kMonth);
    require(plan.rows.size() == group.members().size(), "everyone has a row");
    require(continued(group, kMonth).firstDayOff >= firstDay(kMonth), "it goes on in the month");
    require(planOf(continued(group, kMonth), kMonth).working == plan.working, "in the same rhythm");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    const Store store{files, fuzz::kFolder};
    const std::string text(fuzz::textOf(data, size));
    files.content["/data/01GRUPO-032024.rdx"] = files.content["/data/01er.rdx"] = text;
    for (const GroupLine& line : groupFile(store, fuzz::kCompany, kMonth).load()) {
        require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kGroupWidth) ||
                    line.bytes.empty(),
                "an unchanged group keeps its bytes");
        if (const auto group = groupOf(line.record)) checkGroup(*group);
    }

    const auto before = splitLines(text);
    for (const std::string& line : before)
        if (const auto table = decodeTable(line))
            require(encode(*table, line) == fuzz::widened(line, kTableWidth),
                    "an unchanged table keeps its bytes");
    WorkTable table = loadTable(store, fuzz::kCompany, Shift::Um, Scale::FiveByOne);
    (void)findingIn(table);
    table.rows[0][0] = "05:55";
    saveTable(store, fuzz::kCompany, table);
    require(loadTable(store, fuzz::kCompany, Shift::Um, Scale::FiveByOne).rows[0][0] == "05:55",
            "a change comes back");
    const auto after = splitLines(files.content["/data/01er.rdx"]);
    std::size_t changed = after.size() - before.size();
    for (std::size_t line = 0; line < before.size(); ++line)
        if (after[line] != before[line]) ++changed;
    require(changed <= 1, "the other lines keep their bytes");
    return 0;
}
