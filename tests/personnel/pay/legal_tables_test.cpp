#include "personnel/pay/legal_tables.h"

#include "tests/support/legal_tables.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

const std::filesystem::path kProgram = "/program/legal";

/// A program folder with the delivered files, and an empty data folder.
struct LegalFolders {
    testing::MemoryFiles files;
    DataFolder folder{'C', "/data"};

    LegalFolders() {
        for (const std::string_view name : kLegalFiles)
            files.content[kProgram / name] =
                systemFiles()->read(std::filesystem::path(WINVRX_LEGAL_FOLDER) / name).value();
    }
    [[nodiscard]] LegalTables load() { return loadLegalTables({files, folder}, kProgram); }
};

TEST(LegalTables, HoldFromTheirFirstDayToTheNext) {
    LegalFolders folders;
    const LegalTables tables = folders.load();
    struct Case {
        Date date;
        std::int64_t exempt;
        std::int64_t simplified;
    };
    for (const Case& c : {Case{2023y / 4 / 30, 190398, 0}, Case{2023y / 5 / 1, 211200, 52800},
                          Case{2024y / 1 / 31, 211200, 52800}, Case{2024y / 2 / 1, 225920, 56480},
                          Case{2025y / 4 / 30, 225920, 56480}, Case{2025y / 5 / 1, 242880, 60720},
                          Case{2026y / 1 / 1, 242880, 60720}}) {
        SCOPED_TRACE(dateText(c.date));
        EXPECT_EQ(tables.incomeTax.at(c.date).brackets.front().top.cents, c.exempt);
        EXPECT_EQ(tables.simplifiedDiscount.at(c.date).amount.cents, c.simplified);
        EXPECT_EQ(tables.taxReduction.find(c.date) != nullptr, c.date >= 2026y / 1 / 1);
    }
    EXPECT_EQ(tables.inss.at(2025y / 12 / 31).ceiling(), Money{815741});
    EXPECT_EQ(tables.inss.at(2026y / 1 / 1).ceiling(), Money{847555});
    // Each bracket begins where the one below ends: no income falls between two, and the tax does
    // not jump by more than the cents of its deduction.
    for (const IncomeTaxTable& table : tables.incomeTax.lines())
        for (std::size_t i = 1; i < table.brackets.size(); ++i) {
            const Bracket& low = table.brackets[i - 1];
            const Bracket& high = table.brackets[i];
            const Fraction step = Fraction(low.top) * (high.rate - low.rate) / 100 -
                                  Fraction(high.deduction) + Fraction(low.deduction);
            EXPECT_LT(step, Fraction(2)) << dateText(table.from) << " " << i;
            EXPECT_GT(step, Fraction(-2)) << dateText(table.from) << " " << i;
        }
}

TEST(LegalTables, SayWhereAMonthHasNoLine) {
    LegalFolders folders;
    const LegalTables tables = folders.load();
    EXPECT_TRUE(tables.warnings(2024y / 1, 2024y / 1 / 31).empty());
    EXPECT_TRUE(tables.warnings(2026y / 12, 2026y / 12 / 31).empty());
    const auto early = tables.warnings(2020y / 2, 2020y / 3 / 6);
    ASSERT_EQ(early.size(), 3U);
    EXPECT_EQ(early[1], "Não há tabela do INSS para 01/02/2020: a tabela começa em 01/03/2020.");
    const auto late = tables.warnings(2026y / 12, 2027y / 1 / 6);
    ASSERT_EQ(late.size(), 1U);
    EXPECT_EQ(late[0],
              "A última linha de tabela do IRRF vale desde 01/01/2026. Confira se ainda vale em "
              "06/01/2027.");
    EXPECT_EQ(tables.warnings(2027y / 1, 2027y / 1 / 29).size(), 4U);
    EXPECT_THROW((void)tables.inss.at(2020y / 2 / 29), LegalTableFault);
}

