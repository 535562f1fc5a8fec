// What an operator types wrongly: what is said of it, and where the cursor stands afterwards.
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/desktop/empresa_window.h"
#include "foundation/register/employee_import.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QTabWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;
using testing::WindowDriver;

constexpr auto kDoubts = "Há dados que parecem errados. Gravar assim mesmo?";

/// The register with Ana, who has a CPF, and Bia, whose record is shown.
struct EmployeeScreen {
    EmployeeScreen() {
        Employee ana = EmployeeDesk::employee("001", "ANA");
        ana.taxId = "529.982.247-25";
        desk.record("01", {ana, EmployeeDesk::employee("002", "BIA")});
        window.emplace(desk.empregados, import);
        screen.emplace(*window);
        screen->press(Qt::Key_Down);
    }

    void save() {
        desk.person.shown.clear();
        screen->press(Qt::Key_S, Qt::ControlModifier);
    }

    /// Types key by key, whatever page the field is on.
    void type(const char* field, const char* text) const {
        auto& pages = screen->find<QTabWidget>("empregados.tabs");
        for (int page = 0; page < pages.count(); ++page)
            if (pages.widget(page)->isAncestorOf(&screen->find(field))) pages.setCurrentIndex(page);
        screen->type(field, text);
    }

    EmployeeDesk desk;
    EmployeeImport import{desk.at};
    std::optional<EmpregadosWindow> window;
    std::optional<WindowDriver> screen;
};

TEST(WrongInputs, OfAnEmployeeAreNamedAndLeadTheCursorThere) {
    struct Case {
        const char* field;
        const char* typed;
        const char* text;
        const char* detail;
        const char* beside;
    };
    for (const Case& c : {
             Case{"empregados.name", " ", "Dados Incompletos!!", "Falta preencher: Nome.", ""},
             {"empregados.admission", "31/02/2024", "Data de Admissão Incorreta!!",
              "Admissão: 31/02/2024 não existe.", "⚠ Esta data não existe no calendário."},
             {"empregados.birthDate", "310280", "Dado Incorreto!", "Nascimento: 310280 não existe.",
              "⚠ Esta data não existe no calendário."},
             {"empregados.birthDate", "16/03/2024", "Dado Incorreto!",
              "Nascimento: 16/03/2024 ainda não chegou.", "⚠ 16/03/2024 ainda não chegou."},
             {"empregados.dismissal", "11/3/24", "Dado Incorreto!",
              "Demissão: 11/03/2024 é anterior à admissão, 12/03/2024.",
              "⚠ 11/03/2024 é anterior à admissão, 12/03/2024."},
             {"empregados.dismissal", "ontem", "Dado Incorreto!",
              "Demissão: ontem não é uma data (dd/mm/aaaa).", "⚠ Digite a data como dd/mm/aaaa."},
             {"empregados.birthDate", "13/03/2010", kDoubts, "Nascimento: 13 anos na admissão.",
              "⚠ 13 anos na admissão."},
             {"empregados.birthDate", "14/03/1923", kDoubts, "Nascimento: 101 anos hoje.",
              "⚠ 101 anos hoje."},
             {"empregados.taxId", "52998224725", kDoubts, "CPF: 529.982.247-25 já é de 001 ANA.",
              "⚠ 529.982.247-25 já é de 001 ANA."},
             {"empregados.taxId", "52998224724", kDoubts, "CPF: 529.982.247-24 não confere.",
              "⚠ CPF não confere."},
             {"empregados.socialId", "1703325", kDoubts, "PIS: 1703325 está incompleto.",
              "⚠ PIS incompleto."},
         }) {
        EmployeeScreen at;
        const auto before = at.desk.files.content;
        at.type(c.field, c.typed);
        at.desk.person.answers = {Answer::Yes};
        at.save();
        EXPECT_EQ(at.desk.person.shown.back().text, c.text) << c.typed;
        EXPECT_EQ(at.desk.person.shown.back().detail, c.detail) << c.typed;
        EXPECT_EQ(at.screen->hint(c.field), c.beside) << c.typed;
        EXPECT_EQ(at.screen->focusName(), c.field) << c.typed;
        EXPECT_EQ(at.desk.files.content, before) << c.typed;
    }
}

TEST(WrongInputs, DoubtsAreAskedOnceAndOnlyOfWhatChanged) {
    EmployeeScreen at;
    at.type("empregados.birthDate", "150310");
    at.type("empregados.taxId", "52998224725");
    at.desk.person.answers = {Answer::Yes, Answer::Yes};
    at.save();
    ASSERT_EQ(at.desk.person.shown.size(), 2U);
    EXPECT_EQ(at.desk.person.shown[1].detail,
              "Nascimento: 13 anos na admissão.\nCPF: 529.982.247-25 já é de 001 ANA.");
    const std::string recorded = at.desk.file("01CartaPonto");
    EXPECT_EQ(decode<Employee>(splitLines(recorded)[1]).birthDate, "15/03/2010");
    at.type("empregados.telephone", "5555");
    at.desk.person.answers = {Answer::Yes};
    at.save();
    EXPECT_THAT(at.desk.person.takeTexts(), ElementsAre("Confirma Alteração deste ITEM?"));
    EXPECT_NE(at.desk.file("01CartaPonto"), recorded);
}

