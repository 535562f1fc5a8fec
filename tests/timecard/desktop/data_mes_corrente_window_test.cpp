#include "timecard/desktop/data_mes_corrente_window.h"

#include "tests/support/driven_window.h"
#include "tests/support/test_workplace.h"
#include "timecard/selected_month.h"

#include <gmock/gmock.h>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>

namespace winvrx {
namespace {

using testing::DrivenWindow;
using testing::TestWorkplace;

/// The window over March 2024, which begins on a Friday: day 1 is cell 6.
struct MonthWindow : ::testing::Test {
    TestWorkplace desk;
    DataMesCorrente command{desk.at};
    std::unique_ptr<DrivenWindow<DataMesCorrenteWindow>> driven;

    void SetUp() override {
        command.open();
        driven = std::make_unique<DrivenWindow<DataMesCorrenteWindow>>(command);
    }
    [[nodiscard]] MonthSettings recorded() {
        return loadMonthSettings(desk.files, desk.session.folder, *parseMonthKey("03-2024"));
    }
};

TEST_F(MonthWindow, TicksAreListedCountedAndRecorded) {
    driven->click("month.day34");
    auto& holidays = driven->get<QListWidget>("month.holidays");
    ASSERT_EQ(holidays.count(), 1);
    EXPECT_EQ(holidays.item(0)->text(), QStringLiteral("29/03/2024  sexta-feira"));
    EXPECT_THAT(driven->text("month.counts"), ::testing::HasSubstr("Úteis: <b>25</b>"));
    EXPECT_EQ(driven->text("state"), "Alterações não gravadas");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(recorded().holidays(), ::testing::ElementsAre(*parseDate("29/03/2024")));
    driven->click("month.reset");
    EXPECT_EQ(holidays.count(), 0);
    driven->click("month.restore");
    EXPECT_EQ(holidays.count(), 1);
    EXPECT_TRUE(driven->get<QCheckBox>("month.day34").isChecked());
}

TEST_F(MonthWindow, OnlyTheMonthsCellsShowAndArrowsWalkThem) {
    EXPECT_FALSE(driven->get<QCheckBox>("month.day5").isVisible());
    EXPECT_FALSE(driven->get<QCheckBox>("month.day37").isVisible());
    driven->get<QCheckBox>("month.day6").setFocus();
    driven->press(Qt::Key_Right);
    driven->press(Qt::Key_Down);
    driven->press(Qt::Key_Space);
    EXPECT_TRUE(command.settings().isHoliday(*parseDate("09/03/2024")));
    driven->press(Qt::Key_Up);
    driven->press(Qt::Key_Up);
    EXPECT_TRUE(driven->get<QCheckBox>("month.day7").hasFocus());
}

TEST_F(MonthWindow, AWrongNumberIsSaidBesideItAndKeepsTheWindowOpen) {
    driven->type("month.minimumPercent", "5x");
    EXPECT_EQ(driven->text("month.minimumPercent.hint"), "⚠ Informe um número de 0 a 999.");
    driven->click("month.confirm");
    EXPECT_THAT(desk.person.takeTexts(), ::testing::ElementsAre("Dados incorretos!"));
    EXPECT_TRUE(driven->window.isVisible());
    EXPECT_TRUE(desk.files.content.empty());
    driven->type("month.minimumPercent", "60");
    EXPECT_EQ(driven->text("month.minimumPercent.hint"), "");
    driven->click("month.confirm");
    EXPECT_EQ(driven->window.result(), QDialog::Accepted);
    EXPECT_EQ(recorded().overtime.minimumPercent, 60);
    EXPECT_TRUE(loadSelectedMonth(desk.files, desk.session.folder));
}

TEST_F(MonthWindow, ChoicesAreRecordedAndShownAgain) {
    driven->click("month.singleLevel");
    driven->click("month.decimalTotals");
    driven->click("month.differentiated");
    driven->type("month.closingDay", "21");
    driven->type("month.maximumPercent", "110");
    EXPECT_EQ(driven->text("month.modeNotice"),
              "Usar Somente 1 (um) Único Percentual de Horas Extras para 110%");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    const MonthSettings settings = recorded();
    EXPECT_EQ(settings.overtime.mode, OvertimeMode::SingleLevel);
    EXPECT_EQ(settings.overtime.totalsFormat, TotalsFormat::DecimalHours);
    EXPECT_TRUE(settings.overtime.differentiatedPercent);
    EXPECT_FALSE(settings.fixedMonth);
    EXPECT_EQ(settings.closingDay, 21);

    driven->click("month.reference");  // the month after: defaults
    EXPECT_TRUE(driven->get<QRadioButton>("month.bothLevels").isChecked());
    EXPECT_TRUE(driven->get<QRadioButton>("month.fixedMonth").isChecked());
    EXPECT_FALSE(command.changed());
    driven->click("month.reference");
    driven->click("month.reference");
    EXPECT_TRUE(driven->get<QRadioButton>("month.singleLevel").isChecked());
    EXPECT_TRUE(driven->get<QRadioButton>("month.startDay").isChecked());
    EXPECT_TRUE(driven->get<QCheckBox>("month.differentiated").isChecked());
    EXPECT_FALSE(command.changed());
}

TEST_F(MonthWindow, EscapeAsksBeforeChangesAreLost) {
    driven->click("month.day34");
    driven->press(Qt::Key_Escape);
    EXPECT_TRUE(driven->window.isVisible());
    EXPECT_EQ(desk.person.shown.size(), 1U);
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_Escape);
    EXPECT_FALSE(driven->window.isVisible());
}

TEST_F(MonthWindow, EveryWidgetHasAName) {
    EXPECT_THAT(driven->namelessWidgets(), ::testing::IsEmpty());
}

}  // namespace
}  // namespace winvrx
