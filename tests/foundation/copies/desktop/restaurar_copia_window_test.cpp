#include "foundation/copies/desktop/restaurar_copia_window.h"

#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QTreeWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using testing::WindowDriver;

class RestaurarCopiaWindowTest : public ::testing::Test {
  protected:
    RestaurarCopiaWindowTest() {
        desk_.file("01Empresa") = "A";
        for (const char* day : {"14/03/2024", "15/03/2024"}) {
            desk_.file("01CartaPonto") = day;
            safety_.makeDailyCopy(desk_.session.folder, {*parseDate(day), *parseTime("08:12")});
        }
    }

    void open() {
        window_ = std::make_unique<RestaurarCopiaWindow>(screen_);
        driver_ = std::make_unique<WindowDriver>(*window_);
    }
    [[nodiscard]] std::string cell(const char* table, int row, int column) {
        auto* item = driver_->find<QTreeWidget>(table).topLevelItem(row);
        return item ? item->text(column).toStdString() : "(none)";
    }
    [[nodiscard]] std::string summary() {
        return driver_->find<QLabel>("restaurar.summary").text().toStdString();
    }

    testing::TestWorkplace desk_;
    testing::PlainArchiver archiver_;
    SafetyCopies safety_{desk_.files, archiver_, desk_.log};
    RestaurarCopia screen_{desk_.at, safety_};
    std::unique_ptr<RestaurarCopiaWindow> window_;
    std::unique_ptr<WindowDriver> driver_;
};

TEST_F(RestaurarCopiaWindowTest, ShowsTheCopiesAndWhatTheNewestBringsBack) {
    open();
    EXPECT_EQ(cell("restaurar.list", 0, 0), "sex, 15/03/2024 às 08:12");
    EXPECT_EQ(cell("restaurar.list", 0, 2), "2");
    EXPECT_EQ(cell("restaurar.list", 1, 0), "qui, 14/03/2024 às 08:12");
    EXPECT_EQ(driver_->state(), "2 cópias");
    EXPECT_EQ(driver_->focusName(), "restaurar.list");
    EXPECT_THAT(summary(), HasSubstr("não há o que restaurar"));
    EXPECT_EQ(driver_->namelessWidgets(), "");
}

TEST_F(RestaurarCopiaWindowTest, RestoresTheSelectedCopyByKeyboard) {
    open();
    driver_->press(Qt::Key_Down);
    EXPECT_EQ(cell("restaurar.changes", 0, 0), "Empresa 01: lista de funcionários");
    EXPECT_EQ(cell("restaurar.changes", 0, 1), "1 arquivo volta ao que era");
    desk_.person.answers = {Answer::Yes};
    driver_->press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(desk_.file("01CartaPonto"), "14/03/2024");
    EXPECT_EQ(cell("restaurar.list", 0, 1),
              "Antes de restaurar a cópia de qui, 14/03/2024 às 08:12");
    EXPECT_THAT(driver_->state(), HasSubstr("Cópia restaurada"));
}

TEST_F(RestaurarCopiaWindowTest, ADamagedCopySaysSo) {
    desk_.files.content["/data/Copias/2024-03-15-0812.zip"] = "01Empresa|99\nA";
    open();
    EXPECT_EQ(cell("restaurar.list", 0, 2), "danificada");
    EXPECT_THAT(summary(), HasSubstr("A cópia está danificada e não pode ser usada."));
    EXPECT_EQ(cell("restaurar.changes", 0, 0), "(none)");
}

TEST_F(RestaurarCopiaWindowTest, WithoutCopiesSaysWhenTheFirstIsMade) {
    desk_.files.content.clear();
    open();
    EXPECT_THAT(summary(), HasSubstr("na próxima gravação"));
    driver_->press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(desk_.person.takeTexts().back(), "Selecione uma Cópia na Lista!");
}

}  // namespace
}  // namespace winvrx
