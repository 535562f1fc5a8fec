#include "foundation/files/record_names.h"

#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::MemoryFiles;

const CompanyCode kFirst = *CompanyCode::parse("01");
const CompanyCode kSecond = *CompanyCode::parse("02");
const EmployeeCode kEmployee = *EmployeeCode::parse("001");

TEST(RecordNames, NamesAreReadByPosition) {
    struct Case {
        const char* name;
        bool ofCompany;
        bool ofEmployee;
    };
    for (const Case& c : {Case{"01PadrHor001.pdx", true, true},
                          {"01PadrHor002.pdx", true, false},
                          {"01MedHorExtr001", true, true},
                          {"01configAf001", true, true},
                          {"01configAf010", true, false},
                          {"01contrato001", true, true},
                          {"01contrato002", true, false},
                          {"01Ferias001", true, true},
                          {"01Ferias002", true, false},
                          {"01TRTC001", true, true},
                          {"01THRTC002", true, false},
                          {"01AviTRTC001", true, true},
                          {"01001-03-2024.bdx", true, true},
                          {"01fp0000103-2024.bdx", true, true},
                          {"01fp0000203-2024.bdx", true, false},
                          {"01fv0000103-2024.bdx", true, true},
                          {"01fi0000203-2024.bdx", true, false},
                          {"01002-03-2024.bdx", true, false},
                          {"01001032024.pdx", true, true},
                          {"01001132024.txt", false, false},
                          {"01001012.pdx", true, false},
                          {"01CartaPonto", true, false},
                          {"01CartaoDePontoTipo", true, false},
                          {"01ImpressoraTipo", true, false},
                          {"01Impresstec", true, false},
                          {"01Impresstecla", false, false},
                          {"01GRUPO-032024.rdx", true, false},
                          {"01er.rdx", true, false},
                          {"01FolhaOpcoes", true, false},
                          {"01confgger", true, false},
                          {"01001confgger2", true, true},
                          {"01002confgger2", true, false},
                          {"01confgger2", false, false},
                          {"01Empresa", false, false},
                          {"02PadrHor001.pdx", false, false},
                          {"x01PadrHor001.pdx", false, false},
                          {"bk-0115-03-2024-10-00.bkp", false, false},
                          {"", false, false}}) {
        EXPECT_EQ(isRecordOfCompany(c.name, kFirst), c.ofCompany) << c.name;
        EXPECT_EQ(isRecordOfEmployee(c.name, {kFirst, kEmployee}), c.ofEmployee) << c.name;
    }
}

TEST(RecordNames, DeletingACodeLeavesTheOthersAlone) {
    MemoryFiles files;
    const DataFolder folder('C', "/data");
    for (const char* name :
         {"01Empresa", "01CartaPonto", "01PadrHor001.pdx", "02CartaPonto", "02PadrHor001.pdx",
          "02PadrHor002.pdx", "02001-03-2024.bdx", "01Impresstec", "02Impresstec"})
        files.content[folder.file(name)] = name;
    removeRecordsOfEmployee({files, folder}, {kSecond, kEmployee});
    EXPECT_TRUE(files.exists("/data/02PadrHor002.pdx"));
    EXPECT_TRUE(files.exists("/data/02CartaPonto"));
    EXPECT_EQ(files.content.size(), 7U);
    removeSettingsOfCompany({files, folder}, kSecond);
    EXPECT_EQ(files.content.size(), 6U);
    removeRecordsOfCompany({files, folder}, kSecond);
    EXPECT_EQ(files.content.size(), 4U);
    EXPECT_TRUE(files.exists("/data/01Empresa"));
    EXPECT_TRUE(files.exists("/data/01CartaPonto"));
    EXPECT_TRUE(files.exists("/data/01PadrHor001.pdx"));
}

}  // namespace
}  // namespace winvrx
