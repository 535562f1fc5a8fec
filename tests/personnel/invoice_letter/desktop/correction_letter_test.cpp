#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "personnel/invoice_letter/carta_correcao_imprime.h"
#include "personnel/invoice_letter/desktop/carta_correcao_window.h"
#include "personnel/invoice_letter/desktop/qt_xml_reader.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;

const std::string kKey = "35240311222333000181550010000012341000012345";

/// An event as the tax authority returns it; `prefix` is that of a name space: "ns:".
std::string eventFile(const std::string& prefix = "") {
    const auto tag = [&](const std::string& name, const std::string& text) {
        return "<" + prefix + name + ">" + text + "</" + prefix + name + ">";
    };
    const std::string request = tag("CNPJ", "11222333000181") + tag("chNFe", kKey) +
                                tag("dhEvento", "2024-03-15T10:20:30-03:00") +
                                tag("tpEvento", "110110") + "<" + prefix +
                                "detEvento versao=\"1.00\">" +
                                tag("xCorrecao", "Onde se lê 10 &amp; 11, leia-se 12 caixas") +
                                tag("xCondUso", "A Carta de Correção é disciplinada pelo § 1º-A") +
                                "</" + prefix + "detEvento>";
    const std::string answer = tag("chNFe", kKey) + tag("CNPJDest", "99888777000166") +
                               tag("dhRegEvento", "2024-03-15T10:20:31-03:00") +
                               tag("nProt", "135240000012345");
    const std::string space =
        prefix.empty() ? "" : " xmlns:ns=\"http://www.portalfiscal.inf.br/nfe\"";
    return "<" + prefix + "procEventoNFe" + space + "><" + prefix +
           "infEvento Id=\"ID1101103524\">" + request + "</" + prefix + "infEvento><" + prefix +
           "retEvento><" + prefix + "infEvento>" + answer + "</" + prefix + "infEvento></" +
           prefix + "retEvento></" + prefix + "procEventoNFe>";
}

std::string without(std::string text, const std::string& part) {
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part))
        text.erase(at, part.size());
    return text;
}

std::string findingIn(const std::string& bytes) {
    try {
        (void)readCorrectionLetter(QtXmlReader(), bytes);
        return {};
    } catch (const Fault& fault) {
        return fault.explanation();
    }
}

TEST(CorrectionLetter, IsReadInEveryDress) {
    const std::string head = "<?xml version=\"1.0\" encoding=\"";
    for (const std::string& bytes :
         {eventFile(), eventFile("ns:"), head + "UTF-8\"?>" + eventFile(),
          "\xEF\xBB\xBF" + head + "utf-8\"?>\n" + eventFile("ns:"),
          encodeWindows1252(head + "ISO-8859-1\"?>" + eventFile())}) {
        const CorrectionLetter letter = readCorrectionLetter(QtXmlReader(), bytes);
        EXPECT_EQ(letter.event, "ID1101103524");
        EXPECT_EQ(letter.issuer, "11222333000181");
        EXPECT_EQ(letter.recipient, "99888777000166");
        EXPECT_EQ(letter.accessKey, kKey);
        EXPECT_EQ(letter.protocol, "135240000012345");
        EXPECT_EQ(letter.correction, "Onde se lê 10 & 11, leia-se 12 caixas");
        EXPECT_EQ(letter.condition, "A Carta de Correção é disciplinada pelo § 1º-A");
        const ReportRows rows = letterRows(letter);
        EXPECT_EQ(rows.size(), 1U);
        EXPECT_EQ(rows[0].size(), letterColumns().size());
        EXPECT_THAT(rows[0], ::testing::IsSupersetOf({std::string("11.222.333/0001-81"),
                                                      std::string("15/03/2024 10:20:31"),
                                                      std::string("ID1101103524")}));
    }
}

