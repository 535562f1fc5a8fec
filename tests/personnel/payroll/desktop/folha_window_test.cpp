#include "personnel/payroll/desktop/folha_window.h"

#include "foundation/values/text.h"
#include "personnel/leaves/afastamento.h"
#include "personnel/payroll/desktop/eventos_window.h"
#include "personnel/payroll/eventos.h"
#include "tests/support/payroll_office.h"
#include "tests/support/window_driver.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <memory>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using enum Answer;
using namespace testing;

std::vector<std::string> cellsOf(const QTreeWidget& table, int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < table.columnCount(); ++column)
        cells.push_back(table.topLevelItem(row)->text(column).toStdString());
    return cells;
}

struct FolhaWindowTest : ::testing::Test {
    PayrollOffice office{WINVRX_SOURCES "/resources/legal"};
    FolhaScreen command{office.at, PayrollOffice::kLegal};
    std::unique_ptr<DrivenWindow<FolhaWindow>> screen;
    int timeCards = 0;

    void open() {
        (void)command.open();
        screen = std::make_unique<DrivenWindow<FolhaWindow>>(command);
        QObject::connect(&screen->window, &FolhaWindow::timeCardRequested, &screen->window,
                         [this] { ++timeCards; });
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        screen->press(key, modifiers);
        QApplication::processEvents();
    }
    [[nodiscard]] std::vector<std::string> row(const char* list, int at) {
        return cellsOf(screen->find<QTreeWidget>(list), at);
    }
    [[nodiscard]] std::string memo() {
        return screen->find<QPlainTextEdit>("folha.memo").toPlainText().toStdString();
    }
};

TEST_F(FolhaWindowTest, ShowsWhatComesToNothingInThePaletteOfTheMoment) {
    open();
    auto& events = screen->find<QTreeWidget>("folha.events");
    QPalette palette = events.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, Qt::white);
    palette.setColor(QPalette::Text, Qt::blue);
    palette.setColor(QPalette::PlaceholderText, Qt::red);
    events.setPalette(palette);
    const auto rednessOf = [&](int row) {
        const auto cell = events.visualItemRect(events.topLevelItem(row));
        const QImage shown = events.viewport()->grab(cell).toImage();
        int reddest = -255;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x) {
                const QColor pixel = shown.pixelColor(x, y);
                reddest = std::max(reddest, pixel.red() - pixel.blue());
            }
        return reddest;
    };
    EXPECT_EQ(row("folha.events", 1)[3], "0,00");
    EXPECT_GT(rednessOf(1), 60);
    EXPECT_EQ(row("folha.events", 10)[4], "254,44");
    EXPECT_LE(rednessOf(10), 0);
}

TEST_F(FolhaWindowTest, ComputesExplainsTypesOverAndRecordsByKeyboard) {
    open();
    EXPECT_EQ(screen->namelessWidgets(), "");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    EXPECT_EQ(screen->focusName(), "folha.employees");
    EXPECT_THAT(row("folha.hours", 3), ElementsAre(" Horas Falta             ", "000,0"));
    EXPECT_THAT(row("folha.events", 10), ElementsAre("091", "INSS", "000", "", "254,44", ""));
    press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "folha.events");
    for (int line = 0; line < 4; ++line)
        press(Qt::Key_Down);
    EXPECT_EQ(memo(), "Horas extras 50%: 3.000,00 ÷ 220 × 1,5 × 2:00 = 40,91");
    press(Qt::Key_F3);
    EXPECT_EQ(screen->focusName(), "folha.memo");

    screen->find("folha.events").setFocus();
    screen->typeHere("1");
    auto& editor = screen->find<QLineEdit>("folha.amount");
    QTest::keyClicks(&editor, QStringLiteral("000"));
    QTest::keyClick(&editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !screen->window.findChild<QLineEdit*>(QStringLiteral("folha.amount")); }));
    EXPECT_THAT(row("folha.events", 4),
                ElementsAre("005", "HORA EXTRA 50%", "050", "1.000,00", "", "✎ digitado"));
    EXPECT_EQ(screen->label("folha.standing"), "Alterações não gravadas");
    const std::string net = screen->label("folha.net");
    EXPECT_THAT(memo(), HasSubstr("Valor digitado: 1.000,00\nHoras extras 50%: 3.000,00"));
    screen->typeHere("x");
    QTest::keyClick(&screen->find<QLineEdit>("folha.amount"), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !office.person.shown.empty(); }));
    EXPECT_EQ(office.person.shown.back().detail, "\"x\" não é um valor em reais, como 1.234,56.");
    EXPECT_EQ(row("folha.events", 4)[3], "1.000,00");
    office.person.answers = {No};
    press(Qt::Key_PageDown);
    EXPECT_EQ(screen->label("folha.name"), "001 ANA DA CONCEIÇÃO") << "what is typed would be lost";
    office.person.answers = {Yes};
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(office.isRecorded("001"));
    EXPECT_EQ(screen->label("folha.standing"), "Gravada: mês fechado para este funcionário");
    EXPECT_THAT(memo(), HasSubstr("Valor gravado: 1.000,00"));

    office.ana.salary = "3.100,00";
    office.record();
    EXPECT_TRUE(command.open());
    screen->window.refresh();
    EXPECT_EQ(screen->label("folha.net"), net);
    EXPECT_THAT(screen->label("folha.standing"), HasSubstr("Gravada; hoje o líquido seria R$ "));
    EXPECT_THAT(row("folha.events", 0),
                ElementsAre("001", "SALARIO BASE", "220", "3.000,00", "", "hoje 3.100,00"));
    office.person.answers = {Yes};
    press(Qt::Key_F9);
    EXPECT_FALSE(office.isRecorded("001"));
    EXPECT_THAT(office.person.shown.back().detail, HasSubstr("março/2026 de 001 ANA DA CONCEIÇÃO"));
    EXPECT_THAT(row("folha.events", 0)[3], "3.100,00");
}

