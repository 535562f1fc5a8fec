#include "output/labels/criar_etiqueta.h"

#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::TestWorkplace;

struct LabelCatalogue : ::testing::Test {
    TestWorkplace desk;
    CriarEtiqueta screen{desk.at};

    void agree() { desk.person.answers = {Answer::Yes}; }
    [[nodiscard]] std::vector<std::string> onDisk(const char* name = "01confgctps") {
        return splitLines(desk.file(name));
    }
    [[nodiscard]] static std::vector<std::string> defaults() {
        std::vector<std::string> lines;
        for (const auto& line : defaultLabels())
            lines.push_back(line.bytes);
        return lines;
    }
};

TEST_F(LabelCatalogue, IsChangedAsAWholeAndComesBack) {
    screen.load();
    EXPECT_EQ(screen.lines(), defaultLabels());
    EXPECT_FALSE(screen.canUndo());
    EXPECT_TRUE(desk.files.content.empty());
    EXPECT_EQ(screen.freshRecord(), (LabelText{"09", "", "09 "}));

    agree();
    ASSERT_TRUE(screen.include({"9", " Férias ", "09 Gozou férias"}));
    EXPECT_EQ(onDisk("01confgctpsBB"), defaults());
    EXPECT_EQ(onDisk().size(), 9U);
    EXPECT_EQ(onDisk()[8], "09 F\xE9rias                               09 Gozou f\xE9rias");
    agree();
    ASSERT_TRUE(screen.change(8, {"09", "Férias", "  09"}));
    EXPECT_EQ(onDisk()[8].substr(40), "  09");
    agree();
    ASSERT_TRUE(screen.remove(0));
    EXPECT_EQ(onDisk().size(), 8U);
    EXPECT_EQ(onDisk("01confgctpsBB").size(), 9U);
    std::vector<std::string> asked;
    for (const Message& message : desk.person.shown)
        asked.push_back(message.title + ": " + message.text);
    EXPECT_THAT(asked,
                ElementsAre("INCLUSÃO: Confirma INCLUSÃO? ", "ALTERAÇÃO: Confirma ALTERAÇÃO? ",
                            "EXCLUSÃO: Confirma EXCLUSÃO? "));
    EXPECT_EQ(desk.person.shown[2].detail, "01 Contrato Experiência");

    agree();
    ASSERT_TRUE(screen.undo());
    EXPECT_EQ(screen.count(), 9U);
    EXPECT_EQ(onDisk().size(), 9U);
    EXPECT_FALSE(screen.canUndo());
    EXPECT_FALSE(desk.files.content.contains("/data/01confgctpsBB"));
}

TEST_F(LabelCatalogue, AListEditedByHandIsReadAndKept) {
    const std::vector<std::string> lines = {
        "31 Editada                              curta", "nota", "",
        "02 Outra                                " + std::string(1500, 'x')};
    desk.file("01confgctps") = lines[0] + "\n" + lines[1] + "\n\n" + lines[3];
    screen.load();
    ASSERT_EQ(screen.count(), 4U);
    EXPECT_EQ(screen.lines()[3].record.text.size(), 1500U);
    EXPECT_FALSE(screen.rowAt(1).understood);
    EXPECT_EQ(screen.freshRecord().number, "01");
    agree();
    ASSERT_TRUE(screen.change(0, {"31", "Editada", "curto"}));
    EXPECT_EQ(onDisk()[0].substr(40), "curto");
    for (const std::size_t line : {1, 2, 3})
        EXPECT_EQ(onDisk()[line], lines[line]);
    agree();
    EXPECT_TRUE(screen.remove(1));
    EXPECT_EQ(onDisk().size(), 3U);
}

TEST_F(LabelCatalogue, WhatCannotBeRecordedIsRefusedAndNothingChanges) {
    screen.load();
    const std::string tall = storedLabelText(std::string(kMostTextLines, '\n') + "x");
    struct Case {
        LabelText typed;
        const char* detail;
    };
    for (const Case& c : {Case{{"", "T", "x"}, "Falta preencher: Número."},
                          Case{{"09", " ", "x"}, "Falta preencher: Título."},
                          Case{{"09", "T", "  "}, "Falta preencher: Texto."},
                          Case{{"0", "T", "x"}, "Número: 0 não vai de 01 a 99."},
                          Case{{"8", "T", "x"}, "Número: 08 já está na lista."},
                          Case{{"09", "T", tall}, "Texto: tem 25 linhas; o máximo são 24."},
                          Case{{"09", "日", "x"}, "Título: "}}) {
        agree();
        EXPECT_FALSE(screen.include(c.typed));
        EXPECT_EQ(desk.person.shown.at(0).text, "Dados incorretos!");
        EXPECT_THAT(desk.person.shown.at(0).detail, HasSubstr(c.detail));
        desk.person.shown.clear();
    }
    desk.person.answers.clear();
    EXPECT_FALSE(screen.include({"09", "T", "x"})) << "not agreed";
    EXPECT_FALSE(screen.remove(0));
    EXPECT_FALSE(screen.undo());
    EXPECT_TRUE(desk.files.content.empty());
}

TEST_F(LabelCatalogue, AListChangedElsewhereIsNotOverwritten) {
    screen.load();
    agree();
    ASSERT_TRUE(screen.include({"09", "T", "x"}));
    const std::string other = "05 De outro                             x";
    desk.file("01confgctps") = other + "\r\n";
    const auto before = desk.files.content;
    agree();
    EXPECT_FALSE(screen.change(0, {"01", "T", "x"}));
    agree();
    EXPECT_FALSE(screen.undo());
    EXPECT_EQ(desk.files.content, before);
    desk.files.content.clear();
    agree();
    EXPECT_FALSE(screen.include({"10", "T", "x"})) << "an unmounted folder";
    EXPECT_TRUE(desk.files.content.empty());
}

}  // namespace
}  // namespace winvrx
