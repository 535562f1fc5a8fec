#include "tests/personnel/leaves/afastamento_screen.h"
#include "timecard/punches/punch_record.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

TEST_F(AfastamentoTest, InactivatesStepByStep) {
    struct Case {
        Typing keys;  ///< over the termination on record
        Answers answers;
        std::string text;
        bool done = false;
    };
    const std::string dates = "Informe as Datas de Rescisão do Contrato!";
    for (const Case& c : {
             Case{{{TerminationType, ""}}, {}, "Inativar: Informe o Tipo de Rescisão do Contrato!"},
             Case{{{NoticeType, ""}}, {}, "Inativar: Informe o Tipo de Aviso!"},
             Case{{{LastDayWorked, "31/02/2024"}}, {}, "Inativar: " + dates},
             Case{{{PaymentDue, "x"}}, {}, "Inativar: " + dates},
             Case{{{NoticeEnds, "x"}}, {}, "Inativar: " + dates},
             Case{{{Dismissal, "31/02/2024"}},
                  {},
                  "Inativar: Informe a Data de Demissão do Funcionário Válida!"},
             Case{{{Dismissal, "12/03/2020"}},
                  {},
                  "Inativar: Informe a Data de Demissão do Funcionário Maior que a Data da "
                  "Admissão!"},
             Case{{{LastDayWorked, "18/03/2024"}},
                  {kNo},
                  "Aviso: Há dados digitados que não foram gravados. Deseja descartá-los?"},
             Case{{{Dismissal, "13/03/2020"}},
                  {kNo},
                  "Ativar/Inativar: Confirma  Inativar  Funcionário Selecionado?"},
             Case{
                 {}, {kYes}, "Ativar/Inativar: Confirma  Inativar  Funcionário Selecionado?", true},
         }) {
        record({kVacation, termination()});
        const std::string before = file();
        start();
        EXPECT_EQ(screen_.activationCaption(), "Inativar");
        EXPECT_TRUE(c.keys.empty() || screen_.choose(1));
        type(c.keys);
        desk_.person.answers = c.answers;
        EXPECT_EQ(screen_.changeActivation(), c.done) << c.text;
        EXPECT_EQ(told(), Texts{c.text});
        EXPECT_EQ(file() == before, !c.done);
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
    }
    EXPECT_EQ(screen_.activationCaption(), "Reativar");
    EXPECT_THAT(file(), ::testing::EndsWith("\r\n**** 26/04/2024\r\n"));
    EXPECT_EQ(screen_.form().text(Dismissal), "26/04/2024");
    EXPECT_TRUE(screen_.list().marks(0).inactiveSince.has_value());
}

TEST_F(AfastamentoTest, NeedsATerminationToInactivate) {
    record({kVacation});
    start();
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Inativar: Para Inativar, informe os Dados da Rescisão do Contrato de "
                            "Trabalho para Este Funcionário!"});
    record({leave("008 rescisão_contrato_trabalho", "15/03/2024", "1")});
    start();
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Inativar: Informe o Tipo de Rescisão do Contrato!"});
}

TEST_F(AfastamentoTest, ReactivatesUnlessATerminationDocumentStands) {
    record({termination()}, "**** 26/04/2024");
    ASSERT_TRUE(screen_.open());
    ASSERT_TRUE(screen_.select(0));
    EXPECT_EQ(told(), Texts{"Afastamento: Funcionário Inativo.!"});
    EXPECT_EQ(screen_.form().text(Dismissal), "26/04/2024");
    const std::string before = file();
    for (const char* document : {"01TRTC001", "01THRTC001", "01AviTRTC001"}) {
        desk_.file(document) = "x";
        EXPECT_FALSE(screen_.changeActivation()) << document;
        EXPECT_EQ(told(), Texts{"Reativar: Não é Permitido Ativar! Já Existe Rescisão do Contrato "
                                "de Trabalho para Este Funcionário!"});
        desk_.files.content.erase(std::string("/data/") + document);
    }
    desk_.file("01TRTC002") = "another employee's";
    EXPECT_EQ(file(), before);
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add()) << "an inactive employee stays so";
    EXPECT_THAT(file(), ::testing::EndsWith("**** 26/04/2024\r\n"));
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.remove());
    EXPECT_EQ(told(),
              (Texts{"Excluir Afastamento: Você está Prestes a Desconsiderar este Afastamento!",
                     "Excluindo Afastamento: Confirma Excluir e Desconsiderar este Afastamento?"}));
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.changeActivation());
    EXPECT_EQ(told(), Texts{"Ativar/Inativar: Confirma  Reativar  Funcionário Selecionado?"});
    EXPECT_THAT(file(), ::testing::EndsWith("**** \r\n"));
}

