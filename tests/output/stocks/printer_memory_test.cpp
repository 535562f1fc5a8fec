#include "output/stocks/printer_memory.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

TEST(PrinterMemory, IsWrittenInTwoFilesOfTheCompany) {
    TestWorkplace desk;
    EXPECT_EQ(loadPrinterMemory(desk.files, desk.session), PrinterMemory());
    const PrinterMemory memory{.output = CardOutput::FaceUp,
                               .tray = TrayPosition::Lateral,
                               .trays = {"Manual", "", "Inferior ção"},
                               .printHeader = false};
    savePrinterMemory(desk.files, desk.session, memory);
    EXPECT_EQ(desk.file("01ImpressoraTipo"), "Cima\r\n");
    EXPECT_EQ(desk.file("01Impresstec"), "Lateral\r\nManual\r\n\r\nInferior \xE7\xE3o\r\n0\r\n");
    EXPECT_EQ(loadPrinterMemory(desk.files, desk.session), memory);
    savePrinterMemory(desk.files, desk.session, {});
    EXPECT_EQ(loadPrinterMemory(desk.files, desk.session), PrinterMemory());
}

TEST(PrinterMemory, WhatIsNotUnderstoodStays) {
    TestWorkplace desk;
    desk.file("01ImpressoraTipo") = "Jato\r\nmais\r\n";
    desk.file("01Impresstec") = "Frente\r\nManual";
    PrinterMemory memory = loadPrinterMemory(desk.files, desk.session);
    EXPECT_EQ(memory, (PrinterMemory{.trays = {"Manual", "", ""}}));
    memory.trays[1] = "Alta";
    savePrinterMemory(desk.files, desk.session, memory);
    EXPECT_EQ(desk.file("01ImpressoraTipo"), "Jato\r\nmais\r\n");
    EXPECT_EQ(desk.file("01Impresstec"), "Frente\r\nManual\r\nAlta\r\n\r\n\r\n");
}

TEST(PrinterMemory, ATrayThatCannotBeStoredLeavesTheFilesAlone) {
    TestWorkplace desk;
    desk.file("01Impresstec") = "Central\r\n";
    EXPECT_THROW(savePrinterMemory(desk.files, desk.session, {.trays = {"日本", "", ""}}),
                 TextFault);
    EXPECT_EQ(desk.file("01Impresstec"), "Central\r\n");
    EXPECT_FALSE(desk.files.exists("/data/01ImpressoraTipo"));
}

}  // namespace
}  // namespace winvrx
