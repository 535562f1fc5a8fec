#include "foundation/register/company_register.h"

#include "foundation/files/file_faults.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::MemoryFiles;
using testing::TestWorkplace;

const Date kToday = *parseDate("15/03/2024");
const DataFolder kFolder('C', "/data");

TEST(Company, TheSampleLineHasEachFieldAtItsPlace) {
    const std::string line = encode(sampleCompany(kToday));
    EXPECT_EQ(line.size(), 549U);
    struct Case {
        std::size_t start;
        const char* bytes;
    };
    for (const Case& c : {Case{1, "01 EMPRESA MODELO LTDA "},
                          {72, "123.456.789/0001-99AV. BAND"},
                          {121, "CENTRO "},
                          {138, "15/03/2024TAUBATE "},
                          {166, "SP12080-700 "},
                          {188, "(99) 9999-9999 "},
                          {208, "123.456.789 "},
                          {228, "Fleipod "},
                          {258, "Brasileiro "},
                          {278, "Casado "},
                          {298, "Administrador "},
                          {348, "1785236-9 "},
                          {368, "999.999.999-77 "},
                          {388, "Rua Pedro Zap"},
                          {428, "Vitoria "},
                          {448,
                           "12099-000 CA\xC7"
                           "ADOR "},
                          {478, "SCSINDICATO S/A "},
                          {530, "222.333.444/0001-33 "}})
        EXPECT_EQ(line.substr(c.start - 1, std::string_view(c.bytes).size()), c.bytes) << c.start;
    EXPECT_EQ(decode<Company>(line), sampleCompany(kToday));
    EXPECT_EQ(encode(decode<Company>(line)), line);
}

TEST(Company, LongTextsAreCutToTheirField) {
    Company company = sampleCompany(kToday);
    company.name = std::string(70, 'N');
    company.state = "São Paulo";
    const Company stored = decode<Company>(encode(company));
    EXPECT_EQ(stored.name, std::string(68, 'N'));
    EXPECT_EQ(stored.state, "Sã");
    EXPECT_EQ(stored.taxId, company.taxId);
}

TEST(Company, BytesThatNobodyUnderstandsAreKept) {
    std::string line = encode(sampleCompany(kToday)) + " tail \x81";
    line.replace(120, 3, "\x01\x8D\t");
    Company company = decode<Company>(line);
    EXPECT_EQ(encode(company, line), line);
    company.name = "OUTRA";
    line.replace(3, 68, "OUTRA" + std::string(63, ' '));
    EXPECT_EQ(encode(company, line), line);
}

TEST(CompanyRegister, AMissingRegisterBeginsWithTheSampleCompany) {
    TestWorkplace desk;
    EXPECT_TRUE(loadCompanies({desk.files, kFolder}).empty());
    const auto lines = loadOrCreateCompanies(desk.at);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].record, sampleCompany(kToday));
    EXPECT_EQ(desk.file("01Empresa").size(), 551U);
}

TEST(CompanyRegister, AnUnreadableRegisterIsNotReplaced) {
    TestWorkplace desk;
    desk.file("01Empresa") = "02 ANTIGA\r\n";
    desk.files.failOn.insert("01Empresa");
    EXPECT_THROW((void)loadOrCreateCompanies(desk.at), FileFault);
    EXPECT_EQ(desk.file("01Empresa"), "02 ANTIGA\r\n");
}

TEST(CompanyRegister, LinesThatNobodyUnderstandsComeBackAsTheyWere) {
    MemoryFiles files;
    const std::string bytes = "01 A\r\n\r\nXX ?\x81\r\n123\r\n";
    files.content["/data/01Empresa"] = bytes;
    const auto lines = loadCompanies({files, kFolder});
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_TRUE(lines[0].key());
    for (const std::size_t damaged : {1U, 2U, 3U})
        EXPECT_FALSE(lines[damaged].key()) << damaged;
    companyFile({files, kFolder}).save(lines);
    EXPECT_EQ(files.content["/data/01Empresa"], bytes);
}

TEST(CompanyRegister, TheLowestFreeCodeIsProposed) {
    std::vector<CompanyLine> lines;
    EXPECT_EQ(lowestFreeCode(keysOf(lines))->text(), "01");
    for (int number = 1; number <= 99; ++number) {
        Company company;
        company.code = CompanyCode::fromNumber(number)->text();
        lines.push_back({{}, company});
    }
    EXPECT_EQ(lowestFreeCode(keysOf(lines)), std::nullopt);
    lines.erase(lines.begin() + 41);
    EXPECT_EQ(lowestFreeCode(keysOf(lines))->text(), "42");
}

}  // namespace
}  // namespace winvrx