/// ANA's cards of March and April are filled, every day at eight.
struct FilledCards : AfastamentoTest {
    void SetUp() override {
        AfastamentoTest::SetUp();
        for (const auto month : {2024y / 3, 2024y / 4}) {
            auto lines = blankMonth(month);
            for (PunchLine& line : lines)
                line.morningEntry = "08:00";
            desk_.file(punchFileName(key, month)) = editedPunchRecord("", month, lines);
        }
        record({});
        start();
    }
    [[nodiscard]] std::string marked(WorkMonth month, int day) {
        const auto line =
            loadPunches(desk_.store(), key, month)->at(static_cast<std::size_t>(day) - 1);
        return line.situation + (line.hasTimes() ? " timed" : "");
    }

    const EmployeeKey key{*CompanyCode::parse("01"), *EmployeeCode::parse("001")};
};

TEST_F(FilledCards, AreOfferedToALeaveThatComesTooLate) {
    type({{Type, "007 ATESTADO_DECALRAÇÃO"}, {FirstDay, "30/03/2024"}, {Days, "3"}});
    screen_.lookForPunches();
    EXPECT_EQ(screen_.finding(FirstDay),
              "Já há horas no cartão em 30/03/2024, 31/03/2024, 01/04/2024.");
    desk_.person.answers = {kYes, kNo};
    EXPECT_TRUE(screen_.add());
    EXPECT_EQ(desk_.person.shown.back().icon, Icon::Exclamation) << "times would be lost";
    EXPECT_EQ(desk_.person.shown.back().detail,
              "3 dias. Perdem as horas: 30/03/2024, 31/03/2024, 01/04/2024.");
    EXPECT_EQ(marked(2024y / 3, 30), " timed");
    type({{Hours, "1"}});
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(marked(2024y / 3, 31), "AFASTAMENTO");
    EXPECT_EQ(marked(2024y / 4, 1), "AFASTAMENTO");
    EXPECT_EQ(marked(2024y / 4, 2), " timed");

    type({{Hours, "2"}});
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(desk_.person.shown.size(), 1U) << "every day is marked already";
}

TEST_F(FilledCards, AreOfferedAgainWhenTheContractEnds) {
    const Leave end = termination();
    type({{Type, end.type},
          {FirstDay, end.firstDay},
          {TerminationType, end.terminationType},
          {NoticeType, end.noticeType}});
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.add());
    EXPECT_EQ(marked(2024y / 3, 16) + marked(2024y / 4, 27), "AFASTAMENTO timed");
    desk_.person.shown.clear();
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.changeActivation());
    EXPECT_EQ(desk_.person.shown.back().detail,
              "4 dias. Perdem as horas: 27/04/2024, 28/04/2024, 29/04/2024, 30/04/2024.")
        << "those marked before are not asked about again";
    EXPECT_EQ(marked(2024y / 3, 15), " timed");
    EXPECT_EQ(marked(2024y / 3, 16) + marked(2024y / 4, 30), "");
    EXPECT_EQ(screen_.selected()->dismissal, "26/04/2024");
    EXPECT_EQ(screen_.contradiction(), "");
}

}  // namespace
}  // namespace winvrx
