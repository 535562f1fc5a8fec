#include "tests/timecard/rotation/rotation_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using namespace testing;

using Rotation = RotationScreen;

TEST_F(Rotation, PrintsTheTextOfA5x1) {
    draw({1, 2, 3, 4, 5}, 5, 7, 4);
    EXPECT_FALSE(screen.printText()) << "not recorded yet";
    ASSERT_TRUE(save() && screen.printText());
    EXPECT_THAT(editor.opened, ElementsAre("FolhaRevezamento.txt"));
    const auto lines = splitLines(desk.file("FolhaRevezamento.txt"));
    ASSERT_EQ(lines.size(), 45U);
    for (const std::string& line : lines) {
        EXPECT_EQ(line.size(), lines.front().size());
        EXPECT_TRUE((line.front() == '|' && line.back() == '|') ||
                    (line.front() == '+' && line.back() == '+'))
            << line;
    }
    EXPECT_THAT(lines[1], HasSubstr("ESCALA DE REVEZAMENTO 5 x 1"));
    EXPECT_THAT(lines[2], HasSubstr("| Empresa:"));
    EXPECT_THAT(lines[3], HasSubstr("| Endere\xE7o: "));
    EXPECT_THAT(lines[6], HasSubstr(" Data     Dia |            FOLGUISTA         |             "
                                    "Escala de Folga"));
    EXPECT_THAT(lines[11], HasSubstr("| 04/03/24 seg |                              | ==>  FOLGA  "
                                     "==> 007 E7 <== (Folguista)"));
    EXPECT_THAT(lines[12], HasSubstr("| 05/03/24 ter | 007 E7                       | ==>  FOLGA  "
                                     "==> 001 E1 "));
    EXPECT_THAT(lines[42], HasSubstr(" _________________________________________ "));
    EXPECT_THAT(lines[43], HasSubstr(" Visto Fiscal "));
}

TEST_F(Rotation, PrintsTheTextOfA12x36) {
    show(ShiftFilter::Tres, Scale::Normal);
    show(ShiftFilter::Tres, Scale::TwelveByThirtySix);
    ASSERT_TRUE(screen.newGroup() && screen.add({at(10), at(11)}));
    ASSERT_TRUE(save() && screen.printText());
    const auto lines = splitLines(desk.file("FolhaRevezamento.txt"));
    EXPECT_THAT(lines[1], HasSubstr("ESCALA DE REVEZAMENTO 12 x 36"));
    EXPECT_THAT(lines[6],
                HasSubstr(" Equipes      |            1. Equipe de Trabalho        |            2. "
                          "Equipe de Trabalho        |            3. Equipe de Trabalho        |"));
    EXPECT_THAT(lines[8], HasSubstr("| 01/03/24 sex | ==>  FOLGA  ==>                         | "
                                    "011 E11 "));
    EXPECT_THAT(lines[9], HasSubstr("| 02/03/24 s\xE1"
                                    "b | 010 E10 "));
}

TEST_F(Rotation, PrintsAPageForEachGroup) {
    draw({1, 2}, 5, 7, 8);
    ASSERT_TRUE(save());
    draw({3, 4}, 1);
    ASSERT_TRUE(save() && screen.printSheets(ReportOutput::Preview));
    ASSERT_EQ(engine.jobs.size(), 1U);
    const auto& job = engine.jobs.front();
    ASSERT_EQ(job.cards.size(), 2U);
    ASSERT_EQ(job.cards[0].size(), 3U) << "a row a person";
    const auto value = [&](std::size_t page, std::size_t row, const char* column) {
        const auto& columns = job.request.columns;
        const auto found = std::ranges::find(columns, column);
        return job.cards[page][row].at(static_cast<std::size_t>(found - columns.begin()));
    };
    EXPECT_EQ(value(0, 0, "titulo"), "ESCALA DE REVEZAMENTO 5 x 1");
    EXPECT_EQ(value(0, 0, "t5"), "F");
    EXPECT_EQ(value(0, 0, "w29"), "fer");
    EXPECT_EQ(value(0, 1, "t29"), "T");
    EXPECT_EQ(value(0, 2, "papel"), "Folguista");
    EXPECT_EQ(value(0, 2, "t5"), "R");
    EXPECT_EQ(value(0, 0, "c5"), "2");
    EXPECT_EQ(value(0, 0, "lacunas"), "");
    EXPECT_THAT(value(1, 0, "lacunas"), HasSubstr("01, 02, 07, 08"));
    EXPECT_THAT(value(1, 0, "lacunas"), HasSubstr("SEM FOLGUISTA"));
}

}  // namespace
}  // namespace winvrx
