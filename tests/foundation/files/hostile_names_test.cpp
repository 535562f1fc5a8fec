#include "foundation/register/empresa.h"
#include "tests/support/employee_desk.h"
#include "tests/support/fenced_files.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::FencedFiles;
using ::testing::IsEmpty;
using testing::TestWorkplace;

const std::vector<std::string> kHostileCodes = {
    "../", "..\\", "/x/", "a/b",      "..",
    ".",   "C:",   "0:1", "1\\1",     "*",
    "01/", "+01",  "-01", "\xB2\xB3", std::string("0\0", 2)};

/// A desk whose commands are watched at the fence of the data folder.
struct HostileNames : ::testing::Test {
    TestWorkplace desk;
    FencedFiles fenced{desk.files, "/data"};
    testing::TestEditor editor;
    testing::TestSpreadsheet spreadsheet;
    testing::TestLocks locks;
    Workplace at{fenced, desk.person, desk.clock, desk.log, desk.session, desk.lock};

    void answerYes(int times) {
        desk.person.answers.assign(static_cast<std::size_t>(times), Answer::Yes);
    }
};

TEST_F(HostileNames, ACompanyLineNamesNoFileOutside) {
    std::string bytes = encode(sampleCompany(*parseDate("15/03/2024"))) + "\r\n";
    for (const std::string& code : kHostileCodes)
        bytes += code + " EMPRESA\r\n";
    desk.file("01Empresa") = bytes;
    Empresa screen(at);
    screen.load();
    ASSERT_EQ(screen.lines().size(), kHostileCodes.size() + 1);
    for (std::size_t row = kHostileCodes.size(); row > 0; --row) {
        EXPECT_FALSE(screen.lines()[row].key()) << screen.lines()[row].record.code;
        answerYes(1);
        EXPECT_FALSE(screen.change(row, sampleCompany(*parseDate("15/03/2024"))));
        EXPECT_EQ(desk.file("01Empresa"), bytes);
    }
    for (std::size_t row = kHostileCodes.size(); row > 0; --row) {
        answerYes(4);
        screen.choose(DeleteOption::CompanyAndEmployees);
        EXPECT_TRUE(screen.remove(row));
    }
    EXPECT_THAT(fenced.trespasses(), IsEmpty());
}

TEST_F(HostileNames, AnEmployeeLineNamesNoFileOutside) {
    std::string bytes;
    for (const std::string& code : kHostileCodes)
        bytes += code + " NOME\r\n";
    desk.file("01CartaPonto") = bytes;
    Empregados screen(at, {editor, spreadsheet, locks, locks});
    screen.load();
    ASSERT_EQ(screen.lines().size(), kHostileCodes.size());
    EXPECT_THAT(employeesOf(screen.lines(), ShiftFilter::Todos), IsEmpty());
    for (std::size_t row = kHostileCodes.size(); row > 0; --row) {
        answerYes(1);
        EXPECT_TRUE(screen.remove(row - 1)) << row;
    }
    EXPECT_EQ(desk.file("01CartaPonto"), "");
    EXPECT_THAT(fenced.trespasses(), IsEmpty());
}

TEST_F(HostileNames, ATypedCodeNamesNoFileOutside) {
    Employee typed;
    typed.name = "NOME";
    typed.admission = "01/02/2020";
    typed.shift = "Unico";
    typed.scale = "Normal";
    Empregados screen(at, {editor, spreadsheet, locks, locks});
    screen.load();
    for (const std::string& code : kHostileCodes) {
        typed.code = code;
        answerYes(1);
        EXPECT_FALSE(screen.include(typed)) << code;
    }
    EXPECT_FALSE(desk.files.content.contains("/data/01CartaPonto"));
    EXPECT_THAT(fenced.trespasses(), IsEmpty());
}

}  // namespace
}  // namespace winvrx