TEST(CorrectionLetter, SaysWhatIsMissing) {
    std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY e0 \"lol\">";
    for (int i = 1; i < 30; ++i)
        bomb += "<!ENTITY e" + std::to_string(i) + " \"&e" + std::to_string(i - 1) + ";&e" +
                std::to_string(i - 1) + ";\">";
    bomb += "]><a>&e29;</a>";
    const std::string fetches =
        "<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY f SYSTEM \"file:///etc/passwd\">]>"
        "<a>&f;</a>";
    std::string deep;
    for (int i = 0; i < 5000; ++i)
        deep += "<a>";
    std::string longText = eventFile();
    longText.insert(longText.find("Onde"), std::string(3000, 'x') + " ");
    struct Case {
        std::string bytes;
        const char* finding;
    };
    for (const Case& c :
         {Case{"", "não é um XML bem formado"}, Case{"carta", "não é um XML bem formado"},
          Case{eventFile().substr(0, 300), "não é um XML bem formado"},
          Case{"<nfeProc><NFe/></nfeProc>",
               "falta infEvento, chNFe, dhRegEvento, nProt, dhEvento, xCorrecao, xCondUso."},
          Case{without(eventFile(), "135240000012345"), "falta nProt."},
          Case{without(eventFile(), " Id=\"ID1101103524\""), "falta infEvento."},
          Case{without(eventFile(), "45</chNFe>"), "não é um XML bem formado"},
          Case{without(eventFile(), "35240311"), "44 algarismos"}, Case{bomb, "definição de tipos"},
          Case{fetches, "definição de tipos"}, Case{deep, "elementos demais"},
          Case{longText, "mais longo"}}) {
        EXPECT_THAT(findingIn(c.bytes), HasSubstr(c.finding)) << c.bytes.substr(0, 200);
    }
    std::string other = eventFile();
    other.replace(other.find("110110<"), 6, "110111");
    EXPECT_THAT(findingIn(other), HasSubstr("110111, e não 110110"));
}

TEST(CorrectionLetter, LongTextsFillLinesOfThePage) {
    CorrectionLetter letter = readCorrectionLetter(QtXmlReader(), eventFile());
    std::string words;
    for (int i = 0; i < 120; ++i)
        words += "palavra ";
    letter.correction = words;
    const ReportRows rows = letterRows(letter);
    EXPECT_EQ(rows.size(), 11U);
    std::string together;
    const std::size_t column = letterColumns().size() - 2;
    for (const ReportRow& row : rows) {
        EXPECT_LE(characterCount(row[column]), 95U);
        together += row[column] + " ";
    }
    EXPECT_EQ(together, words);
}

struct LetterScreen : ::testing::Test {
    testing::TestWorkplace desk;
    testing::RecordingEngine engine;
    QtXmlReader reader;
    CartaCorrecaoImprime screen{desk.at, {engine, reader}};

    void SetUp() override {
        desk.files.content["/xml/a.xml"] = eventFile();
        desk.files.content["/xml/b.XML"] = "<outro/>";
        desk.files.content["/xml/c.txt"] = eventFile();
        desk.files.content["/xml/d.xml"] = std::string(std::size_t{2} << 20U, ' ');
        ASSERT_TRUE(screen.openFolder("/xml"));
    }
};

TEST_F(LetterScreen, PrintsTheFileChosenUnderItsName) {
    ASSERT_EQ(screen.files().size(), 3U);
    EXPECT_FALSE(screen.print(ReportOutput::Printer));
    EXPECT_EQ(desk.person.takeTexts().back(), "Selecione um Arquivo na Lista!");
    screen.select(1);
    EXPECT_FALSE(screen.print(ReportOutput::Printer));
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("falta infEvento"));
    screen.select(2);
    EXPECT_THAT(screen.finding(), HasSubstr("grande demais"));
    screen.select(0);
    desk.person.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(screen.print(ReportOutput::Printer));
    EXPECT_FALSE(desk.files.exists("/data/cce.xml"));
    EXPECT_TRUE(screen.print(ReportOutput::Printer));
    EXPECT_EQ(desk.person.shown.back().title, "Imprimindo Carta de Correção NF-e");
    EXPECT_EQ(desk.person.shown.back().text,
              "Confirma Imprimir a Carta de Correção NF-e Selecionada?");
    EXPECT_EQ(desk.file("cce.xml"), eventFile());
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs[0].request.layoutName, "CCe.rpt");
    EXPECT_EQ(engine.jobs[0].request.title, "CARTA DE CORREÇÃO NF-E");
    EXPECT_EQ(engine.jobs[0].cards.at(0).at(0).at(3), kKey);
}

TEST_F(LetterScreen, WindowTellsOfEachFile) {
    testing::DrivenWindow<CartaCorrecaoWindow> window(screen);
    EXPECT_EQ(window.namelessWidgets(), "");
    EXPECT_EQ(window.sharedAltLetters(), "");
    EXPECT_EQ(window.focusName(), "cartaCorrecao.files");
    EXPECT_THAT(window.label("cartaCorrecao.details"), HasSubstr(kKey));
    window.press(Qt::Key_Down);
    EXPECT_EQ(window.label("cartaCorrecao.heading"), "⚠ Não é uma carta de correção");
    EXPECT_THAT(window.label("cartaCorrecao.details"), HasSubstr("falta infEvento"));
    window.press(Qt::Key_Up);
    desk.person.answers = {Answer::Yes};
    window.press(Qt::Key_Return);
    EXPECT_EQ(engine.jobs.size(), 1U);
}

}  // namespace
}  // namespace winvrx
