#include "timecard/card/card_sheet.h"

#include "timecard/card/cell_block.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using namespace std::chrono_literals;

struct EditedSheet : ::testing::Test {
    CardSheet sheet{blankMonth(2024y / 2)};

    [[nodiscard]] std::string entryOf(int day) const {
        return sheet.text(day, PunchCell::MorningEntry);
    }
};

TEST_F(EditedSheet, TimesAreTakenAsHandsTypeThem) {
    struct Case {
        const char* typed;
        const char* shown;
        bool good;
    };
    for (const Case& c :
         {Case{"8", "08:00", true}, Case{"800", "08:00", true}, Case{"8:0", "08:00", true},
          Case{"08:00", "08:00", true}, Case{" 1730 ", "17:30", true}, Case{"8,5", "8,5", false},
          Case{"", "", true}, Case{"24", "24", false}, Case{"860", "860", false},
          Case{"8h", "8h", false}, Case{"-1", "-1", false}}) {
        sheet.type(5, PunchCell::MorningEntry, c.typed);
        EXPECT_EQ(entryOf(5), c.shown) << c.typed;
        EXPECT_EQ(sheet.findingAt(5, PunchCell::MorningEntry).empty(), c.good) << c.typed;
    }
}

TEST_F(EditedSheet, EditsAreTakenBackAndMadeAgainUntilRecorded) {
    EXPECT_FALSE(sheet.undo());
    sheet.type(1, PunchCell::MorningEntry, "8");
    sheet.type(1, PunchCell::MorningEntry, "9");
    sheet.type(1, PunchCell::MorningEntry, "9:00");  // no change
    sheet.type({{2, PunchCell::MorningEntry, "7"}, {2, PunchCell::Situation, "FERIADO"}});
    EXPECT_EQ(sheet.undo(), 2);
    EXPECT_EQ(entryOf(2), "");
    EXPECT_EQ(sheet.line(2).situation, "");
    EXPECT_TRUE(sheet.undo());
    EXPECT_EQ(entryOf(1), "08:00");
    EXPECT_EQ(sheet.redo(), 1);
    EXPECT_EQ(sheet.redo(), 2);
    EXPECT_FALSE(sheet.redo());
    EXPECT_EQ(entryOf(1) + entryOf(2), "09:0007:00");
    EXPECT_TRUE(sheet.undo());
    sheet.type(3, PunchCell::MorningEntry, "6");
    EXPECT_FALSE(sheet.redo());  // another way was taken
    sheet.markRecorded();
    EXPECT_FALSE(sheet.undo());
    EXPECT_EQ(entryOf(3), "06:00");
}

TEST_F(EditedSheet, AnAbsenceEmptiesItsDayInTheSameEdit) {
    struct Case {
        const char* typed;
        bool wholeDay;
    };
    for (const Case& c : {Case{"fal", true}, Case{"Falta Injustificada", true},
                          Case{"Falta Inj.", true}, Case{"atestado", true}, Case{"ferias", true},
                          Case{"Folga", true}, Case{"abonado", true}, Case{"FERIADO", false},
                          Case{"AFASTAMENTO", false}, Case{"Reunião", false}, Case{"", false}})
        for (const bool pasted : {false, true}) {
            sheet = CardSheet(blankMonth(2024y / 2));
            sheet.type({{5, PunchCell::MorningEntry, "8h"}, {5, PunchCell::ExtraExit, "20"}});
            const PunchLine before = sheet.line(5);
            if (pasted)
                EXPECT_EQ(paste(sheet, 5, PunchCell::ExtraExit, {{"21", "x", c.typed}}), "");
            else
                sheet.type(5, PunchCell::Situation, c.typed);
            const PunchLine& after = sheet.line(5);
            EXPECT_EQ(after.morningEntry, c.wholeDay ? "" : "8h") << c.typed;
            EXPECT_EQ(after.extraExit.empty(), c.wholeDay) << c.typed;
            EXPECT_EQ(sheet.note().empty(), !c.wholeDay) << c.typed;
            EXPECT_EQ(sheet.line(5) == before || sheet.undo() == 5, true) << c.typed;
            EXPECT_EQ(sheet.line(5), before) << c.typed;
        }
    EXPECT_EQ(sheet.note(), "");
}

