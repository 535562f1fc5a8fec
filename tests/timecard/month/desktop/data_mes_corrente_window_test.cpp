#include "timecard/month/desktop/data_mes_corrente_window.h"

#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"
#include "timecard/month/selected_month.h"

#include <gmock/gmock.h>
#include <QCheckBox>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

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
    /// The list "Feriados:", cells parted by bars.
    [[nodiscard]] std::string listed() {
        const auto& list = driven->find<QTreeWidget>("month.holidays");
        QStringList rows;
        for (int row = 0; row < list.topLevelItemCount(); ++row) {
            QStringList cells;
            for (int cell = 0; cell < list.columnCount(); ++cell)
                cells << list.topLevelItem(row)->text(cell);
            rows << cells.join(u'|');
        }
        return rows.join(u'\n').toStdString();
    }
    [[nodiscard]] MonthSettings recorded() {
        return loadMonthSettings(desk.store(), *parseMonthKey("03-2024"));
    }
};

TEST_F(MonthWindow, TicksAreListedCountedAndRecorded) {
    EXPECT_EQ(listed(), "");
    EXPECT_EQ(driven->label("month.offer"),
              "◇ Há feriados sugeridos, ainda não marcados. Clique aqui ou use F8 para marcá-los.");
    EXPECT_EQ(driven->label("month.unticked"), "◇ Não marcados: 29/03 Sexta-feira Santa");
    EXPECT_EQ(driven->label("state"), "Mês ainda não gravado");
    driven->press(Qt::Key_F8);
    EXPECT_EQ(listed(), "29/03/2024|sex|Sexta-feira Santa");
    driven->click("month.day34");
    EXPECT_EQ(listed(), "");
    QTest::mouseClick(&driven->find<QLabel>("month.offer"), Qt::LeftButton);
    EXPECT_EQ(listed(), "29/03/2024|sex|Sexta-feira Santa");
    driven->click("month.day25");
    EXPECT_THAT(driven->label("month.counts"), ::testing::HasSubstr("Úteis: <b>24</b>"));
    EXPECT_EQ(driven->label("state"), "Alterações não gravadas");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(recorded().holidays(),
                ::testing::ElementsAre(*parseDate("20/03/2024"), *parseDate("29/03/2024")));
    EXPECT_EQ(listed(), "20/03/2024|qua|\n29/03/2024|sex|Sexta-feira Santa");
    EXPECT_FALSE(driven->find<QLabel>("month.offer").isVisible());
    EXPECT_EQ(driven->label("state"), "Mês gravado");
    driven->click("month.reset");
    EXPECT_EQ(listed(), "");
    EXPECT_EQ(driven->label("month.unticked"), "◇ Não marcados: 29/03 Sexta-feira Santa");
    driven->click("month.restore");
    EXPECT_TRUE(driven->find<QCheckBox>("month.day34").isChecked());
    EXPECT_FALSE(driven->find<QLabel>("month.unticked").isVisible());
    driven->click("month.day25");
    driven->click("month.recordTicks");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(driven->label("state"), "Mês gravado, sem as marcas dos feriados");
    EXPECT_EQ(recorded().holidays().size(), 2U);
    EXPECT_TRUE(driven->find<QLabel>("month.offer").isVisible());
}

TEST_F(MonthWindow, DaysKeptByCustomBearASignAndTheirName) {
    driven->press(Qt::Key_PageUp);
    EXPECT_EQ(driven->find<QComboBox>("month.month").currentText().toStdString(), "fevereiro/2024");
    EXPECT_EQ(driven->label("month.unticked"), "◇ Não marcados: 12/02 Carnaval, 13/02 Carnaval");
    auto& tuesday = driven->find<QCheckBox>("month.day17");
    EXPECT_EQ(tuesday.text().toStdString(), "13 ◇");
    EXPECT_EQ(tuesday.accessibleName().toStdString(),
              "13/02/2024, terça-feira, Carnaval, sugestão");
    driven->click("month.day17");
    EXPECT_EQ(tuesday.text().toStdString(), "13");
    EXPECT_EQ(listed(), "13/02/2024|ter|Carnaval");
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_PageDown);
    EXPECT_EQ(driven->find<QComboBox>("month.month").currentText().toStdString(), "março/2024");
}

TEST_F(MonthWindow, TheListOfTheTownIsAskedForAndItsDaysAreOffered) {
    int requests = 0;
    QObject::connect(&driven->window, &DataMesCorrenteWindow::localHolidaysRequested,
                     &driven->window, [&] {
                         ++requests;
                         desk.file("Feriados") = "19/03      PADROEIRO\r\n";
                         driven->window.refreshHolidays();
                     });
    driven->press(Qt::Key_F6);
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(driven->label("month.unticked"),
              "◇ Não marcados: 19/03 PADROEIRO, 29/03 Sexta-feira Santa");
    EXPECT_EQ(driven->find<QCheckBox>("month.day24").text().toStdString(), "19 ◇");
}

TEST_F(MonthWindow, TheRulesOfTheLastRecordedMonthComeByKey) {
    EXPECT_FALSE(driven->find<QToolButton>("month.offeredRules").isVisible());
    MonthSettings february;
    february.month = *parseMonthKey("02-2024");
    february.overtime.minimumPercent = 65;
    saveMonthSettings(desk.store(), february);
    driven->press(Qt::Key_PageDown);
    EXPECT_EQ(driven->find<QToolButton>("month.offeredRules").text().toStdString(),
              "Regras de fevereiro/2024  F9");
    driven->press(Qt::Key_F9);
    EXPECT_EQ(driven->find<QLineEdit>("month.minimumPercent").text().toStdString(), "65");
    EXPECT_FALSE(driven->find<QToolButton>("month.offeredRules").isVisible());
    EXPECT_EQ(driven->label("state"), "Alterações não gravadas");
}

