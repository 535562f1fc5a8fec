#include "foundation/files/desktop/system_drives.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

/// What is plugged in later must not take over the folder that records are written to.
TEST(VolumeLetters, AVolumeKeepsItsLetterForTheRun) {
    struct Step {
        std::vector<std::filesystem::path> mounted;
        std::map<char, std::filesystem::path> letters;
    };
    VolumeLetters letters;
    for (const Step& step :
         {Step{{"/media/m"}, {{'D', "/media/m"}}},
          Step{{"/media/z", "/media/a", "/media/m"},
               {{'D', "/media/m"}, {'E', "/media/a"}, {'F', "/media/z"}}},
          Step{{"/media/z"}, {{'F', "/media/z"}}},
          Step{{"/media/b", "/media/m"}, {{'D', "/media/m"}, {'G', "/media/b"}}}})
        EXPECT_EQ(letters.of(step.mounted), step.letters);
    std::vector<std::filesystem::path> many;
    for (int volume = 0; volume < 200; ++volume)
        many.emplace_back("/media/n" + std::to_string(volume));
    EXPECT_EQ(letters.of(many).rbegin()->first, 'Z');
}

}  // namespace
}  // namespace winvrx