TEST(WrongInputs, OfACompanyAreNamedAndLeadTheCursorThere) {
    struct Case {
        const char* field;
        const char* typed;
        const char* text;
        const char* detail;
    };
    for (const Case& c :
         {Case{"empresa.name", " ", "Dados incorretos!",
               "Falta preencher: Empregador ou Razão Social."},
          {"empresa.taxId", "11222333000182", kDoubts, "CNPJ/CPF: 11.222.333/0001-82 não confere."},
          {"empresa.ownerTaxId", "529", kDoubts, "CPF: 529 está incompleto."},
          {"empresa.unionTaxId", "12abc34501de53", kDoubts,
           "CNPJ (Sindicato): 12.ABC.345/01DE-53 não confere."}}) {
        EmployeeDesk desk;
        Empresa empresa(desk.at);
        EmpresaWindow window(empresa);
        const WindowDriver screen(window);
        const auto before = desk.files.content;
        screen.type(c.field, c.typed);
        screen.press(Qt::Key_S, Qt::ControlModifier);
        ASSERT_EQ(desk.person.shown.size(), 1U) << c.typed;
        EXPECT_EQ(desk.person.shown[0].text, c.text) << c.typed;
        EXPECT_EQ(desk.person.shown[0].detail, c.detail) << c.typed;
        EXPECT_EQ(screen.focusName(), c.field) << c.typed;
        EXPECT_EQ(desk.files.content, before) << c.typed;
    }
}

TEST(WrongInputs, ShortDatesAreShownWhole) {
    EmployeeScreen at;
    for (const char* typed : {"15/3/80", "15.3.1980", "150380", "15031980"}) {
        at.type("empregados.birthDate", typed);
        at.screen->press(Qt::Key_Tab);
        EXPECT_EQ(at.screen->text("empregados.birthDate"), "15/03/1980") << typed;
    }
}

TEST(WrongInputs, AFullColumnAndWhatAPasteLostAreSaid) {
    EmployeeScreen at;
    const std::string full(30, 'N');
    at.type("empregados.name", full.c_str());
    EXPECT_EQ(at.screen->hint("empregados.name"), "30 de 30");
    at.screen->typeHere("X");
    EXPECT_EQ(at.screen->text("empregados.name"), full);
    EXPECT_EQ(at.screen->hint("empregados.name"), "⚠ 30 de 30");
    QApplication::clipboard()->setText(toQt(std::string(28, 'M') + " DE SOUZA"));
    at.screen->press(Qt::Key_A, Qt::ControlModifier);
    at.screen->press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(at.screen->text("empregados.name"), std::string(28, 'M') + " D");
    EXPECT_EQ(at.screen->hint("empregados.name"),
              "⚠ “E SOUZA” cortado: o que passou de 30 letras.");
}

TEST(WrongInputs, NumbersArePunctuatedWhileTheyAreTyped) {
    EmployeeScreen at;
    at.type("empregados.taxId", "52998");
    EXPECT_EQ(at.screen->text("empregados.taxId"), "529.98");
    auto& cpf = at.screen->find<QLineEdit>("empregados.taxId");
    cpf.setCursorPosition(3);
    at.screen->typeHere("7");
    EXPECT_EQ(toUtf8(cpf.text()), "529.798");
    EXPECT_EQ(cpf.cursorPosition(), 5);
    at.screen->press(Qt::Key_Backspace);
    EXPECT_EQ(toUtf8(cpf.text()), "529.98");
    at.screen->press(Qt::Key_Backspace);
    EXPECT_EQ(toUtf8(cpf.text()), "52998") << "a point can be deleted";
    at.screen->press(Qt::Key_Backspace);
    EXPECT_EQ(toUtf8(cpf.text()), "529.8") << "and is back with the next digit";
    for (int key = 0; key < 20; ++key)
        cpf.undo();
    EXPECT_EQ(toUtf8(cpf.text()), "") << "each edit can be undone";
}

TEST(RegisterKeys, DelAndInsDoWhatTheySay) {
    EmployeeScreen at;
    EXPECT_EQ(at.screen->focusName(), "empregados.list");
    at.screen->press(Qt::Key_Delete);
    ASSERT_EQ(at.desk.person.shown.size(), 1U);
    EXPECT_EQ(at.desk.person.shown[0].detail, "002 BIA");
    at.desk.person.shown.clear();
    at.screen->find("empregados.name").setFocus();
    at.screen->press(Qt::Key_Delete);
    at.screen->press(Qt::Key_Z, Qt::ControlModifier);
    at.screen->find<QTabWidget>("empregados.tabs").setCurrentIndex(1);
    at.screen->find("empregados.shift").setFocus();
    at.screen->press(Qt::Key_Delete);
    EXPECT_TRUE(at.desk.person.shown.empty()) << "nobody is deleted from a field";
    for (int time = 0; time < 2; ++time) {
        at.screen->press(Qt::Key_Insert);
        EXPECT_EQ(at.screen->focusName(), "empregados.name");
        EXPECT_EQ(at.screen->text("empregados.code"), "003");
        EXPECT_TRUE(at.desk.person.shown.empty());
    }
    auto& shift = at.screen->find<QComboBox>("empregados.shift");
    shift.showPopup();
    EXPECT_TRUE(shift.view()->currentIndex().isValid()) << "a row is marked to go on from";
    shift.hidePopup();
    EXPECT_EQ(shift.currentIndex(), -1);
}

}  // namespace
}  // namespace winvrx
