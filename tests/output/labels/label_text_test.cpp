#include "output/labels/label_text.h"

#include "foundation/values/text.h"
#include "output/labels/label_blanks.h"
#include "output/labels/label_pages.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string kFull(kLabelLineWidth, 'x');
const std::string kWide = "ãããããããããããããããããããããããããããããããããããã";  // 36 letters

std::string onOneLine(const std::string& text) {
    std::string words;
    for (const std::string& line : labelLines(text))
        words += line + " ";
    return words;
}

TEST(DefaultLabels, EachSaysItsPointsAndFitsEverySheet) {
    struct Case {
        const char* number;
        const char* title;
        std::vector<std::string> points;
    };
    const Case cases[] = {
        {"01",
         "Contrato Experiência",
         {"Admitido", "____ dias", "art. 445 da CLT", "por mais ____ dias", "Data: __/"}},
        {"02",
         "Trabalhar em Outra Cidade",
         {"cidade de ____", "contrato n. ____", "empresa ____", "Data: __/"}},
        {"03",
         "Adicional de Insalubridade",
         {"A partir de __/__/____", "insalubridade de ____%", "salário mínimo"}},
        {"04",
         "Adicional de Periculosidade",
         {"Além do salário normal", "____%", "periculosidade", "Data: __/"}},
        {"05",
         "Ajuste Salarial",
         {"A partir de __/__/____", "R$ ____", "mesma função", "ajuste salarial"}},
        {"06",
         "Serviço Médico Próprio",
         {"médico próprio", "faltas por doença", "Portaria 39 do MPAS", "art. 32 da CLPS"}},
        {"07",
         "Alteração de Função",
         {"contrato da página ____", "alterada para ____", "a partir de __/__/____"}},
        {"08",
         "Dispensa do Ponto",
         {"A partir de __/__/____", "externo", "horário fixo", "art. 62, inciso I, da CLT"}},
    };
    ASSERT_EQ(defaultLabels().size(), std::size(cases));
    for (std::size_t at = 0; at < std::size(cases); ++at) {
        const LabelText& label = defaultLabels()[at].record;
        EXPECT_EQ(label.number, cases[at].number);
        EXPECT_EQ(label.title, cases[at].title);
        EXPECT_THAT(label.text, ::testing::StartsWith(label.number + " "));
        for (const std::string& point : cases[at].points)
            EXPECT_THAT(onOneLine(label.text), HasSubstr(point)) << label.number;
        EXPECT_THAT(onOneLine(label.text), HasSubstr("Assinatura"));
        EXPECT_LE(labelLines(label.text).size(), 8U) << label.number;
        // Blanks settle where lines begin: no word lies over the end of one.
        EXPECT_EQ(storedLabelText(shownLabelText(label.text)), label.text);
        for (const std::string& line : labelLines(label.text))
            EXPECT_THAT(wrappedLine(line), ElementsAre(line));
    }
}

TEST(LabelText, BreaksAfterEachLineOfTheLabel) {
    struct Case {
        std::string shown;
        LabelLines lines;
    };
    for (const Case& c :
         {Case{"", {}}, Case{"  \n \n", {}}, Case{"01 Ação\n\n  fim  ", {"01 Ação", "", "  fim"}},
          Case{kFull + "\nx", {kFull, "x"}}, Case{kFull + "yz", {kFull, "yz"}},
          Case{kFull + "   ", {kFull}}, Case{"a " + kFull, {"a", kFull}},
          Case{"função " + kWide + " é", {"função", kWide + " é"}},
          Case{"    " + kFull, {"    " + kFull.substr(4), "xxxx"}}}) {
        const std::string text = storedLabelText(c.shown);
        EXPECT_EQ(labelLines(text), c.lines) << c.shown;
        EXPECT_EQ(storedLabelText(shownLabelText(text)), text) << c.shown;
    }
}

