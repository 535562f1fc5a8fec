#include "timecard/rotation/rotation_group.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

const std::string kLine =
    "GRUPO-012 Unico 5x1   05/03/2024 007 09/03/2024                001     003             ";

TEST(RotationGroup, ComesBackFromItsLine) {
    const auto line = lineFrom<GroupRecord>(kLine.substr(0, kGroupWidth) + "further");
    const auto group = groupOf(line.record).value();
    EXPECT_EQ(group.number, 12);
    EXPECT_EQ(group.places.size(), 3U) << "the second is vacant";
    EXPECT_EQ(group.members().size(), 3U);
    EXPECT_EQ(group.listed(), 2U);
    EXPECT_EQ(groupOf(recordOf(group)), group);
    EXPECT_EQ(encode(recordOf(group), line.bytes), line.bytes);
    EXPECT_EQ(groupFileName(2024y / 3), "GRUPO-032024.rdx");
    const CompanyCode company = *CompanyCode::parse("01");
    const FolderNames names = {"01GRUPO-032024.rdx", "02GRUPO-052024.rdx", "01GRUPO-132024.rdx",
                               "01GRUPO-3.rdx",      "01GRUPO-062024.er",  "01GRUPO-",
                               "01GRUPO-0720240.rdx"};
    EXPECT_EQ(monthsWithGroups(names, company), std::vector{2024y / 3});
}

TEST(RotationGroup, IsNoneWhereItsLineIsDamaged) {
    struct Case {
        const char* what;
        std::size_t at;
        const char* bytes;
    };
    for (const Case& c : std::vector<Case>{{"no number", 6, "0x2"},
                                           {"number 0", 6, "000"},
                                           {"another stem", 0, "GRUPA"},
                                           {"no shift", 10, "Nunca"},
                                           {"no rotation", 16, "Norma"},
                                           {"impossible day", 22, "31/02"},
                                           {"no first day off", 22, "          "},
                                           {"no relief worker's day", 37, "          "},
                                           {"relief worker is no code", 33, "7  "},
                                           {"relief worker in the list", 33, "001"},
                                           {"twice in the list", 71, "001"},
                                           {"no code in the list", 71, "0-3"}}) {
        std::string line = kLine;
        line.replace(c.at, std::string_view(c.bytes).size(), c.bytes);
        EXPECT_EQ(groupOf(decode<GroupRecord>(line)), std::nullopt) << c.what;
    }
}

TEST(RotationGroup, OfTwoOfOneNumberTheFirstCounts) {
    std::string second = kLine;
    second.replace(second.find("003"), 3, "004");
    const auto groups = groupsIn({lineFrom<GroupRecord>(kLine), lineFrom<GroupRecord>(second)});
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_TRUE(groups[0].contains(*EmployeeCode::parse("003")));
}

}  // namespace
}  // namespace winvrx
