// What stands around the employee register: Turnos and the import's preview.
#include "foundation/register/desktop/employee_import_window.h"
#include "foundation/register/desktop/turnos_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/turnos.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using namespace testing;

TEST(TurnosWindow, ChangesShiftsWithTheKeyboardAlone) {
    EmployeeDesk desk;
    desk.record("01", {EmployeeDesk::employee("001", "ANA"), EmployeeDesk::employee("002", "BIA")});
    Turnos turnos(desk.at, desk.locks, desk.locks);
    TurnosWindow window(turnos);
    const WindowDriver screen(window);
    EXPECT_EQ(screen.focusName(), "turnos.employees");
    const auto& filter = screen.find<QComboBox>("turnos.shift");
    std::vector<std::string> filters;
    for (int item = 0; item < filter.count(); ++item)
        filters.push_back(toUtf8(filter.itemText(item)));
    EXPECT_THAT(filters, ElementsAre("Turno: Unico", "Turno: Dois", "Turno: Tres", "Todos"));
    screen.press(Qt::Key_Down);
    EXPECT_EQ(screen.find<QLabel>("turnos.name").text().toStdString(), "002 BIA");
    screen.press(Qt::Key_Return);
    EXPECT_EQ(screen.focusName(), "turnos.shifts");
    screen.press(Qt::Key_Down);
    screen.press(Qt::Key_Down);
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_Return);
    EXPECT_EQ(turnos.list().employees()[1].shift, "Dois");
    EXPECT_EQ(turnos.list().employees()[0].shift, "Unico");
    EXPECT_EQ(screen.namelessWidgets(), "");
}

TEST(TurnosWindow, AnEmptyListSaysWhatToDoNext) {
    EmployeeDesk desk;
    Turnos turnos(desk.at, desk.locks, desk.locks);
    TurnosWindow window(turnos);
    const WindowDriver screen(window);
    const auto& all = screen.find<QPushButton>("turnos.everyShift");
    EXPECT_FALSE(all.isVisible()) << "every shift is shown already";
    EXPECT_THAT(toUtf8(screen.find<QLabel>("turnos.empty").text()), HasSubstr("Registro de"));
    auto& filter = screen.find<QComboBox>("turnos.shift");
    emit filter.activated(0);
    EXPECT_TRUE(all.isVisible());
    screen.find<QPushButton>("turnos.everyShift").click();
    EXPECT_EQ(toUtf8(filter.currentText()), "Todos");
}

TEST(EmployeeImportWindow, ShowsEachRowsFinding) {
    EmployeeDesk desk;
    desk.files.content["/out/x.csv"] = "Nome;Admissão\nANA;12/03/2024\nBIA;\n";
    EmployeeImport import(desk.at);
    ASSERT_TRUE(import.open("/out/x.csv"));
    EmployeeImportWindow window(import);
    const WindowDriver screen(window);
    const auto& rows = screen.find<QTreeWidget>("importar.rows");
    EXPECT_EQ(toUtf8(rows.topLevelItem(0)->text(7)), "✓ Pronto");
    EXPECT_EQ(toUtf8(rows.topLevelItem(1)->text(7)), "✗ Falta preencher: Admissão.");
    EXPECT_THAT(screen.state(), HasSubstr("Nada foi gravado ainda."));
    auto& include = screen.find<QPushButton>("importar.include");
    EXPECT_EQ(toUtf8(include.text()), "&Incluir 1 funcionário");
    desk.person.answers = {Answer::Yes};
    include.click();
    EXPECT_EQ(window.result(), QDialog::Accepted);
    EXPECT_EQ(desk.codes(), "001 ");
    EXPECT_EQ(screen.namelessWidgets(), "");
}

}  // namespace
}  // namespace winvrx
