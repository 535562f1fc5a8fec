#include "personnel/documents/desktop/documentos_window.h"

#include "tests/support/papers_desk.h"
#include "tests/support/window_driver.h"

#include <QLabel>
#include <QListWidget>
#include <QTextBrowser>

#include <gmock/gmock.h>

#include <memory>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using namespace testing;

struct PapersWindow : ::testing::Test {
    PapersDesk desk;
    int opened = 0;
    std::unique_ptr<DrivenWindow<DocumentosWindow>> screen =
        std::make_unique<DrivenWindow<DocumentosWindow>>(
            desk.screen, std::vector<DocumentosWindow::Neighbour>{
                             {"contract", QStringLiteral("Contrato"), Qt::Key_F6,
                              "documents.contract", [this](QWidget*) { ++opened; }}});

    [[nodiscard]] std::string shownText() const {
        return toUtf8(screen->find<QTextBrowser>("documents.text").toPlainText());
    }
};

TEST_F(PapersWindow, PrintsAPaperWithTheKeyboardAlone) {
    EXPECT_EQ(screen->namelessWidgets(), "");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    EXPECT_EQ(screen->focusName(), "documents.employees");
    EXPECT_THAT(shownText(), HasSubstr("AVISO PRÉVIO"));
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "documents.papers");
    screen->press(Qt::Key_End);
    screen->press(Qt::Key_Home);
    for (int row = 0; row < static_cast<int>(Paper::SaidaExpediente); ++row)
        screen->press(Qt::Key_Down);
    screen->press(Qt::Key_Return);
    EXPECT_EQ(screen->focusName(), "documents.dia_saida");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    int letters = 0;
    for (const auto* label : screen->window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy())
            letters += QKeySequence::mnemonic(label->text()).isEmpty() ? 0 : 1;
    EXPECT_GE(letters, 7) << "three fields of every paper, four of this one";
    for (const char* typed : {"", "830", "1000"}) {
        screen->typeHere(typed);
        screen->press(Qt::Key_Return);
    }
    QTest::qWait(300);
    EXPECT_THAT(shownText(), HasSubstr("no dia 15/03/2024, das 08:30 às 10:00."));
    EXPECT_EQ(screen->state(), "Dados ainda não impressos");
    desk.person.answers = {Answer::Yes};
    screen->press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(desk.printed(), HasSubstr("das 08:30 às 10:00."));
}

TEST_F(PapersWindow, LeadsToTheFieldThatIsWrongAndAsksBeforeTypedTextGoes) {
    screen->find<QListWidget>("documents.papers").setCurrentRow(static_cast<int>(Paper::Viagem));
    screen->type("documents.partida", "31/02/2024");
    screen->click("documents.print");
    EXPECT_EQ(desk.person.shown.back().text, "Confira o campo \"Partida\".");
    EXPECT_EQ(screen->focusName(), "documents.partida");
    screen->find<QListWidget>("documents.employees").setCurrentRow(1);
    EXPECT_EQ(desk.person.shown.back().text, discardTyped().text);
    EXPECT_EQ(screen->find<QListWidget>("documents.employees").currentRow(), 0);
    desk.files.content["/data/documentos/modelos/viagem.txt"] = "= {nomes}";
    screen->click("documents.contract");
    EXPECT_EQ(opened, 1);
    EXPECT_THAT(screen->label("documents.remark"),
                HasSubstr("A palavra \"nomes\" não é conhecida"));
    EXPECT_EQ(shownText(), "");
}

}  // namespace
}  // namespace winvrx