TEST(LabelText, KeepsEveryByteOfALineThatSaysTheSame) {
    const std::string head = "01 Contrato                             ";
    ASSERT_EQ(head.size(), 40U);
    for (const std::string& line :
         {head + "   com   brancos \x81 ", std::string("01"), std::string(), std::string("?x"),
          std::string("07 T\xEDtulo          escrito \xE0 m\xE3o     09 Texto"), head + " "}) {
        const auto label = decode<LabelText>(line);
        EXPECT_EQ(encode(label, line).substr(0, line.size()), line);
        EXPECT_EQ(decode<LabelText>(encode(label, line)), label);
    }
    EXPECT_EQ(decode<LabelText>(head + "  a  \xE7  "), (LabelText{"01", "Contrato", "  a  ç  "}));
    EXPECT_EQ(encode(LabelText{"01", "Contrato", "x  ç "}, head + "y"), head + "x  \xE7 ");
    EXPECT_THROW((void)encode(LabelText{"01", "Contrato", "日"}), TextFault);
    EXPECT_FALSE(keyOf(decode<LabelText>("nota de quem editou")));
}

MergeWords wordsOf(const std::string& salary, const std::string& function) {
    Employee employee;
    employee.salary = salary;
    employee.function = function;
    employee.admission = "12/03/2024";
    employee.name = "ANA CONCEIÇÃO";
    MergeWords words = mergeWords({}, employee);
    words.put(kLabelDayWord, "15/03/2024");
    return words;
}

TEST(LabelBlanks, AreFilledAsFarAsTheRegisterKnows) {
    struct Case {
        const char* shown;
        LabelLines lines;
    };
    for (const Case& c : {
             Case{"Admitido em __/__/____ por ____ dias", {"Admitido em 12/03/2024 por ____ dias"}},
             Case{"o salário passa a R$\n______________, na",
                  {"o salário passa a R$", "1.850,00, na"}},
             Case{"A PARTIR  DE __/__/____. Data: ______",
                  {"A PARTIR  DE 15/03/2024. Data: 15/03/2024"}},
             Case{"Nome: ____", {"Nome: ANA CONCEIÇÃO"}},
             Case{"contrato ___ da página ____", {"contrato ___ da página ____"}},
             Case{"CTPS: ____ e R$ ____%", {"CTPS: ____ e R$ 1.850,00%"}},
             Case{"Data: __/__/____\n______", {"Data: 15/03/2024", "______"}},
             Case{"fica alterada para ____, que exerce aqui agora",
                  {"fica alterada para OPERADOR DE MÁQUINA,", "que exerce aqui", "agora"}},
         })
        EXPECT_EQ(filledLines(storedLabelText(c.shown), wordsOf("1.850,00", "OPERADOR DE MÁQUINA")),
                  c.lines);
    EXPECT_THAT(filledLines("R$ ____ na função de ____", wordsOf("", "")),
                ElementsAre("R$ ____ na função de ____"));
}

TEST(LabelPages, FillTheSheetFromItsFirstFreeLabel) {
    std::vector<std::size_t> asked;
    const LabelSheet sheet = kLabelSheets[1];
    ReportPages pages = labelPages({.sheet = sheet,
                                    .labels = 7,
                                    .linesOf =
                                        [&](std::size_t label) {
                                            asked.push_back(label);
                                            return LabelLines{std::to_string(label), "", "fim"};
                                        },
                                    .copies = 2,
                                    .first = 11});
    EXPECT_EQ(pages.count(), 2U);
    EXPECT_THAT(asked, ElementsAre());
    const ReportRows first = *pages.next();
    EXPECT_THAT(asked, ElementsAre(0, 0, 1));
    ASSERT_EQ(first.size(), sheet.rows);
    const auto& columns = labelColumns();
    const auto at = [&](const ReportRows& rows, std::size_t row, const char* name) {
        return rows.at(row).at(
            static_cast<std::size_t>(std::ranges::find(columns, name) - columns.begin()));
    };
    EXPECT_EQ(at(first, 5, "e1_1") + at(first, 5, "e2_1") + at(first, 5, "e2_3"), "0fim");
    EXPECT_EQ(at(first, 6, "e1_1") + at(first, 6, "e2_1"), "01");
    EXPECT_THAT(first[4], Each(""));
    const ReportRows second = *pages.next();
    EXPECT_EQ(at(second, 0, "e1_1") + at(second, 4, "e2_1") + at(second, 5, "e1_1"), "166");
    EXPECT_THAT(second[6], Each(""));
    EXPECT_FALSE(pages.next());
    for (const LabelSheet& one : kLabelSheets)
        EXPECT_EQ((LabelRun{.sheet = one, .labels = 999, .linesOf = {}, .first = one.labels() - 1}
                       .sheets()),
                  1 + (998 + one.labels() - 1) / one.labels());
}

}  // namespace
}  // namespace winvrx
