#include "output/stocks/printer_memory.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::TestWorkplace;

TEST(PrinterMemory, IsWrittenInTwoFilesOfTheCompany) {
    TestWorkplace desk;
    EXPECT_EQ(loadPrinterMemory(desk.store(), *desk.session.company), PrinterMemory());
    const PrinterMemory memory{.exit = SheetExit::FaceUp,
                               .tray = TrayPosition::Lateral,
                               .trays = {"Manual", "", "Inferior ção"},
                               .printHeader = false};
    savePrinterMemory(desk.store(), *desk.session.company, memory);
    EXPECT_EQ(desk.file("01ImpressoraTipo"), "Cima\r\n");
    EXPECT_EQ(desk.file("01Impresstec"), "Lateral\r\nManual\r\n\r\nInferior \xE7\xE3o\r\n0\r\n");
    EXPECT_EQ(loadPrinterMemory(desk.store(), *desk.session.company), memory);
    savePrinterMemory(desk.store(), *desk.session.company, {});
    EXPECT_EQ(loadPrinterMemory(desk.store(), *desk.session.company), PrinterMemory());
}

TEST(PrinterMemory, WhatIsNotUnderstoodStays) {
    TestWorkplace desk;
    desk.file("01ImpressoraTipo") = "Jato\r\nmais\r\n";
    desk.file("01Impresstec") = "Frente\r\nManual";
    PrinterMemory memory = loadPrinterMemory(desk.store(), *desk.session.company);
    EXPECT_EQ(memory, (PrinterMemory{.trays = {"Manual", "", ""}}));
    memory.trays[1] = "Alta";
    savePrinterMemory(desk.store(), *desk.session.company, memory);
    EXPECT_EQ(desk.file("01ImpressoraTipo"), "Jato\r\nmais\r\n");
    EXPECT_EQ(desk.file("01Impresstec"), "Frente\r\nManual\r\nAlta\r\n\r\n\r\n");
}

TEST(PrinterMemory, ATrayThatCannotBeStoredLeavesTheFilesAlone) {
    TestWorkplace desk;
    desk.file("01Impresstec") = "Central\r\n";
    EXPECT_THROW(
        savePrinterMemory(desk.store(), *desk.session.company, {.trays = {"日本", "", ""}}),
        TextFault);
    EXPECT_EQ(desk.file("01Impresstec"), "Central\r\n");
    EXPECT_FALSE(desk.files.exists("/data/01ImpressoraTipo"));
}

}  // namespace
}  // namespace winvrx