TEST_F(MonthWindow, LinesNotUnderstoodAreShownUnderTheList) {
    EXPECT_FALSE(driven->find<QLabel>("month.unread").isVisible());
    desk.file("02-2024ds.rdx") = "sim\r\n0\r\n";
    driven->press(Qt::Key_PageUp);
    EXPECT_EQ(driven->label("month.unread"), "⚠ Não entendida, mantida no registro: linha 1 “sim”");
    desk.file("01-2024ds.rdx") = "sim\r\nnão\r\n";
    driven->press(Qt::Key_PageUp);
    EXPECT_THAT(driven->label("month.unread"), ::testing::HasSubstr("2 linhas não entendidas"));
}

TEST_F(MonthWindow, AllEmployeesGetTheRulesByKey) {
    desk.file("01CartaPonto") = "001 ANA\r\n002 BIA\r\n";
    desk.file("01MedHorExtr001") = "03-2024 70  50  100 100 0 0 0 2\r\n";
    command.open();
    driven->type("month.minimumPercent", "60");
    EXPECT_THAT(driven->label("month.ownRules"), ::testing::HasSubstr("1 funcionário da lista"));
    driven->press(Qt::Key_F7);
    EXPECT_EQ(desk.file("01MedHorExtr001"), "03-2024 70  50  100 100 0 0 0 2\r\n");
    desk.person.answers = {Answer::Yes};
    driven->press(Qt::Key_F7);
    EXPECT_EQ(driven->label("state"), "2 funcionários atualizados");
    EXPECT_FALSE(driven->find<QLabel>("month.ownRules").isVisible());
    EXPECT_THAT(desk.file("01MedHorExtr002"), ::testing::StartsWith("03-2024 60 "));
}

TEST_F(MonthWindow, OnlyTheMonthsCellsShowAndArrowsWalkThem) {
    EXPECT_FALSE(driven->find<QCheckBox>("month.day5").isVisible());
    EXPECT_FALSE(driven->find<QCheckBox>("month.day37").isVisible());
    driven->find<QCheckBox>("month.day6").setFocus();
    driven->press(Qt::Key_Right);
    driven->press(Qt::Key_Down);
    driven->press(Qt::Key_Space);
    EXPECT_TRUE(command.settings().isHoliday(*parseDate("09/03/2024")));
    driven->press(Qt::Key_Up);
    driven->press(Qt::Key_Up);
    EXPECT_TRUE(driven->find<QCheckBox>("month.day7").hasFocus());
    driven->press(Qt::Key_Tab);
    EXPECT_TRUE(driven->find<QTreeWidget>("month.holidays").hasFocus());
    driven->press(Qt::Key_Backtab);
    EXPECT_TRUE(driven->find<QCheckBox>("month.day7").hasFocus());
}

TEST_F(MonthWindow, AWrongNumberIsSaidBesideItAndKeepsTheWindowOpen) {
    driven->press(Qt::Key_F8);
    driven->type("month.minimumPercent", "5x");
    EXPECT_EQ(driven->label("month.minimumPercent.hint"), "⚠ Informe um número de 0 a 999.");
    driven->click("month.confirm");
    EXPECT_THAT(desk.person.takeTexts(), ::testing::ElementsAre("Dados incorretos!"));
    EXPECT_TRUE(driven->window.isVisible());
    EXPECT_TRUE(desk.files.content.empty());
    driven->type("month.minimumPercent", "60");
    EXPECT_EQ(driven->label("month.minimumPercent.hint"), "");
    driven->click("month.confirm");
    EXPECT_EQ(driven->window.result(), QDialog::Accepted);
    EXPECT_EQ(recorded().overtime.minimumPercent, 60);
    EXPECT_TRUE(loadSelectedMonth(desk.store()));
}

TEST_F(MonthWindow, ChoicesAreRecordedAndShownAgain) {
    driven->click("month.singleLevel");
    driven->click("month.decimalTotals");
    driven->click("month.differentiated");
    driven->type("month.closingDay", "21");
    driven->type("month.maximumPercent", "110");
    EXPECT_EQ(driven->label("month.modeNotice"),
              "Usar Somente 1 (um) Único Percentual de Horas Extras para 110%");
    driven->press(Qt::Key_S, Qt::ControlModifier);
    const MonthSettings settings = recorded();
    EXPECT_EQ(settings.overtime.mode, OvertimeMode::SingleLevel);
    EXPECT_EQ(settings.overtime.totalsFormat, TotalsFormat::DecimalHours);
    EXPECT_TRUE(settings.overtime.differentiatedPercent);
    EXPECT_FALSE(settings.fixedMonth);
    EXPECT_EQ(settings.closingDay, 21);

    driven->click("month.reference");  // the month after: defaults
    EXPECT_TRUE(driven->find<QRadioButton>("month.bothLevels").isChecked());
    EXPECT_TRUE(driven->find<QRadioButton>("month.fixedMonth").isChecked());
    EXPECT_FALSE(command.changed());
    driven->click("month.reference");
    driven->click("month.reference");
    EXPECT_TRUE(driven->find<QRadioButton>("month.singleLevel").isChecked());
    EXPECT_TRUE(driven->find<QRadioButton>("month.startDay").isChecked());
    EXPECT_TRUE(driven->find<QCheckBox>("month.differentiated").isChecked());
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
