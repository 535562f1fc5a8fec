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

void checkGroups(std::string_view bytes) {
    const fuzz::AnyFile file("/data/01GRUPO-032024.rdx", bytes);
    for (const GroupLine& line : groupFile(file.store, fuzz::kCompany, kMonth).load()) {
        require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kGroupWidth) ||
                    line.bytes.empty(),
                "an unchanged group keeps its bytes");
        if (const auto group = groupOf(line.record)) checkGroup(*group);
    }
}

void checkTables(std::string_view bytes) {
    const fuzz::AnyFile file("/data/01er.rdx", bytes);
    for (const std::string& line : file.before)
        if (const auto table = decodeTable(line))
            require(encode(*table, line) == fuzz::widened(line, kTableWidth),
                    "an unchanged table keeps its bytes");
    const auto load = [&] {
        return loadTable(file.store, fuzz::kCompany, Shift::Um, Scale::FiveByOne);
    };
    WorkTable table = load();
    (void)findingIn(table);
    table.rows[0][0] = "05:55";
    saveTable(file.store, fuzz::kCompany, table);
    require(load().rows[0][0] == "05:55", "a change comes back");
    require(file.changedLines() <= 1, "the other lines keep their bytes");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    checkGroups(bytes);
    checkTables(bytes);
}
