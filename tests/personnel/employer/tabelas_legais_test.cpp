#include "personnel/employer/tabelas_legais.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"
#include "tests/support/legal_tables.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using enum Answer;
using namespace std::chrono_literals;

const std::filesystem::path kLegal = "/program/legal";
constexpr std::size_t kWage = 0;
constexpr std::size_t kInss = 1;
constexpr std::size_t kTax = 3;

/// The clock stands in March 2024; the delivered tables go to 2026.
class TabelasLegaisTest : public ::testing::Test, protected testing::TestWorkplace {
  protected:
    TabelasLegaisTest() {
        testing::deliverLegalTables(files, kLegal, WINVRX_LEGAL_FOLDER);
        EXPECT_TRUE(tables.load());
    }

    TabelasLegais tables{at, kLegal};
};

TEST_F(TabelasLegaisTest, ShowFromWhenEachFigureIsValid) {
    EXPECT_EQ(tables.headings(kWage),
              (std::vector<std::string>{"desde", "salário mínimo", "fonte"}));
    EXPECT_EQ(tables.rows(kWage).back().cells.at(1), "1.621,00");
    EXPECT_EQ(tables.rows(kTax).back().from, 2026y / 1 / 1);
    EXPECT_FALSE(tables.rows(kTax).back().isOwn);
    EXPECT_TRUE(tables.warnings(2026y / 12).empty());
    EXPECT_EQ(tables.warnings(2027y / 1).size(), 4U);
    EXPECT_EQ(tables.warnings(2020y / 2).size(), 3U);
    EXPECT_EQ(tables.newLine(kInss).front(), "01/2027");
    EXPECT_EQ(tables.newLine(kTax).front(), "01/01/2027");
    EXPECT_EQ(tables.newLine(kInss).back(), "");
}

TEST_F(TabelasLegaisTest, RecordsAndDeletesTheUsersOwnLines) {
    const std::string delivered = files.content.at(kLegal / "salario-minimo.txt");
    const std::vector<std::string> wage = {"01/2027", "1.700,00", "Decreto 1/2026"};
    EXPECT_FALSE(tables.save(kWage, wage));
    EXPECT_FALSE(files.content.contains("/data/salario-minimo.txt"));
    person.answers = {Yes};
    EXPECT_TRUE(tables.save(kWage, wage));
    EXPECT_EQ(file("salario-minimo.txt"),
              "desde; salário mínimo; fonte\r\n01/2027; 1.700,00; Decreto 1/2026\r\n");
    EXPECT_TRUE(tables.rows(kWage).back().isOwn);
    EXPECT_EQ(tables.warnings(2027y / 1).size(), 3U);

    // A line from the same day gives way, and so does a delivered one; what is far off is named.
    person.answers = {Yes, Yes};
    EXPECT_TRUE(tables.save(kWage, {" 01/2027 ", "17,00", "Decreto 2/2026"}));
    EXPECT_EQ(person.shown.back().detail,
              "01/2027; 17,00; Decreto 2/2026\nFica no lugar da sua linha de 01/2027.\nsalário "
              "mínimo: 17,00 está longe do valor anterior, 1.621,00.");
    EXPECT_TRUE(tables.save(kWage, {"01/2026", "1.622,00", "corrigido"}));
    EXPECT_EQ(person.shown.back().detail,
              "01/2026; 1.622,00; corrigido\nFica no lugar da linha entregue de 01/2026.");
    EXPECT_EQ(splitLines(file("salario-minimo.txt")).size(), 3U);
    EXPECT_EQ(loadLegalTables(store(), kLegal).minimumWage.at(2026y / 5 / 1).amount, Money{162200});

    // Deleting an own line brings the delivered one back; without any the file goes.
    const auto last = tables.rows(kWage).size() - 1;
    EXPECT_FALSE(tables.remove(kWage, 0));
    EXPECT_EQ(person.shown.back().text, "As Linhas Entregues com o Programa não se Excluem!");
    person.answers = {Yes, Yes};
    EXPECT_TRUE(tables.remove(kWage, last));
    EXPECT_TRUE(tables.remove(kWage, last - 1));
    EXPECT_EQ(tables.rows(kWage).back().cells.at(1), "1.621,00");
    EXPECT_FALSE(files.content.contains("/data/salario-minimo.txt"));
    EXPECT_EQ(files.content.at(kLegal / "salario-minimo.txt"), delivered);
}

TEST_F(TabelasLegaisTest, RefusesWhatIsNoLine) {
    struct Case {
        std::size_t kind;
        std::vector<std::string> cells;
        const char* why;
    };
    for (const Case& c : {
             Case{kWage, {"13/2027", "1,00", "A"}, "\"13/2027\" não é um mês mm/aaaa."},
             Case{kWage, {"01/2027", "mil", "A"}, "\"mil\" não é um valor em reais."},
             Case{kWage, {"01/2027", "1.700,00", ""}, "falta a fonte."},
             Case{kWage, {"01/2027", "1.700,00", "2", "A"}, "há colunas a mais depois da fonte."},
             Case{kWage, {"01/2027", "1.700,00", "A; B"}, "Aspas, ponto e vírgula"},
             Case{kWage, {"# 01/2027", "1.700,00", "A"}, "Aspas, ponto e vírgula"},
             Case{kInss, {"01/2027", "2,00", "7,5", "1,00", "9", "A"}, "as faixas devem subir"},
             Case{kTax, {"01/01/2027", "2,00", "3,00", "7,5", "1,00", "A"}, "falta a faixa sem"},
         }) {
        person.shown.clear();
        person.answers = {Yes};
        EXPECT_FALSE(tables.save(c.kind, c.cells)) << c.why;
        ASSERT_EQ(person.shown.size(), 1U) << c.why;
        EXPECT_EQ(person.shown.front().text, "Linha da Tabela Incorreta!");
        EXPECT_NE(person.shown.front().detail.find(c.why), std::string::npos)
            << person.shown.front().detail;
        EXPECT_FALSE(files.content.contains("/data/salario-minimo.txt"));
        EXPECT_FALSE(files.content.contains("/data/inss.txt"));
    }
}

TEST_F(TabelasLegaisTest, KeepsWhatStandsInTheUsersFile) {
    const std::string own = encodeWindows1252("desde; salário mínimo; fonte") + "\n" +
                            encodeWindows1252("# só o que é meu") +
                            "\n01/2027; 1.700,00; A\n01/2028; 1.800,00; B\n";
    file("salario-minimo.txt") = own;
    person.answers = {Yes};
    EXPECT_FALSE(tables.save(kWage, {"01/2029", "1.900,00", "C"})) << "changed since it was read";
    EXPECT_EQ(file("salario-minimo.txt"), own);
    EXPECT_TRUE(tables.load());
    person.answers = {Yes};
    EXPECT_TRUE(tables.save(kWage, {"01/2027", "1.750,00", "Lei é"}));
    EXPECT_EQ(file("salario-minimo.txt"),
              encodeWindows1252("desde; salário mínimo; fonte") + "\r\n" +
                  encodeWindows1252("# só o que é meu") + "\r\n" +
                  encodeWindows1252("01/2027; 1.750,00; Lei é") + "\r\n01/2028; 1.800,00; B\r\n");
}

}  // namespace
}  // namespace winvrx
