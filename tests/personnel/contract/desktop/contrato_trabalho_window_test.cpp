#include "personnel/contract/desktop/contrato_trabalho_window.h"

#include "report/desktop/layout_reader.h"
#include "tests/support/contract_office.h"
#include "tests/support/window_driver.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using testing::ContractOffice;
using testing::DrivenWindow;
using ::testing::HasSubstr;

struct ContractWindow : ::testing::Test, ContractOffice {
    std::unique_ptr<DrivenWindow<ContratoTrabalhoWindow>> screen_;

    void SetUp() override {
        ASSERT_TRUE(screen.load());
        screen_ = std::make_unique<DrivenWindow<ContratoTrabalhoWindow>>(screen, OpenLetters());
    }
};

TEST_F(ContractWindow, RecordsAContractWithTheKeyboardAlone) {
    EXPECT_EQ(screen_->namelessWidgets(), "");
    EXPECT_EQ(screen_->sharedAltLetters(), "");
    EXPECT_EQ(screen_->focusName(), "contrato.employees");
    EXPECT_EQ(screen_->label("contrato.trial"),
              "Experiência até 27/03/2024; com a prorrogação, até 11/05/2024.");
    EXPECT_EQ(screen_->label("contrato.words"), "R$ Mil, Oitocentos e Cinquenta Reais ");
    screen_->press(Qt::Key_PageDown);
    EXPECT_EQ(screen_->label("contrato.name"), "002 JOSÉ DE ALENCAR");
    EXPECT_EQ(screen_->state(), "Contrato ainda não gravado: confira e grave.");
    EXPECT_FALSE(screen_->find("contrato.trialDays").isVisible());
    screen_->type("contrato.salary", "2345,67");
    EXPECT_EQ(screen_->label("contrato.words"),
              "R$ Dois Mil, Trezentos e Quarenta e Cinco Reais  e Sessenta e Sete Centavos");
    screen_->press(Qt::Key_Return);
    EXPECT_THAT(screen_->hint("contrato.salary"), HasSubstr("o salário do cadastro é 2.100,00."));
    desk.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(decode<Contract>(desk.file("01contrato002")).salary, "2.345,67");
    EXPECT_EQ(screen_->state(), "Contrato gravado");
    EXPECT_EQ(screen_->focusName(), "contrato.employees");
    screen_->type("contrato.workplace", "Outro");
    desk.person.answers = {Answer::No, Answer::Yes};
    screen_->press(Qt::Key_PageUp);
    EXPECT_EQ(screen_->label("contrato.name"), "002 JOSÉ DE ALENCAR");
    EXPECT_EQ(screen_->text("contrato.workplace"), "Outro");
    screen_->press(Qt::Key_PageUp);
    EXPECT_EQ(screen_->label("contrato.name"), "001 ANA DA CONCEIÇÃO");
}

TEST_F(ContractWindow, PrintsThePageChosenAndLeadsToWhatIsWrong) {
    screen_->find<QComboBox>("contrato.place").setCurrentIndex(2);
    screen_->press(Qt::Key_F7);
    desk.person.answers = {Answer::Yes};
    screen_->click("contrato.print");
    ASSERT_EQ(engine.jobs.size(), 2U);
    EXPECT_EQ(engine.jobs[0].request.output, ReportOutput::Preview);
    EXPECT_EQ(engine.jobs[1].cards.at(0).at(1).at(1).substr(0, 67), std::string(66, ' ') + "E");
    EXPECT_EQ(screen_->state(), "Página enviada à impressora.");
    screen_->type("contrato.salary", "muito");
    screen_->click("contrato.print");
    EXPECT_EQ(desk.person.shown.back().text, "Valor Digitado Incorreto!");
    EXPECT_EQ(screen_->focusName(), "contrato.salary");
    EXPECT_EQ(engine.jobs.size(), 2U);
}

}  // namespace
}  // namespace winvrx
