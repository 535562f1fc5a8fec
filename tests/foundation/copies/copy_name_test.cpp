#include "foundation/copies/copy_name.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<CopyName> named(const std::vector<std::string>& names) {
    std::vector<CopyName> copies;
    for (const std::string& name : names)
        copies.push_back(CopyName::parse(name).value());
    return copies;
}

std::vector<std::string> outdatedOf(const std::vector<std::string>& names) {
    std::vector<std::string> old;
    for (const CopyName& copy : outdated(named(names), *parseDate("15/03/2024")))
        old.push_back(copy.text());
    return old;
}

TEST(CopyNameTest, TellsWhenAndWhyACopyWasMade) {
    const auto daily = CopyName::parse("2024-03-15-0812.zip");
    ASSERT_TRUE(daily);
    EXPECT_EQ(dateText(daily->made.date) + " " + timeText(daily->made.time), "15/03/2024 08:12");
    EXPECT_EQ(daily->kind, CopyName::Kind::Daily);
    const auto second = CopyName::parse("2024-03-15-0812-antes-2.zip");
    ASSERT_TRUE(second);
    EXPECT_EQ(second->kind, CopyName::Kind::Before);
    EXPECT_EQ(second->number, 2);
    EXPECT_TRUE(daily->isOlderThan(*second));
    EXPECT_FALSE(second->isOlderThan(*daily));
}

TEST(CopyNameTest, OtherFilesAreNoCopies) {
    for (const char* name :
         {"", ".zip", "2024-03-15.zip", "2024-02-30-0812.zip", "2024-03-15-2460.zip",
          "2024-03-15-0812.ZIP", "2024-03-15-0812-antes", "2024-03-15-0812-antes-1.zip",
          "2024-03-15-0812-antes-02.zip", "2024-03-15-0812-depois.zip", "2024-03-15-0812x.zip",
          "2024-03-15-0812-antes-99999999999.zip", "2024/03/15-0812.zip"})
        EXPECT_FALSE(CopyName::parse(name)) << name;
}

TEST(CopyNameTest, SevenDaysOfUseAreKept) {
    const std::vector<std::string> seven{
        "2024-01-02-0900.zip", "2024-02-01-0800.zip", "2024-03-05-0800.zip", "2024-03-11-0800.zip",
        "2024-03-12-0800.zip", "2024-03-14-0800.zip", "2024-03-15-0800.zip"};
    EXPECT_THAT(outdatedOf(seven), IsEmpty());
    auto more = seven;
    more.insert(more.end(), {"2024-01-01-0900.zip", "2023-12-31-2359-antes.zip",
                             "2024-01-02-1000-antes.zip", "2024-03-15-1020-antes.zip"});
    EXPECT_THAT(outdatedOf(more), ElementsAre("2024-01-01-0900.zip", "2023-12-31-2359-antes.zip"));
}

TEST(CopyNameTest, AWrongClockCostsNoCopy) {
    std::vector<std::string> copies{"2024-03-14-0800.zip", "2024-03-15-0800.zip"};
    for (int day = 10; day < 20; ++day)
        copies.push_back("2031-05-" + std::to_string(day) + "-0800.zip");
    EXPECT_THAT(outdatedOf(copies), IsEmpty());
}

TEST(CopyNameTest, TwoCopiesOfOneDayAreOneDay) {
    std::vector<std::string> copies;
    for (int day = 10; day < 15; ++day)
        for (const char* time : {"0800", "0801"})
            copies.push_back("2024-03-" + std::to_string(day) + "-" + time + ".zip");
    EXPECT_THAT(outdatedOf(copies), IsEmpty());
}

}  // namespace
}  // namespace winvrx
