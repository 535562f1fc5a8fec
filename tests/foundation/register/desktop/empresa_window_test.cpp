#include "foundation/register/desktop/empresa_window.h"

#include "foundation/register/empresa.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::TestWorkplace;
using testing::WindowDriver;

class EmpresaWindowTest : public ::testing::Test {
  protected:
    void includeNamed(std::string_view name) {
        desk_.person.answers = {Answer::Yes};
        if (screen_.find("empresa.delete").isEnabled()) screen_.press(Qt::Key_Insert);
        screen_.type("empresa.name", name);
        screen_.press(Qt::Key_S, Qt::ControlModifier);
        desk_.person.shown.clear();
    }

    [[nodiscard]] const std::string& file() { return desk_.file("01Empresa"); }

    TestWorkplace desk_;
    Empresa empresa_{desk_.at};
    EmpresaWindow window_{empresa_};
    WindowDriver screen_{window_};
};

TEST_F(EmpresaWindowTest, OpensOnTheFirstCompany) {
    EXPECT_EQ(screen_.text("empresa.name"), "EMPRESA MODELO LTDA");
    EXPECT_EQ(screen_.text("empresa.ownerCity"), "CAÇADOR");
    EXPECT_EQ(screen_.focusName(), "empresa.name");
    EXPECT_EQ(screen_.state(), "1 de 1");
    EXPECT_EQ(screen_.namelessWidgets(), "");
}

TEST_F(EmpresaWindowTest, IncludesACompanyByKeyboard) {
    screen_.press(Qt::Key_Insert);
    EXPECT_EQ(screen_.text("empresa.code"), "02");
    EXPECT_THAT(screen_.state(), HasSubstr("02"));
    screen_.typeHere("PADARIA SÃO JOSÉ");
    screen_.press(Qt::Key_Return);
    EXPECT_EQ(screen_.focusName(), "empresa.taxId");
    screen_.typeHere("11222333000181");
    desk_.person.answers = {Answer::Yes};
    screen_.press(Qt::Key_Insert);
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Confirma a Inclusão?"));
    EXPECT_THAT(file(), HasSubstr("\r\n02 PADARIA S\xC3O JOS\xC9 "));
    EXPECT_EQ(screen_.state(), "2 de 2");
}

TEST_F(EmpresaWindowTest, FieldsTakeNoMoreThanTheirColumn) {
    screen_.press(Qt::Key_Insert);
    screen_.type("empresa.name", std::string(80, 'N'));
    screen_.type("empresa.state", "SPX");
    EXPECT_EQ(screen_.text("empresa.name").size(), 68U);
    EXPECT_EQ(screen_.text("empresa.state"), "SP");
}

TEST_F(EmpresaWindowTest, WhatNoRecordHoldsIsSaidAndRefused) {
    const std::string before = file();
    for (const QString& pasted : {QStringLiteral("PADARIA 😀"), QStringLiteral("DUAS\nLINHAS")}) {
        auto& name = screen_.find<QLineEdit>("empresa.name");
        name.setFocus();
        name.selectAll();
        name.insert(pasted);
        EXPECT_THAT(screen_.hint("empresa.name"), HasSubstr("não pode ser gravado"));
        desk_.person.answers = {Answer::Yes};
        screen_.press(Qt::Key_F2);
        EXPECT_EQ(desk_.person.shown.back().text, "Dados incorretos!");
        EXPECT_EQ(name.text(), pasted);
        EXPECT_EQ(screen_.focusName(), "empresa.name");
        EXPECT_EQ(file(), before);
    }
}

TEST_F(EmpresaWindowTest, NumbersAreCheckedWhileTyped) {
    struct Case {
        const char* field;
        const char* typed;
        const char* typing;
        const char* left;
    };
    for (const Case& c : {Case{"empresa.taxId", "11222333000181", "✓ CNPJ/CPF válido", nullptr},
                          {"empresa.taxId", "11222333000182", "⚠ CNPJ/CPF não confere.", nullptr},
                          {"empresa.taxId", "12.ABC.345/01DE-35", "✓ CNPJ/CPF válido", nullptr},
                          {"empresa.unionTaxId", "11222", "", "⚠ CNPJ incompleto."},
                          {"empresa.ownerTaxId", "52998224724", "⚠ CPF não confere.", nullptr},
                          {"empresa.ownerTaxId", "529", "", "⚠ CPF incompleto."}}) {
        screen_.type(c.field, c.typed);
        EXPECT_EQ(screen_.hint(c.field), c.typing) << c.typed;
        screen_.press(Qt::Key_Tab);
        EXPECT_EQ(screen_.hint(c.field), c.left ? c.left : c.typing) << c.typed;
    }
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    screen_.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(file(), HasSubstr("12.ABC.345/01DE-35")) << "a doubt blocks nothing";
}

