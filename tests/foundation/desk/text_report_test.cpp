#include "foundation/desk/text_report.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;

TEST(TextReport, ColumnsStayUnderEachOther) {
    TextReport report({{" Função", 8}, {"Horas", 7, TextColumn::Side::Right}, {"", 1}});
    report.addLine(" livre, mais larga que as colunas");
    report.addHeading("RELATÓRIO");
    report.addRule();
    report.addTitles();
    report.addRule('|');
    report.addRow({"ÇÇÇÇÇÇÇÇÇÇ", "44:00", ""});
    report.addRow({"", "1.000.000,00", "ÁB"});
    EXPECT_THAT(report.lines(),
                ElementsAre(" livre, mais larga que as colunas", "RELATÓRIO         |",
                            "--------+-------+-+", " Função |  Horas| |", "--------+-------+-|",
                            "ÇÇÇÇÇÇÇÇ|  44:00| |", "        |1.000.0|Á|"));
    EXPECT_THROW(report.addRow({"uma só"}), std::logic_error);
}

}  // namespace
}  // namespace winvrx