TEST_F(EditedSheet, ManyAbsencesAreSaidInOneSentence) {
    sheet.type({{5, PunchCell::MorningEntry, "8"}, {6, PunchCell::MorningEntry, "8"}});
    sheet.type(7, PunchCell::Situation, "Falta");
    EXPECT_EQ(sheet.note(), "") << "nothing was lost";
    sheet.type(5, PunchCell::Situation, "Falta");
    EXPECT_EQ(sheet.note(), "Falta: as horas de 05/seg/fev saíram; Ctrl+Z as traz de volta.");
    EXPECT_TRUE(sheet.undo());
    EXPECT_EQ(paste(sheet, 5, PunchCell::Situation, {{"Folga"}, {"Folga"}}), "");
    EXPECT_EQ(sheet.note(), "As horas de 2 dias com situação saíram; Ctrl+Z as traz de volta.");
    sheet.type(5, PunchCell::MorningEntry, "8");
    EXPECT_EQ(sheet.noticeAt(5, PunchCell::Situation),
              "Num dia com horas o cartão imprime as horas e não \"Folga\".");
}

TEST(CellBlock, IsReadAsSpreadsheetsWriteIt) {
    struct Case {
        const char* text;
        CellBlock block;
    };
    for (const Case& c : std::vector<Case>{{"", {}},
                                           {"8", {{"8"}}},
                                           {"8\t12\n", {{"8", "12"}}},
                                           {"8\t\r\n\t12\r\n", {{"8", ""}, {"", "12"}}},
                                           {"a\rb", {{"a"}, {"b"}}},
                                           {"8\n\n9", {{"8"}, {""}, {"9"}}},
                                           {"\"a\tb \"\"c\"\"\nd\"\t9", {{"a\tb \"c\"\nd", "9"}}},
                                           {"\"open", {{"\"open"}}}})
        EXPECT_EQ(parseCellBlock(c.text), c.block) << c.text;
    const CellBlock block = {{"08:00", "a\tb"}, {"", "say \"x\""}};
    EXPECT_EQ(parseCellBlock(textOf(block)), block);
}

TEST_F(EditedSheet, ABlockIsPastedAsOneEdit) {
    EXPECT_EQ(paste(sheet, 28, PunchCell::ExtraExit,
                    parseCellBlock("20:00:00\tx\tReunião\n8:30:15\t\t\n")),
              "");
    EXPECT_EQ(sheet.line(28).extraExit, "20:00");
    EXPECT_EQ(sheet.line(28).shortField, "x");
    EXPECT_EQ(sheet.line(28).situation, "Reunião");
    EXPECT_EQ(sheet.line(29).extraExit, "8:30:15");
    EXPECT_EQ(sheet.findingAt(29, PunchCell::ExtraExit),
              "\"8:30:15\" não é uma hora de 00:00 a 23:59.");
    EXPECT_TRUE(sheet.undo());
    EXPECT_FALSE(sheet.changed());
}

TEST_F(EditedSheet, ABlockThatHasNoPlaceIsRefusedWhole) {
    EXPECT_EQ(paste(sheet, 28, PunchCell::MorningEntry, parseCellBlock("8\n8\n8")),
              "O bloco tem 3 linhas; a partir do dia 28 o mês tem 2.");
    EXPECT_EQ(paste(sheet, 1, PunchCell::ShortField, parseCellBlock("a\tb\tc")),
              "O bloco tem 3 colunas; a partir desta célula cabem 2.");
    EXPECT_FALSE(sheet.changed());
}

}  // namespace
}  // namespace winvrx
