#include "tests/support/contract_office.h"

#include "foundation/values/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace winvrx {
namespace {

using testing::ContractOffice;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using Texts = std::vector<std::string>;

struct ContratoTrabalhoTest : ::testing::Test, ContractOffice {
    void SetUp() override { ASSERT_TRUE(screen.load()); }

    /// The shipped text of a contract, in the program's folder of the desk.
    void deliver(const std::string& name) {
        std::ifstream file(WINVRX_DOCUMENT_FOLDER "/" + name, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        ASSERT_FALSE(bytes.str().empty()) << name;
        desk.files.content["/program/documents/" + name] = bytes.str();
    }

    [[nodiscard]] std::string textShown() const {
        std::string text;
        for (const auto& block : writer.shown.back().blocks)
            if (const auto* paragraph = std::get_if<Paragraph>(&block))
                text += paragraph->text + "\n";
            else
                for (const auto& row : std::get<DocumentTable>(block).rows)
                    for (const Paragraph& cell : row)
                        text += cell.text + "\n";
        return text;
    }
};

TEST_F(ContratoTrabalhoTest, ProposesRecordsAndReplaces) {
    EXPECT_TRUE(screen.isRecorded());
    EXPECT_EQ(screen.contract(), trialOfAna());
    EXPECT_EQ(screen.endingTrials(), "Experiência de ANA DA CONCEIÇÃO até 27/03/2024");
    ASSERT_TRUE(screen.select(1));
    EXPECT_FALSE(screen.isRecorded());
    Contract jose = screen.contract();
    EXPECT_EQ(jose.begins, "04/03/2024");
    EXPECT_EQ(jose.salary, "2.100,00");
    EXPECT_EQ(jose.establishment, "Padaria") << "asked once";
    EXPECT_EQ(jose.workplace, trialOfAna().workplace);
    EXPECT_EQ(jose.schedule, "segunda a sexta, das 08:00 às 12:00 e das 13:00 às 17:00");
    desk.person.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(screen.save(jose));
    EXPECT_FALSE(desk.files.exists("/data/01contrato002"));
    EXPECT_TRUE(screen.save(jose));
    EXPECT_TRUE(screen.isRecorded());
    jose.salary = "2.200,00";
    desk.person.shown.clear();
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.save(jose));
    EXPECT_EQ(desk.person.shown.back().detail,
              "O contrato já gravado será substituído.\n"
              "Remuneração: o salário do cadastro é 2.100,00.");
    EXPECT_EQ(decode<Contract>(desk.file("01contrato002")), jose);
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.remove());
    EXPECT_FALSE(desk.files.exists("/data/01contrato002"));
    EXPECT_FALSE(screen.remove());
}

TEST_F(ContratoTrabalhoTest, RefusesAndLeavesTheFile) {
    struct Case {
        std::string Contract::*member;
        std::string typed;
        std::string told;
    };
    const std::string before = desk.file("01contrato001");
    for (const Case& c :
         {Case{&Contract::salary, "mil",
               "Valor: Valor Digitado Incorreto!|Digite um valor como "
               "1.850,00."},
          Case{&Contract::salary, "100.000,00",
               "Valor: Valor Digitado Incorreto!|O maior valor que se escreve por extenso é "
               "99.999,99."},
          Case{&Contract::workplace, "",
               "Contrato de Trabalho: Dados incorretos!|Falta preencher: Local de trabalho."},
          Case{&Contract::extensionDays, "46",
               "Contrato de Trabalho: Dados incorretos!|Dias de prorrogação: experiência e "
               "prorrogação passam de 90 dias."},
          Case{&Contract::schedule, "08:00 → 17:00",
               "Contrato de Trabalho: Dados incorretos!|Horário de trabalho: "}}) {
        Contract typed = trialOfAna();
        typed.*c.member = c.typed;
        desk.person.shown.clear();
        EXPECT_FALSE(screen.save(typed));
        const Message& told = desk.person.shown.back();
        EXPECT_THAT(told.title + ": " + told.text + "|" + told.detail,
                    ::testing::StartsWith(c.told));
        EXPECT_EQ(screen.blamed(), c.member);
    }
    Contract bad = trialOfAna();
    bad.salary = "x";
    EXPECT_FALSE(screen.printBox(bad, BookletPlace::LeftAbove, ReportOutput::Preview));
    EXPECT_TRUE(engine.jobs.empty());
    desk.file("01contrato001") += "another machine's\r\n";
    desk.file("01contrato001").replace(0, 4, "Expe");
    desk.file("01contrato001")[304] = '9';
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(screen.save(trialOfAna())) << "changed elsewhere";
    EXPECT_NE(desk.file("01contrato001"), before);
    (void)screen.select(std::nullopt);
    desk.person.shown.clear();
    EXPECT_FALSE(screen.save(trialOfAna()));
    EXPECT_FALSE(screen.printBox(trialOfAna(), BookletPlace::LeftAbove, ReportOutput::Preview));
    EXPECT_FALSE(screen.showText(trialOfAna()));
    for (const Message& told : desk.person.shown)
        EXPECT_EQ(told.text, "Selecione um Funcionário na Lista!");
}