TEST(LegalTables, TakeTheUsersOwnLinesOverTheDelivered) {
    LegalFolders folders;
    folders.files.content["/data/salario-minimo.txt"] =
        "\xEF\xBB\xBF"
        "desde; valor; fonte\r\n01/2027; 1.700,00; Decreto\r\n"
        "# corrige\r\n01/2026; 1.622,00; acordo\r\n";
    const LegalTables tables = folders.load();
    EXPECT_EQ(tables.minimumWage.at(2026y / 12 / 31).amount, Money{162200});
    EXPECT_EQ(tables.minimumWage.at(2027y / 1 / 1).amount, Money{170000});
    EXPECT_EQ(tables.minimumWage.at(2025y / 12 / 31).amount, Money{151800});
    EXPECT_EQ(tables.warnings(2027y / 1, 2026y / 12 / 31).size(), 2U);
}

TEST(LegalTables, RefuseBadLinesByFileLineAndCause) {
    struct Case {
        const char* file;
        const char* bytes;
        const char* explanation;
    };
    for (const Case& c : {
             Case{"inss.txt", "01/2026; 1,00; 7,5; A\n",
                  "inss.txt, linha 1: a primeira linha deve começar com \"desde;\"."},
             Case{"salario-minimo.txt", "desde; valor\n13/2026; 1,00; A\n",
                  "salario-minimo.txt, linha 2: \"13/2026\" não é um mês mm/aaaa."},
             Case{"salario-minimo.txt", "desde; valor\n\n# nota\n01/2026; 1.62,00; A\n",
                  "salario-minimo.txt, linha 4: \"1.62,00\" não é um valor em reais."},
             Case{"salario-minimo.txt", "desde; valor\n01/2026; 1.621,00\n",
                  "salario-minimo.txt, linha 2: falta a fonte."},
             Case{"salario-minimo.txt", "desde; valor\n01/2026; 1,00; A; B\n",
                  "salario-minimo.txt, linha 2: há colunas a mais depois da fonte."},
             Case{"salario-minimo.txt", "desde; valor\n01/2026; 1,00; A\n01/2026; 2,00; B\n",
                  "salario-minimo.txt, linha 3: o início 01/01/2026 já está em outra linha."},
             Case{"inss.txt", "desde; até\n01/2026; 2.000,00; 7,5; 1.000,00; 9; A\n",
                  "inss.txt, linha 2: as faixas devem subir em valor e em alíquota."},
             Case{"inss.txt", "desde; até\n01/2026; 2.000,00; 750; A\n",
                  "inss.txt, linha 2: a alíquota passa de 100%."},
             Case{"inss.txt", "desde; até\n01/2026; 2.000,00; 7,5%; A\n",
                  "inss.txt, linha 2: \"7,5%\" não é um número."},
             Case{"irrf-tabela.txt", "desde; isento\n31/02/2026; 2.000,00; A\n",
                  "irrf-tabela.txt, linha 2: \"31/02/2026\" não é uma data dd/mm/aaaa."},
             Case{"irrf-tabela.txt",
                  "desde; isento\n01/01/2026; 2.000,00; 3.000,00; 7,5; 1,00; A\n",
                  "irrf-tabela.txt, linha 2: falta a faixa sem limite."},
             Case{"irrf-reducao.txt", "desde; a\n01/01/2026; 5,00; 1,00; 4,00; 9,00; 0,1; A\n",
                  "irrf-reducao.txt, linha 2: o limite da redução parcial é menor que o da redução "
                  "total."},
         }) {
        LegalFolders folders;
        folders.files.content[std::filesystem::path("/data") / c.file] = c.bytes;
        const auto before = folders.files.content;
        try {
            (void)folders.load();
            ADD_FAILURE() << c.explanation;
        } catch (const LegalTableFault& fault) {
            EXPECT_EQ(fault.explanation(), std::string("Tabela legal ") + c.explanation);
        }
        EXPECT_EQ(folders.files.content, before);
    }
    LegalFolders folders;
    folders.files.content.erase(kProgram / "inss.txt");
    EXPECT_THROW((void)folders.load(), LegalTableFault);
}

}  // namespace
}  // namespace winvrx
