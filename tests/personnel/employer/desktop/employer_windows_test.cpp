#include "personnel/employer/desktop/folha_dados_window.h"
#include "personnel/employer/desktop/folha_opcoes_window.h"
#include "personnel/employer/desktop/guia_window.h"
#include "personnel/employer/desktop/tabelas_legais_window.h"
#include "personnel/leaves/leave_form.h"
#include "personnel/leaves/leave_types.h"
#include "personnel/termination/desktop/rescisao_window.h"
#include "tests/support/employees.h"
#include "tests/support/legal_tables.h"
#include "tests/support/printed_text.h"
#include "tests/support/saving_engine.h"
#include "tests/support/window_driver.h"

#include <QComboBox>
#include <QTreeWidget>

#include <algorithm>

namespace winvrx {
namespace {

using namespace testing;
using enum Answer;

const std::filesystem::path kLegal = "/program/legal";

struct EmployerWindows : ::testing::Test, TestWorkplace {
    EmployerWindows() {
        deliverLegalTables(files, kLegal, WINVRX_LEGAL_FOLDER);
        ana.salary = "3.000,00";
        ana.admission = "10/01/2023";
        file("01CartaPonto") = employeeList({ana, testing::employee("002", "RUI")});
    }
    template <typename Window>
    static void expectUsable(const DrivenWindow<Window>& screen) {
        EXPECT_EQ(screen.namelessWidgets(), "");
        EXPECT_EQ(screen.sharedAltLetters(), "");
    }

    Employee ana = testing::employee("001", "ANA");
};

TEST_F(EmployerWindows, ANewYearsLineIsTypedOverACopyOfTheLast) {
    TabelasLegais tables(at, kLegal);
    ASSERT_TRUE(tables.load());
    DrivenWindow<TabelasLegaisWindow> screen(tables);
    expectUsable(screen);
    EXPECT_EQ(screen.focusName(), "tabelas.kinds");
    screen.press(Qt::Key_Insert);
    EXPECT_EQ(screen.text("tabelas.cell0"), "01/2027");
    EXPECT_EQ(screen.text("tabelas.cell1"), "1.621,00");
    screen.press(Qt::Key_Return);
    screen.typeHere("1.700,00");
    screen.press(Qt::Key_Return);
    screen.typeHere("Decreto");
    screen.press(Qt::Key_Escape);
    EXPECT_TRUE(screen.window.isVisible()) << "a typed line would be lost";
    person.answers = {Yes};
    screen.press(Qt::Key_Return);
    EXPECT_TRUE(file("salario-minimo.txt").ends_with("01/2027; 1.700,00; Decreto\r\n"));
    auto& lines = screen.find<QTreeWidget>("tabelas.lines");
    EXPECT_EQ(lines.currentItem()->text(3).toStdString(), "Sua");
    EXPECT_EQ(screen.focusName(), "tabelas.lines");
    person.answers = {Yes};
    screen.press(Qt::Key_Delete);
    EXPECT_FALSE(files.content.contains("/data/salario-minimo.txt"));
    screen.find("tabelas.kinds").setFocus();
    for (int kind = 1; kind < 7; ++kind) {
        screen.press(Qt::Key_Down);
        expectUsable(screen);
        EXPECT_GT(lines.topLevelItemCount(), 0);
    }
    screen.press(Qt::Key_Escape);
    EXPECT_FALSE(screen.window.isVisible());
}

TEST_F(EmployerWindows, OptionsAndFactsAreChosenAndRecorded) {
    FolhaOpcoes options(at);
    DrivenWindow<FolhaOpcoesWindow> screen(options, QStringLiteral("01 EMPRESA"));
    expectUsable(screen);
    EXPECT_EQ(screen.focusName(), "opcoes.domestico");
    screen.press(Qt::Key_Down);
    EXPECT_EQ(screen.state(), "Alterações não gravadas");
    person.answers = {Yes};
    screen.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(file("01FolhaOpcoes").starts_with("domestico = 1\r\n"));

    FolhaDados facts(at);
    DrivenWindow<FolhaDadosWindow> form(facts, std::nullopt);
    expectUsable(form);
    form.press(Qt::Key_Return);
    EXPECT_EQ(form.focusName(), "dados.vale-dia");
    form.typeHere("12");
    form.press(Qt::Key_Return);
    EXPECT_EQ(form.text("dados.vale-dia"), "R$ 12,00");
    person.answers = {Yes};
    form.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(file("01FolhaDados001"), "vale-dia = 12,00\r\n");
    EXPECT_EQ(form.state(), "Gravado");
}

TEST_F(EmployerWindows, TerminationAndGuideShowEachSum) {
    LeaveForm leave(ana.admissionDate());
    leave.type(LeaveInput::Type, kLeaveTypes[7]);
    leave.type(LeaveInput::FirstDay, "15/06/2026");
    leave.type(LeaveInput::TerminationType, kTerminationTypes[0]);
    leave.type(LeaveInput::NoticeType, kNoticeTypes[1]);
    file("01configAf001") = encode(leave.leave()) + "\r\n**** \r\n";
    ReportDesk printing;
    SavingEngine engine(printing);
    Rescisao end(at, engine, kLegal, ana);
    ASSERT_TRUE(end.load());
    DrivenWindow<RescisaoWindow> screen(end);
    expectUsable(screen);
    EXPECT_EQ(screen.focusName(), "rescisao.lines");
    EXPECT_EQ(screen.label("rescisao.memo"), "Saldo de salário: 3.000,00 ÷ 30 × 15 = 1.500,00");
    screen.press(Qt::Key_Down);
    EXPECT_TRUE(screen.label("rescisao.memo").starts_with("Aviso prévio indenizado: 3.000,00"));
    ASSERT_TRUE(end.preview());
    const auto words = printedWords(printing.pdf());
    EXPECT_EQ(words.back().page, 1) << "one page with its memo";
    const auto isPrinted = [&](const std::string& text) {
        return std::ranges::any_of(
            words, [&](const PrintedWord& word) { return word.text == toQt(text); });
    };
    for (const auto* lines : {&end.sheet()->credits, &end.sheet()->debits})
        for (const TerminationLine& line : *lines)
            EXPECT_TRUE(isPrinted(moneyText(line.amount))) << line.words;
    EXPECT_TRUE(isPrinted(moneyText(end.sheet()->net)));

    file("01FolhaOpcoes") = "domestico = 1\r\n";
    file("DataIde.ivc") = "03-2026\r\nTodos\r\n";
    file("01fp0000103-2026.bdx") = "001 SALARIO BASE         1220,01111000 1.621,00\r\n";
    DomesticMonth month(at, kLegal);
    ASSERT_TRUE(month.load());
    DrivenWindow<GuiaWindow> guide(month);
    expectUsable(guide);
    EXPECT_TRUE(guide.state().starts_with("A recolher: R$ 324,19"));
    EXPECT_TRUE(guide.label("guia.memo").starts_with("INSS do empregador: 1.621,00 × 8% = 129,68"));
}

}  // namespace
}  // namespace winvrx