TEST_F(EmpresaWindowTest, TheFirstCompanyIsNotDeleted) {
    screen_.find("empresa.list").setFocus();
    screen_.press(Qt::Key_Delete);
    ASSERT_EQ(desk_.person.shown.size(), 1U);
    EXPECT_EQ(desk_.person.shown[0].title, "Excluindo Empresa");
    EXPECT_EQ(screen_.state(), "1 de 1");
}

TEST_F(EmpresaWindowTest, DeletesWithTheChosenOption) {
    includeNamed("PADARIA");
    desk_.file("02CartaPonto") = "001 ANA\r\n";
    screen_.find<QRadioButton>("empresa.deleteWithEmployees").click();
    screen_.find("empresa.list").setFocus();
    desk_.person.answers.assign(3, Answer::Yes);
    screen_.press(Qt::Key_Delete);
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Confirma a Exclusão do Item Selecionado?",
                            "Este Comando irá Exluir a Empresa e a Lista de Funcionarios. Deseja "
                            "Continuar?",
                            "Tem Certeza que Deseja Excluir o Item Selecionado?"));
    EXPECT_EQ(screen_.state(), "1 de 1");
    EXPECT_EQ(screen_.text("empresa.name"), "EMPRESA MODELO LTDA");
    EXPECT_FALSE(desk_.files.exists("/data/02CartaPonto"));
}

TEST_F(EmpresaWindowTest, DelInAFieldDeletesACharacter) {
    includeNamed("PADARIA");
    auto& name = screen_.find<QLineEdit>("empresa.name");
    name.setFocus();
    name.setCursorPosition(0);
    screen_.press(Qt::Key_Delete);
    EXPECT_EQ(screen_.text("empresa.name"), "ADARIA");
    EXPECT_THAT(desk_.person.shown, IsEmpty());
}

TEST_F(EmpresaWindowTest, TypedTextIsAskedAboutBeforeItIsLeft) {
    includeNamed("PADARIA");
    includeNamed("OFICINA");
    screen_.type("empresa.telephone", "5555");
    EXPECT_THAT(screen_.state(), HasSubstr("Alterações não gravadas"));
    const std::string before = file();
    for (const Qt::Key leaving : {Qt::Key_PageUp, Qt::Key_Insert, Qt::Key_Escape}) {
        screen_.press(leaving);
        EXPECT_EQ(desk_.person.takeTexts().size(), 1U) << leaving;
        EXPECT_EQ(screen_.text("empresa.telephone"), "5555") << leaving;
        EXPECT_THAT(screen_.state(), HasSubstr("3 de 3")) << leaving;
        EXPECT_TRUE(window_.isVisible()) << leaving;
    }
    desk_.person.answers = {Answer::Yes};
    screen_.press(Qt::Key_PageUp);
    EXPECT_EQ(screen_.text("empresa.name"), "PADARIA");
    EXPECT_EQ(screen_.state(), "2 de 3");
    EXPECT_EQ(file(), before);
    screen_.press(Qt::Key_Escape);
    EXPECT_FALSE(window_.isVisible()) << "nothing typed, nothing asked";
}

/// As in every window.
TEST_F(EmpresaWindowTest, HelpIsOpenedOrItsFailureTold) {
    testing::TestBrowser browser;
    ScreenWindow::setHelp([&] { openHelp(desk_.at, browser); });
    screen_.press(Qt::Key_F1);
    EXPECT_EQ(browser.opened, 1);
    EXPECT_THAT(desk_.person.shown, IsEmpty());
    browser.works = false;
    screen_.press(Qt::Key_F1);
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Ocorreu Erro"));
    ScreenWindow::setHelp({});
}

TEST_F(EmpresaWindowTest, ALineThatIsNotUnderstoodIsShownAndCanOnlyBeDeleted) {
    desk_.file("01Empresa") += "XX rasgada\r\n";
    const std::string damaged = file();
    EmpresaWindow window(empresa_);
    const WindowDriver screen(window);
    const auto& list = screen.find<QTreeWidget>("empresa.list");
    EXPECT_EQ(list.topLevelItem(1)->text(1).toStdString(), "Linha não entendida: XX rasgada");
    EXPECT_EQ(screen.find<QLabel>("subtitle").text().toStdString(),
              "1 empresa, 1 linha não entendida");
    screen.press(Qt::Key_PageDown);
    EXPECT_THAT(screen.state(), HasSubstr("Linha não entendida"));
    EXPECT_FALSE(screen.find("empresa.change").isEnabled());
    EXPECT_FALSE(screen.find("empresa.name").isEnabled());
    desk_.person.answers = {Answer::Yes};
    screen.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(file(), damaged);
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    screen.find<QToolButton>("empresa.delete").click();
    EXPECT_EQ(file(), damaged.substr(0, 551));
}

}  // namespace
}  // namespace winvrx
