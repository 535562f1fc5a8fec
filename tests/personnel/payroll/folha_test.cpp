#include "tests/personnel/payroll/folha_screen.h"

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using enum Answer;
using enum Folha::Opening;

class FolhaTest : public testing::FolhaScreen {};

TEST_F(FolhaTest, OpensInTheOrderOfItsChecks) {
    const Employee rui = employee("002", "RUI", "");
    EXPECT_EQ(folha.open(rui), Refused);
    person.answers = {Yes};
    EXPECT_EQ(folha.open(rui), ToTimeCard);
    fillCard("002");
    EXPECT_EQ(folha.open(rui), Refused);
    const std::string noCard =
        "Planilha de Ponto não Preenchida! Deseja ir para a Planilha de Ponto?";
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{
                  noCard, noCard,
                  "Erro! Valor do Salário deste Funcionário = R$ 0,00!     Clique no Botão "
                  "Funcionário e Altere o Valor do Salário."}));
    EXPECT_FALSE(folha.shown());
    EXPECT_EQ(folha.open(ana), Opened);
    ASSERT_TRUE(folha.shown());
    EXPECT_EQ(folha.shown()->sheet.amountOf("001"), Money{300000});
    EXPECT_EQ(folha.shown()->sheet.amountOf("091"), Money{24858});
    EXPECT_EQ(folha.shown()->sheet.amountOf("025"), Money{18000});
    file("01001confgger2") = "025 VALE TRANSPORTES     0000,00001000\r\n";
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_EQ(folha.shown()->sheet.amountOf("025"), Money{});
    EXPECT_TRUE(folha.warnings().empty());
}

TEST_F(FolhaTest, RecordsReadsAndReopens) {
    EXPECT_FALSE(folha.save());
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_FALSE(folha.isChanged());
    EXPECT_TRUE(folha.compute({{EventCode::parse("025").value(), {5000}}}));
    EXPECT_TRUE(folha.isChanged());
    EXPECT_FALSE(folha.save());
    EXPECT_FALSE(files.content.contains(kPayroll));
    person.answers = {Yes};
    EXPECT_TRUE(folha.save());
    EXPECT_TRUE(files.content.contains(kPayroll));
    const Money net = folha.shown()->sheet.net;

    Folha other{at, kLegal};
    EXPECT_TRUE(other.load(kMonth));
    EXPECT_EQ(other.open(ana), Opened);
    EXPECT_TRUE(other.shown()->isRecorded);
    EXPECT_EQ(other.shown()->sheet.net, net);
    EXPECT_FALSE(hasMovedOn(*other.shown()));
    Employee raised = ana;
    raised.salary = "3.100,00";
    EXPECT_EQ(other.show(raised), PayrollGlance::Lack::Nothing);
    EXPECT_TRUE(hasMovedOn(*other.shown()));
    EXPECT_EQ(other.shown()->sheet.net, net);
    EXPECT_EQ(other.shown()->now->amountOf("001"), Money{310000});
    EXPECT_EQ(other.show(ana), PayrollGlance::Lack::Nothing);
    EXPECT_EQ(typedAmounts(other.shown()->sheet).size(), 1U);
    EXPECT_FALSE(other.reopen());
    person.answers = {Yes};
    EXPECT_TRUE(other.reopen());
    EXPECT_TRUE(other.isChanged()) << "what was typed is on the screen only";
    EXPECT_FALSE(files.content.contains(kPayroll));

    // The first screen shows what is gone: it writes nothing over it.
    person.answers = {Yes};
    EXPECT_FALSE(folha.save());
    EXPECT_FALSE(files.content.contains(kPayroll));
    const auto texts = person.takeTexts();
    EXPECT_EQ(texts.front(), "Não Há Dados para Gravação!");
    EXPECT_EQ(texts[1], "Deseja Gravar Somente o FUNCIONARIO SELECIONADO?");
}

TEST_F(FolhaTest, KeepsTheLinesThatNobodyUnderstands) {
    EXPECT_EQ(folha.open(ana), Opened);
    person.answers = {Yes};
    EXPECT_TRUE(folha.save());
    const std::string recorded = files.content.at(kPayroll);
    const auto second = recorded.find('\n') + 1;
    const std::string stray = "nota do escrit\xf3rio  \r\n";
    const std::string kept = recorded.substr(0, second) + stray + recorded.substr(second) + stray;
    files.content[kPayroll] = kept;
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_FALSE(folha.isChanged());
    EXPECT_EQ(folha.shown()->unread.size(), 2U);
    EXPECT_TRUE(folha.compute({{EventCode::parse("025").value(), {18000}}}));
    person.answers = {Yes};
    EXPECT_TRUE(folha.save());
    std::string typed = kept;
    const auto amount = typed.find("180,00");
    typed.replace(typed.find('\r', amount) - 1, 1, "*");
    EXPECT_EQ(files.content.at(kPayroll), typed);
    EXPECT_EQ(person.shown.back().detail,
              "A folha já gravada será substituída.\nLinha não entendida, que fica como está: nota "
              "do escritório\nLinha não entendida, que fica como está: nota do escritório");
    EXPECT_FALSE(folha.reopen());
    EXPECT_NE(person.shown.back().detail.find("\nLinha não entendida, que se perde com ela: nota"),
              std::string::npos);
    EXPECT_EQ(files.content.at(kPayroll), typed);
}

