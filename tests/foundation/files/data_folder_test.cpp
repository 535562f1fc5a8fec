#include "foundation/files/data_folder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace winvrx {
namespace {

const CompanyCode kFirst = *CompanyCode::parse("01");

class TwoDrives final : public Drives {
  public:
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        if (letter == 'C') return "/home/ana/drive_c";
        if (letter == 'D') return "/media/pendrive";
        return {};
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'D'}; }
};

TEST(DataFolder, TheDriveLetterChangesEveryPath) {
    const TwoDrives drives;
    EXPECT_EQ(pathOnDrive(drives, 'C', kDataFolder),
              "/home/ana/drive_c/Users/Public/Documents/Winvrx/");
    EXPECT_EQ(pathOnDrive(drives, 'Z', kDataFolder), "");
    const DataFolder onDrive('D', pathOnDrive(drives, 'D', kDataFolder));
    EXPECT_EQ(onDrive.companyFile(kFirst, "CartaoDePontoTipo"),
              "/media/pendrive/Users/Public/Documents/Winvrx/01CartaoDePontoTipo");
    EXPECT_EQ(onDrive.file("qdb.mdb"), "/media/pendrive/Users/Public/Documents/Winvrx/qdb.mdb");
}

TEST(DataFolder, ASharedProgramKeepsItsDataBesideItself) {
    EXPECT_TRUE(isShare("\\\\servidor\\programas"));
    EXPECT_FALSE(isShare("C:\\Winvrx"));
    EXPECT_FALSE(isShare("/opt/winvrx"));
    EXPECT_EQ(shareDataFolder("\\\\servidor\\programas"), "//servidor/programas/Winvrx/");
}

TEST(DataFolder, NoNameLeadsOutside) {
    const DataFolder folder('C', "/data");
    for (const char* name :
         {"", ".", "..", "../x", "a/b", "a\\b", "C:x", "/etc/passwd", "01\n", "01\x1F"})
        EXPECT_THROW((void)folder.file(name), std::invalid_argument) << name;
    EXPECT_THROW((void)folder.file(std::string_view("01\0x", 4)), std::invalid_argument);
}

}  // namespace
}  // namespace winvrx
