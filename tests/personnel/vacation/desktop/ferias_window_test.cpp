#include "personnel/vacation/desktop/ferias_window.h"

#include "personnel/vacation/ferias.h"
#include "personnel/vacation/vacation_notice.h"
#include "tests/support/employee_desk.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/window_driver.h"

#include <QAbstractButton>
#include <QFile>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <memory>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using namespace testing;

std::string textOf(const Document& document) {
    std::string text;
    for (const auto& block : document.blocks)
        if (const auto* table = std::get_if<DocumentTable>(&block))
            for (const auto& row : table->rows)
                for (const Paragraph& cell : row)
                    text += cell.text + "\n";
        else
            text += std::get<Paragraph>(block).text + "\n";
    return text;
}

struct VacationWindow : ::testing::Test {
    EmployeeDesk desk;
    Ferias command{desk.at,
                   {desk.locks, [](const EmployeeKey&, WorkMonth) { return std::nullopt; }}};
    std::unique_ptr<DrivenWindow<FeriasWindow>> screen;
    RecordingWordProcessor writer;
    PaperDesk papers{writer, [] { return std::vector<std::filesystem::path>{"/program"}; }};

    void SetUp() override {
        desk.record("01", {employee("001", "ANA", {.admission = "20/04/2022"}),
                           employee("002", "BIA", {.admission = "01/02/2024"})});
        desk.file("01Empresa") = "01 EMPRESA MODELO LTDA\r\n";
        desk.file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
        QFile text(QStringLiteral(WINVRX_SOURCES "/resources/documents/aviso-ferias.txt"));
        ASSERT_TRUE(text.open(QIODevice::ReadOnly));
        desk.files.content["/program/aviso-ferias.txt"] = text.readAll().toStdString();
    }
    void open() {
        (void)command.open();
        screen = std::make_unique<DrivenWindow<FeriasWindow>>(command);
    }
    [[nodiscard]] QTreeWidget& rows() { return screen->find<QTreeWidget>("vacations.list"); }
    void typeOn(std::initializer_list<const char*> texts) {
        for (const char* text : texts) {
            screen->typeHere(text);
            screen->press(Qt::Key_Return);
        }
    }
};

TEST_F(VacationWindow, RecordsAVacationWithTheKeyboardAlone) {
    open();
    EXPECT_EQ(screen->namelessWidgets(), "");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    EXPECT_EQ(screen->focusName(), "vacations.employees");
    EXPECT_EQ(screen->find<QAbstractButton>("vacations.due").text(),
              QStringLiteral("Férias a vencer em 60 dias (1)"));
    EXPECT_THAT(screen->label("vacations.dueText"), HasSubstr("com início até 21/03/2024"));
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "vacations.list");
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "vacations.first");
    typeOn({"01042024", "20"});
    EXPECT_EQ(screen->text("vacations.last"), "20/04/2024");
    EXPECT_THAT(screen->label("vacations.notes"), HasSubstr("1 dia é pago em dobro"));
    EXPECT_EQ(screen->state(), "Alterações não gravadas");
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(rows().topLevelItem(0)->text(1), QStringLiteral("20Dias  -  Quitar "));
    EXPECT_EQ(rows().topLevelItem(0)->text(2), QStringLiteral("01/04/2024"));
    EXPECT_EQ(screen->focusName(), "vacations.list");

    // The leave went elsewhere: the row says so.
    desk.file("01configAf001") = "**** \r\n";
    (void)command.open();
    screen->window.refresh();
    EXPECT_THAT(toUtf8(rows().topLevelItem(0)->text(2)), HasSubstr("⚠"));
}

TEST_F(VacationWindow, PrintsTheNoticeOfWhoHasAContract) {
    ASSERT_TRUE(command.open());
    ASSERT_TRUE(command.select(0));
    command.form().type(VacationInput::First, "15/04/2024");
    command.form().type(VacationInput::Days, "20");
    command.form().type(VacationInput::Sold, "10");
    desk.person.answers = {Answer::Yes, Answer::Yes};
    ASSERT_TRUE(command.record());
    const VacationItem* item = command.itemOf(command.rows().front());
    const auto print = [&](const VacationItem* of) {
        desk.person.shown.clear();
        desk.person.answers = {Answer::Yes};
        return printVacationNotice(desk.at, papers, command.selected(), of);
    };
    EXPECT_FALSE(print(item));
    EXPECT_EQ(desk.person.shown.back().text,
              "Não Existe Contrato de Trabalho Gerado para este Funcionário!!");
    desk.file("01contrato001") = "x";
    EXPECT_FALSE(print(nullptr));
    EXPECT_TRUE(print(item));
    EXPECT_EQ(desk.person.shown.back().text, "Confirma Impressão do AVISO DE FÉRIAS?");
    ASSERT_EQ(writer.printed.size(), 1U);
    const std::string text = textOf(writer.printed.front());
    EXPECT_THAT(text, HasSubstr("20/04/2022 a 19/04/2023"));
    EXPECT_THAT(text, HasSubstr("10 dias são convertidos em abono"));
    EXPECT_THAT(text, HasSubstr("05/05/2024"));
    EXPECT_THAT(text, HasSubstr("será paga até 13/04/2024"));
}

}  // namespace
}  // namespace winvrx
