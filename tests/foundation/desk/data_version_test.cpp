#include "foundation/desk/data_version.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(ProgramVersion, IsReadAndOrderedByNumbers) {
    struct Case {
        const char* text;
        std::optional<ProgramVersion> expected;
    };
    for (const Case& one :
         {Case{"1.0.0", ProgramVersion{1, 0, 0}}, Case{"12.30.4", ProgramVersion{12, 30, 4}},
          Case{"", std::nullopt}, Case{"1.0", std::nullopt}, Case{"1.0.0b", std::nullopt},
          Case{"-1.0.0", std::nullopt}, Case{"1..0", std::nullopt},
          Case{"99999999999.0.0", std::nullopt}})
        EXPECT_EQ(parseProgramVersion(one.text), one.expected) << one.text;
    EXPECT_LT(*parseProgramVersion("1.9.12"), *parseProgramVersion("1.10.0"));
    EXPECT_EQ(parseProgramVersion(programVersion().text()), programVersion());
}

TEST(DataVersion, IsNotedWithTheFirstRecordAndNeverLowered) {
    const std::string ours = programVersion().text() + "\r\n";
    struct Case {
        const char* before;
        const char* written;
        std::string after;
    };
    for (const Case& one :
         {Case{"", "/data/01Empresa", ours}, Case{"0.9.0\r\n", "/data/01Empresa", ours},
          Case{"damaged", "/data/01Empresa", ours},
          Case{"99.0.0\r\n", "/data/01Empresa", "99.0.0\r\n"}, Case{"", "/data/LocMen.lvc", ""},
          Case{"", "/data/DataIde.ivc", ""}, Case{"", "/elsewhere/file", ""}}) {
        testing::TestWorkplace desk;
        if (*one.before) desk.file("VersaoDados") = one.before;
        VersionedFiles files(desk.files, desk.session);
        files.replace(one.written, "bytes");
        files.replaceAll({{one.written, "later"}});
        EXPECT_EQ(files.read("/data/VersaoDados").value_or(""), one.after) << one.written;
        EXPECT_EQ(files.read(one.written), "later");
    }
}

}  // namespace
}  // namespace winvrx