TEST_F(FolhaWindowTest, SaysWhatKeepsAMonthFromBeingComputed) {
    open();
    press(Qt::Key_End);
    EXPECT_EQ(screen->label("folha.standing"), "Planilha de Ponto não preenchida neste mês.");
    EXPECT_TRUE(office.person.shown.empty()) << "turning the pages asks nothing";
    office.person.answers = {Yes};
    press(Qt::Key_Return);
    EXPECT_EQ(timeCards, 1);
    press(Qt::Key_Up);
    EXPECT_EQ(screen->label("folha.standing"), "Sem salário no cadastro.");
    press(Qt::Key_Return);
    EXPECT_THAT(office.person.takeTexts().back(), HasSubstr("= R$ 0,00!     Clique"));
    press(Qt::Key_Home);
    office.person.answers = {Yes, Yes};
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(office.isRecorded("001") && office.isRecorded("002"));
    EXPECT_FALSE(office.isRecorded("003") || office.isRecorded("004"));
}

TEST_F(FolhaWindowTest, APayrollRecordedElsewhereClosesTheLeavesThatAreOpenHere) {
    const RecordedAnswers records(office.store());
    Afastamento leaves(office.at, records);
    ASSERT_TRUE(leaves.open() && leaves.select(0));
    for (const auto& [input, text] :
         {std::pair(LeaveInput::Type, "007"), std::pair(LeaveInput::FirstDay, "11/03/2026"),
          std::pair(LeaveInput::Days, "1")})
        leaves.form().type(input, text);
    FolhaScreen elsewhere(office.at, PayrollOffice::kLegal);
    ASSERT_TRUE(elsewhere.open() && elsewhere.select(0));
    office.person.answers = {Yes, Yes, Yes};
    ASSERT_TRUE(elsewhere.save());
    const auto before = office.files.content;
    EXPECT_FALSE(leaves.add());
    EXPECT_THAT(office.person.takeTexts().back(), HasSubstr("Já Foi Gerada a Folha de Pagamento"));
    EXPECT_EQ(office.files.content, before);
    office.person.answers = {Yes, Yes};
    ASSERT_TRUE(elsewhere.reopen());
    EXPECT_TRUE(leaves.add());
}

TEST_F(FolhaWindowTest, AsksForTheMonthFirst) {
    office.files.content.erase("/data/DataIde.ivc");
    open();
    EXPECT_THAT(screen->label("folha.empty"), HasSubstr("mês de trabalho"));
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(office.person.takeTexts().back(), "Não Há Dados para Gravação!");
}

TEST_F(FolhaWindowTest, TheCatalogueTakesEventsByKeyboard) {
    Eventos events(office.at, {});
    DrivenWindow<EventosWindow> catalogue(events, QStringLiteral("01 PADARIA"));
    EXPECT_EQ(catalogue.namelessWidgets(), "");
    EXPECT_EQ(catalogue.sharedAltLetters(), "");
    catalogue.press(Qt::Key_Insert);
    EXPECT_EQ(catalogue.focusName(), "eventos.name");
    catalogue.typeHere("cesta");
    auto& kind = catalogue.find<QCheckBox>("eventos.kind");
    EXPECT_EQ(kind.text().toStdString(), "Crédito");
    kind.click();
    EXPECT_EQ(kind.text().toStdString(), "Débito");
    catalogue.type("eventos.reference", "1x0");
    office.person.answers = {Yes};
    catalogue.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(office.person.takeTexts().back(),
              "Confirma Inclusão deste Evento (023 cesta                0010,00001000) ?");
    EXPECT_EQ(splitLines(office.file("01confgger")).size(), kDefaultEvents + 1);
    office.person.answers = {Yes};
    catalogue.press(Qt::Key_F9);
    EXPECT_EQ(office.person.takeTexts().back(),
              "Confirma a 'Restaurar Padrão' da Lista de Eventos?");
    EXPECT_EQ(splitLines(office.file("01confgger")).size(), kDefaultEvents);
}

}  // namespace
}  // namespace winvrx
