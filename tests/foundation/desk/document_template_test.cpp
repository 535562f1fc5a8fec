#include "foundation/desk/document_template.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

DocumentWords someWords(Agreement agreement = Agreement::Neutral) {
    DocumentWords words;
    words.agreement = agreement;
    words.words.put("nome", "ANA {x} [y]");
    words.words.put("cidade", "Vitória");
    words.words.put("rg", "");
    for (const char* child : {"BIA", "CAIO"}) {
        MergeWords entry = words.words;
        entry.put("filho", child);
        words.lists["filhos"].push_back(entry);
    }
    words.lists["netos"];
    return words;
}

/// The blocks in short: "^14b TITULO", "| a | b", "|. sem grade".
std::string outline(const Document& document) {
    std::string text;
    for (const auto& block : document.blocks) {
        if (const auto* table = std::get_if<DocumentTable>(&block)) {
            for (const auto& row : table->rows) {
                text += table->gridLines ? "|" : "|.";
                for (const Paragraph& cell : row)
                    text += (cell.bold ? "*" : " ") + cell.text + " |";
                text += '\n';
            }
            continue;
        }
        const auto& paragraph = std::get<Paragraph>(block);
        text += "LCRJ"[static_cast<int>(paragraph.side)] + std::to_string(paragraph.points) +
                (paragraph.bold ? "b" : "") + (paragraph.startsPage ? "p" : "") + " " +
                paragraph.text + "\n";
    }
    return text;
}

TEST(DocumentTemplate, FillsTexts) {
    struct Case {
        const char* text;
        Agreement agreement;
        const char* filled;
    };
    using enum Agreement;
    for (const Case& one : {
             Case{"{nome} de {cidade}", Neutral, "ANA {x} [y] de Vitória"},
             Case{"empregad{o|a} {ao|à} {do|da} portador{|a} {ele|ela} irm{ão|ã}", Neutral,
                  "empregado(a) ao(à) do(a) portador(a) ele(a) irmão(ã)"},
             Case{"empregad{o|a} {ao|à} portador{|a}", Masculine, "empregado ao portador"},
             Case{"empregad{o|a} {ao|à} portador{|a}", Feminine, "empregada à portadora"},
             Case{"a {rg} b, {rg}, c {rg}.", Neutral, "a b,, c."},
             Case{"RG: {rg}  SERIE: {rg:5}", Neutral, "RG: SERIE: _____"},
             Case{"RG: 1  SERIE: 2", Neutral, "RG: 1  SERIE: 2"},
             Case{"{nome}[, RG {rg}], de {cidade}[, em {cidade}[ com {rg}]].", Neutral,
                  "ANA {x} [y], de Vitória, em Vitória."},
             Case{"({rg:3})", Neutral, "(___)"},
         })
        EXPECT_EQ(filledText(one.text, someWords(one.agreement)), one.filled) << one.text;
}

TEST(DocumentTemplate, ComposesEachKindOfLine) {
    const DocumentTemplate source{"a.txt",
                                  "; comentário\r\n= TÍTULO {cidade}\n\nEu, {nome},\n"
                                  "declaro.\n\n== Um\n? rg\nNunca\n= Nem isto\n? cidade\n?.\n?.\n"
                                  "?! rg\nSem RG\n?.\nFim // da linha\n^ meio\n> direita\n"
                                  "|: 30 40\n|! Filho | De\n|* filhos | {filho} | {nome}\n"
                                  "|* netos | {neto} | \n| {o|a} | \n|. 170\n| livre\n---\n@ 9\n"
                                  "Outra\n"};
    EXPECT_EQ(outline(composed(source, "T", someWords())),
              "C14b TÍTULO Vitória\nJ11 Eu, ANA {x} [y], declaro.\nL11b Um\nJ11 Sem RG\n"
              "L11 Fim\nda linha\nC11 meio\nR11 direita\n"
              "|*Filho |*De |\n| BIA | ANA {x} [y] |\n| CAIO | ANA {x} [y] |\n| o(a) |  |\nL6 \n"
              "|. livre |\nL6 \nJ9p Outra\n");
    const Document signedBy = composed({"a.txt", "_ {nome} // EMPREGADA | B"}, "T", someWords());
    const auto& cells = std::get<DocumentTable>(signedBy.blocks.at(0)).rows.at(0);
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_TRUE(cells[0].text.ends_with("___\nANA {x} [y]\nEMPREGADA")) << cells[0].text;
}

TEST(DocumentTemplate, NamesFileLineAndWhatMakesNoSense) {
    struct Case {
        const char* text;
        const char* said;
    };
    for (const Case& one : {
             Case{"x\n\n{nomes}", "linha 3: A palavra \"nomes\" não é conhecida"},
             Case{"? rg\n{nomes}\n\n?.", "linha 3: A palavra \"nomes\""},
             Case{"? nomes\n?.", "linha 1: A palavra \"nomes\""},
             Case{"= {nome", "linha 1: Falta fechar o sinal \"{\""},
             Case{"= [{nome}", "linha 1: Falta fechar o sinal \"[\""},
             Case{"= {rg:x}", "A palavra \"rg:x\""},
             Case{"= {rg:9999999999}", "A palavra \"rg:"},
             Case{"? rg", "Falta a linha \"?.\""},
             Case{"?.", "não fecha nenhuma"},
             Case{"@ 99", "de 6 a 40"},
             Case{"| a", "Falta a linha \"|:\""},
             Case{"|: 100 100\n", "no máximo 170"},
             Case{"|:\n", "no máximo 170"},
             Case{"|: a\n", "são números"},
             Case{"|: 10 10\n| a", "linha 2: A linha da tabela tem 1 de 2"},
             Case{"|: 10\n|* primos | a", "A palavra \"primos\""},
         }) {
        try {
            (void)composed({"Aviso.txt", one.text}, "T", someWords());
            ADD_FAILURE() << one.text;
        } catch (const Fault& fault) {
            EXPECT_TRUE(fault.explanation().starts_with("No modelo Aviso.txt, linha "));
            EXPECT_NE(fault.explanation().find(one.said), std::string::npos) << fault.explanation();
        }
    }
}

TEST(DocumentTemplate, TheOfficesOwnFileGoesFirst) {
    testing::MemoryFiles files;
    files.content["/own/a.txt"] = "\xEF\xBB\xBF= É";
    files.content["/shipped/a.txt"] = "= B";
    files.content["/shipped/b.txt"] = "= \xC9";
    for (const char* name : {"a.txt", "b.txt"})
        EXPECT_EQ(loadTemplate(files, {"/own", "/shipped"}, name).text, "= É") << name;
    EXPECT_THROW((void)loadTemplate(files, {"/own", "/shipped"}, "c.txt"), Fault);
}

}  // namespace
}  // namespace winvrx
