#include "foundation/copies/restaurar_copia.h"

#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RestaurarCopiaTest : public ::testing::Test {
  protected:
    RestaurarCopiaTest() {
        desk.file("01Empresa") = "A";
        desk.file("01001-03-2024.bdx") = "1";
        desk.file("01002-03-2024.bdx") = "2";
        safety.makeDailyCopy(desk.session.folder, copy.made);
        desk.file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
        screen.load();
    }

    const CopyName copy{.made = {*parseDate("15/03/2024"), *parseTime("08:12")}};
    testing::TestWorkplace desk;
    testing::PlainArchiver archiver;
    SafetyCopies safety{desk.files, archiver, desk.log};
    RestaurarCopia screen{desk.at, safety};
};

TEST_F(RestaurarCopiaTest, TellsInWordsWhatACopyBringsBack) {
    desk.file("01Empresa") = "B";
    desk.file("01001-03-2024.bdx") = "other";
    desk.files.content.erase("/data/01002-03-2024.bdx");
    desk.file("01003-03-2024.bdx") = "3";
    desk.file("01004-03-2024.bdx") = "4";
    const CopyPreview preview = screen.preview(copy);
    EXPECT_EQ(preview.problem, "");
    ASSERT_THAT(preview.changes,
                ElementsAre(SubjectChange{"Cadastro de empresas", 1, 0, 0},
                            SubjectChange{"Empresa 01: cartões de março/2024", 1, 1, 2}));
    EXPECT_EQ(preview.changes[1].text(),
              "1 arquivo volta ao que era, 1 arquivo que falta é trazido de volta, 2 arquivos que "
              "não existiam são excluídos");
    EXPECT_EQ(momentOfCopy(copy), "sex, 15/03/2024 às 08:12");
}

TEST_F(RestaurarCopiaTest, AsksAndThenClearsTheWorkMonth) {
    desk.file("01Empresa") = "B";
    EXPECT_FALSE(screen.restore(copy));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Confirma a Restauração da Cópia de sex, 15/03/2024 às 08:12?"));
    EXPECT_EQ(desk.file("01Empresa"), "B");
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(screen.restore(copy));
    EXPECT_EQ(desk.file("01Empresa"), "A");
    EXPECT_FALSE(desk.files.content.contains("/data/DataIde.ivc"));
    screen.load();
    ASSERT_EQ(screen.copies().size(), 2U);
    EXPECT_EQ(originOfCopy(screen.copies()[0]),
              "Antes de restaurar a cópia de sex, 15/03/2024 às 08:12");
}

TEST_F(RestaurarCopiaTest, RefusesWhatCannotBeRestored) {
    EXPECT_FALSE(screen.restore(std::nullopt));
    EXPECT_FALSE(screen.restore(copy));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Selecione uma Cópia na Lista!",
                            "A Pasta de Dados já está igual a esta Cópia!"));
    desk.files.content["/data/Copias/2024-03-15-0812.zip"] = "01Empresa|99\nA";
    EXPECT_THAT(screen.preview(copy).problem, HasSubstr("danificada"));
    desk.person.answers = {Answer::Yes};
    EXPECT_FALSE(screen.restore(copy));
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].text, "Ocorreu Erro");
    EXPECT_THAT(desk.person.shown[0].detail, HasSubstr("danificada"));
    screen.load();
    EXPECT_TRUE(screen.copies()[0].damaged);
}

}  // namespace
}  // namespace winvrx
