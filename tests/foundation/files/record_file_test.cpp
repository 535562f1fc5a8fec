#include "foundation/files/record_file.h"

#include "foundation/files/file_faults.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::MemoryFiles;

constexpr Column kCode{1, 3};
constexpr Column kName{5, 8};

TEST(RecordLine, FieldsArePaddedCutAndTrimmed) {
    struct Case {
        const char* typed;
        const char* bytes;
        const char* readBack;
    };
    for (const Case& c : {Case{"ANA", "    ANA     ", "ANA"},
                          {"  ANA  ", "    ANA     ", "ANA"},
                          {"JOÃO CARLOS", "    JO\xC3O CAR", "JOÃO CAR"},
                          {"CONCEIÇÃO", "    CONCEI\xC7\xC3", "CONCEIÇÃ"},
                          {"", "            ", ""}}) {
        RecordLine line(12);
        line.put(kName, c.typed);
        EXPECT_EQ(line.bytes(), c.bytes) << c.typed;
        EXPECT_EQ(fieldOf(line.bytes(), kName), c.readBack) << c.typed;
    }
}

TEST(RecordLine, ShortLinesReadAsBlank) {
    EXPECT_EQ(fieldOf("001 AN", kName), "AN");
    EXPECT_EQ(fieldOf("001", kName), "");
    EXPECT_EQ(rawFieldOf("001 AN", kName), "AN      ");
    EXPECT_EQ(rawFieldOf("", kCode), "   ");
}

TEST(RecordLine, KeepsWhatNoColumnCovers) {
    RecordLine line("001xANA     \x81 tail", 12);
    line.put(kName, "BIA");
    EXPECT_EQ(line.bytes(), "001xBIA     \x81 tail");
}

TEST(RecordLine, ARefusedTextChangesNothing) {
    RecordLine line("001 ANA     ", 12);
    for (const char* text : {"a\nb", "Ana 😀", "cut at the width, then 日"})
        EXPECT_THROW(line.put(kName, text), TextFault) << text;
    EXPECT_EQ(line.bytes(), "001 ANA     ");
}

TEST(RecordLine, AColumnThatSaysTheSameKeepsItsBytes) {
    for (const char* bytes : {"001  ANA    ", "001 \x81\t\x01     ", "001 AN\xC3\xA3    "}) {
        RecordLine line(bytes, 12);
        line.put(kName, fieldOf(bytes, kName));
        EXPECT_EQ(line.bytes(), bytes);
    }
}

TEST(RecordFile, LinesComeBackWhateverEndsThem) {
    struct Case {
        const char* bytes;
        std::vector<std::string> lines;
    };
    for (const Case& c : {Case{"", {}},
                          {"a\r\nb\r\n", {"a", "b"}},
                          {"a\nb\n", {"a", "b"}},
                          {"a\r\nb", {"a", "b"}},
                          {"a\r\n\r\nb\r\n", {"a", "", "b"}},
                          {"a\rb\r\n", {"a\rb"}},
                          {"a\r\r\n", {"a\r"}},
                          {"\n\n", {"", ""}},
                          {"\r", {""}},
                          {"\xEF\xBB\xBF"
                           "01\n",
                           {"\xEF\xBB\xBF"
                            "01"}}}) {
        EXPECT_EQ(splitLines(c.bytes), c.lines) << c.bytes;
        EXPECT_EQ(splitLines(joinedLines(c.lines)), c.lines) << c.bytes;
    }
    EXPECT_EQ(joinedLines({"a", "b"}), "a\r\nb\r\n");
    const std::string withNul("a\0b\n\0", 5);
    EXPECT_EQ(splitLines(withNul), (std::vector<std::string>{withNul.substr(0, 3), {'\0'}}));
}

TEST(RecordFile, TooManyLinesAreRefusedAndLeftAlone) {
    MemoryFiles files;
    RecordFile file(files, "/data/list");
    const std::string most(kMostLines, '\n');
    files.content["/data/list"] = most;
    EXPECT_EQ(file.lines().size(), kMostLines);
    EXPECT_THROW(file.append("one more"), FileFault);
    EXPECT_EQ(files.content["/data/list"], most);
    files.content["/data/list"] += '\n';
    EXPECT_THROW((void)file.lines(), FileFault);
}

TEST(RecordFile, ReadsMissingAsEmptyAndCreatesOnFirstWrite) {
    MemoryFiles files;
    RecordFile file(files, "/data/list");
    EXPECT_TRUE(file.lines().empty());
    file.append("one");
    file.append("two");
    EXPECT_EQ(files.content.at("/data/list"), "one\r\ntwo\r\n");
    EXPECT_TRUE(file.remove());
    EXPECT_FALSE(file.remove());
}

TEST(RecordFile, SettingFilesHoldOneValueALine) {
    MemoryFiles files;
    RecordFile file(files, "/data/LocMen.lvc");
    file.rewriteValues({"C", "São"});
    EXPECT_EQ(files.content.at("/data/LocMen.lvc"), "C\r\nS\xE3o\r\n");
    EXPECT_EQ(file.values(), (std::vector<std::string>{"C", "São"}));
    EXPECT_THROW(file.rewriteValues({"D", "😀"}), TextFault);
    EXPECT_EQ(files.content.at("/data/LocMen.lvc"), "C\r\nS\xE3o\r\n");
}

}  // namespace
}  // namespace winvrx