TEST_F(FolhaTest, LeavesToTheEndOfTheContractWhatItPays) {
    const Employee eva = employee("003", "EVA", "2.500,00");
    fillCard("003");
    file("01configAf001") = "**** 20/03/2026\r\n";
    person.answers = {Yes, No};
    EXPECT_FALSE(folha.saveAll({ana, eva}, {}));
    EXPECT_EQ(person.shown.back().detail,
              "Contrato terminado, a rescisão paga o saldo de salário: ANA");
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_EQ(folha.shown()->sheet.amountOf("001"), Money{200000});
    EXPECT_FALSE(folha.save());
    const std::string asked =
        "O contrato terminou em 20/03/2026, e a rescisão paga o saldo de salário. Gravada esta "
        "folha, o cálculo da rescisão desconta o líquido dela, R$ " +
        moneyText(folha.shown()->sheet.net) + ".";
    EXPECT_EQ(person.shown.back().detail, asked);
    EXPECT_FALSE(files.content.contains(kPayroll));
    file("01TRTC001") = "x";
    person.answers = {Yes};
    EXPECT_TRUE(folha.save());
    EXPECT_EQ(person.shown.back().detail,
              asked + " O termo da rescisão já foi impresso: imprima-o de novo depois de gravar.");
    struct Case {
        WorkMonth month;
        PayrollRun run;
        bool isPaidByTheEnd;
    };
    for (const Case& one : {Case{kMonth, PayrollRun::ThirteenthFirst, true},
                            Case{2026y / 11, PayrollRun::ThirteenthFirst, true},
                            Case{2026y / 2, PayrollRun::ThirteenthFirst, false},
                            Case{2026y / 2, PayrollRun::Month, false}}) {
        fillCard("001", one.month);
        ASSERT_TRUE(folha.load(one.month, one.run));
        person.answers = {};
        if (folha.open(ana) != Opened) continue;
        EXPECT_FALSE(folha.save());
        EXPECT_EQ(!person.shown.back().detail.empty(), one.isPaidByTheEnd) << monthKey(one.month);
    }
}

TEST_F(FolhaTest, AsksAboutATerminationOfWhoIsActive) {
    const auto termination = [this](const char* worked, const char* until) {
        Leave leave;
        leave.type = "008 RESCISÃO_CONTRATO_TRABALHO";
        leave.firstDay = worked;
        leave.lastDay = until;
        leave.lastWorked = worked;
        file("01configAf001") = encode(leave) + "\r\n**** \r\n";
    };
    struct Case {
        const char* worked;
        const char* until;
        const char* detail;  ///< the beginning
    };
    for (const Case& one :
         {Case{"20/03/2026", "19/04/2026",
               "Há uma rescisão gravada, com o último dia trabalhado em 20/03/2026, e o "
               "funcionário está ativo. A rescisão paga o saldo de salário. Gravada esta folha,"},
          Case{"10/02/2026", "12/03/2026",
               "Há uma rescisão gravada, com o último dia trabalhado em 10/02/2026, e o "
               "funcionário está ativo. Se ele saiu, inative-o antes em Afastamentos;"},
          Case{"01/04/2026", "01/04/2026", ""}, Case{"10/01/2020", "31/01/2020", ""}}) {
        SCOPED_TRACE(one.worked);
        termination(one.worked, one.until);
        EXPECT_EQ(folha.open(ana), Opened);
        person.answers = {No};
        EXPECT_FALSE(folha.save());
        EXPECT_EQ(person.shown.back().detail.substr(0, std::string_view(one.detail).size()),
                  one.detail);
        EXPECT_EQ(person.shown.back().detail.empty(), std::string_view(one.detail).empty());
        if (std::string_view(one.detail).empty()) continue;
        person.answers = {Yes};
        EXPECT_FALSE(folha.saveAll({ana}, {}));
        EXPECT_EQ(person.shown.back().detail, "Rescisão gravada, funcionário ainda ativo: ANA");
    }
    EXPECT_FALSE(files.content.contains(kPayroll));
}

TEST_F(FolhaTest, RecordsEveryoneInOneBatch) {
    const Employee rui = employee("002", "RUI", "2.000,00");
    const Employee eva = employee("003", "EVA", "2.500,00");
    fillCard("003");
    person.answers = {Yes, No};
    EXPECT_FALSE(folha.saveAll({ana, rui, eva}, {}));
    EXPECT_EQ(person.shown.back().detail, "Sem cartão de ponto, salário ou contrato no mês: RUI");
    EXPECT_FALSE(files.content.contains(kPayroll));
    person.answers = {Yes};
    EXPECT_FALSE(folha.saveAll({ana, eva}, [](int done, int) { return done < 1; }));
    EXPECT_FALSE(files.content.contains(kPayroll));

    person.takeTexts();
    person.answers = {Yes, Yes};
    EXPECT_TRUE(folha.saveAll({ana, rui, eva}, {}));
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{"Confirma Gravar TODOS OS FUNCIONARIOS DA LISTA?",
                                        "Não Há Dados para Gravação! Deseja Prosseguir?"}));
    EXPECT_TRUE(files.content.contains(kPayroll));
    EXPECT_TRUE(files.content.contains("/data/01fp0000303-2026.bdx"));
    const auto before = files.content;
    person.answers = {Yes};
    EXPECT_FALSE(folha.saveAll({ana, eva}, {}));
    EXPECT_EQ(person.shown.back().text, "Não Há Dados para Gravação!");
    EXPECT_EQ(person.shown.back().detail, "Já gravados, ficam como estão: ANA, EVA");
    EXPECT_EQ(files.content, before);
}

TEST_F(FolhaTest, ComputesNothingWithoutItsTables) {
    files.content["/data/inss.txt"] = "desde; até\n01/2026; x; 7,5; A\n";
    EXPECT_FALSE(folha.load(kMonth));
    EXPECT_EQ(person.shown.back().detail,
              "Tabela legal inss.txt, linha 2: \"x\" não é um valor em reais.");
}

}  // namespace
}  // namespace winvrx