TEST_F(ContratoTrabalhoTest, PrintsTheBoxWithTheScaleOfTheBooklet) {
    desk.file("ConfigX") = "HP-Balcao\r\n";
    ASSERT_TRUE(screen.loadPrinter());
    EXPECT_TRUE(screen.calibration().type({"99,50", "100", "1", "0"}));
    EXPECT_TRUE(screen.calibration().type({"99,75", "100", "1", "0"})) << "found again";
    EXPECT_TRUE(screen.printBox(trialOfAna(), BookletPlace::RightBelow, ReportOutput::Preview));
    desk.person.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(screen.printBox(trialOfAna(), BookletPlace::RightBelow, ReportOutput::Printer));
    EXPECT_TRUE(screen.printBox(trialOfAna(), BookletPlace::RightBelow, ReportOutput::Printer));
    EXPECT_EQ(desk.person.shown.back().title, "Imprimir Contrato de Trabalho CTPS");
    EXPECT_EQ(desk.person.shown.back().text, "Imprimir Página direita, quadro de baixo?");
    ASSERT_EQ(engine.jobs.size(), 2U);
    const ReportRequest& request = engine.jobs.back().request;
    EXPECT_EQ(request.layoutName, "ctps.rpt");
    EXPECT_EQ(request.printerName, "HP-Balcao");
    EXPECT_EQ(request.alignment.scale, (PrintScale{9975, 10000, 100, 0}));
    EXPECT_EQ(engine.jobs.back().cards.at(0).at(23).at(1),
              std::string(66, ' ') + "Empregador: EMPRESA MODELO LTDA");
}

TEST_F(ContratoTrabalhoTest, ShowsTheTextOfWhatIsRecorded) {
    deliver("contrato-experiencia.txt");
    Contract other = trialOfAna();
    other.salary = "1,00";
    EXPECT_FALSE(screen.showText(other));
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("Grave o contrato antes"));
    EXPECT_TRUE(screen.showText(trialOfAna()));
    EXPECT_THAT(textShown(), HasSubstr("R$ 1.850,00 (Mil, Oitocentos e Cinquenta Reais)"));
    EXPECT_THAT(textShown(), HasSubstr("de 12/02/2024 a 27/03/2024"));
    EXPECT_THAT(textShown(), HasSubstr("por mais 45 dias, até 11/05/2024"));
    EXPECT_THAT(textShown(), HasSubstr("TAUBATE, 12 de fevereiro de 2024"));
    writer.installed = false;
    EXPECT_FALSE(screen.showText(trialOfAna()));
    EXPECT_EQ(desk.person.shown.back().text,
              "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC.");
    (void)screen.select(1);
    EXPECT_FALSE(screen.showText(screen.contract()));
    EXPECT_EQ(desk.person.shown.back().text,
              "Não Existe Contrato de Trabalho Gerado para este Funcionário!!");
    (void)screen.select(2);
    EXPECT_FALSE(screen.showText(screen.contract()));
    EXPECT_EQ(desk.person.shown.back().text, "Este Funcionário Encontra-se Inativo!!");
}

TEST_F(ContratoTrabalhoTest, EachKindHasItsText) {
    struct Case {
        const char* kind;
        const char* file;
        const char* says;
        const char* lacks;
    };
    for (const Case& c :
         {Case{"Prazo indeterminado", "contrato-indeterminado.txt", "art. 487", "experiência"},
          Case{"Experiência", "contrato-experiencia.txt", "art. 481", "indeterminado, a partir"},
          Case{"Prazo determinado", "contrato-prazo.txt", "em razão de safra", "experiência"},
          Case{"Doméstico", "contrato-domestico.txt", "até 27/03/2024", "CLT"},
          Case{"Intermitente", "contrato-intermitente.txt", "três dias corridos", "mensal"}}) {
        deliver(c.file);
        Contract contract = trialOfAna();
        contract.kind = c.kind;
        contract.ends = "31/12/2024";
        contract.reason = "safra";
        desk.file("01contrato001") = joinedLines({encode(contract)});
        ASSERT_TRUE(screen.select(0));
        EXPECT_TRUE(screen.showText(contract)) << c.kind << desk.person.shown.back().detail;
        EXPECT_THAT(textShown(), HasSubstr(c.says)) << c.kind;
        EXPECT_THAT(textShown(), Not(HasSubstr(c.lacks))) << c.kind;
        EXPECT_THAT(textShown(), Not(HasSubstr("{")));
    }
    desk.files.content["/own/contrato-intermitente.txt"] = "= {titulo_novo}";
    Contract contract = screen.contract();
    EXPECT_FALSE(screen.showText(contract));
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("titulo_novo"));
}

}  // namespace
}  // namespace winvrx
