#include "personnel/forms/desktop/relatorios_window.h"

#include "personnel/contract/contract_file.h"
#include "tests/support/employee_desk.h"
#include "tests/support/recording_engine.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using namespace testing;
using ::testing::HasSubstr;

struct FormsWindow : ::testing::Test {
    EmployeeDesk desk;
    RecordingEngine engine;
    Relatorios reports{desk.at, engine};
    int monthOpened = 0;
    std::unique_ptr<DrivenWindow<RelatoriosWindow>> screen;

    void SetUp() override {
        desk.record("01",
                    {EmployeeDesk::employee("001", "ANA"), EmployeeDesk::employee("002", "BIA")});
        desk.file("01Empresa") = "01 PADARIA";
        for (const char* code : {"001", "002"})
            desk.file(contractFileName({*CompanyCode::parse("01"), *EmployeeCode::parse(code)})) =
                "x\r\n";
        screen = std::make_unique<DrivenWindow<RelatoriosWindow>>(
            reports, [this](QWidget*) { ++monthOpened; });
    }
    [[nodiscard]] int shownForms() {
        const auto& list = screen->find<QTreeWidget>("relatorios.forms.list");
        int shown = 0;
        for (int row = 0; row < list.topLevelItemCount(); ++row)
            shown += list.topLevelItem(row)->isHidden() ? 0 : 1;
        return shown;
    }
};

TEST_F(FormsWindow, FindsAndPrintsAFormWithTheKeyboardAlone) {
    EXPECT_EQ(screen->namelessWidgets(), "");
    EXPECT_EQ(screen->sharedAltLetters(), "");
    EXPECT_EQ(screen->focusName(), "relatorios.forms.list");
    screen->press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(desk.person.takeTexts(),
              std::vector<std::string>{"Pesquise e Selecione um Relatório na Lista! "});
    screen->typeHere("suspens");
    EXPECT_EQ(screen->focusName(), "relatorios.forms.search");
    EXPECT_EQ(shownForms(), 2);
    screen->press(Qt::Key_Down);
    EXPECT_THAT(screen->state(), HasSubstr("03-AVISO DE SUSPENSÃO"));
    EXPECT_THAT(screen->label("relatorios.purpose"), HasSubstr("preenchido"));
    screen->press(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(engine.jobs.size(), 1U);
    EXPECT_EQ(engine.jobs.back().request.layoutName, "03-AV.RPT");
    EXPECT_EQ(engine.jobs.back().cards.size(), 1U);
    screen->press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(engine.jobs.back().cards.size(), 2U);
    screen->click("relatorios.month");
    EXPECT_EQ(monthOpened, 1);
}

TEST_F(FormsWindow, NarrowsByKeywordAndOffersTheFacesOfTheCard) {
    auto& keywords = screen->find<QListWidget>("relatorios.keywords");
    EXPECT_EQ(keywords.count(), 48);
    EXPECT_EQ(shownForms(), 35);
    keywords.setCurrentRow(23);
    EXPECT_EQ(shownForms(), 5);
    auto& forms = screen->find<QTreeWidget>("relatorios.forms.list");
    const auto& faces = screen->find("relatorios.face");
    EXPECT_FALSE(faces.isVisible());
    forms.setCurrentItem(forms.topLevelItem(1));
    EXPECT_TRUE(faces.isVisible());
    EXPECT_EQ(screen->sharedAltLetters(), "");
    screen->click("relatorios.face.front");
    screen->click("relatorios.printOne");
    EXPECT_EQ(engine.jobs.back().request.layoutName, "13-FIfre.RPT");
    keywords.setCurrentRow(47);
    screen->click("relatorios.printOne");
    EXPECT_EQ(desk.person.takeTexts(),
              std::vector<std::string>{"Pesquise e Selecione um Relatório na Lista! "});
}

}  // namespace
}  // namespace winvrx
