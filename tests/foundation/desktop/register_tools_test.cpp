// What stands around the employee register: Turnos, the import's preview, viewer and workbook.
#include "foundation/desktop/desktop_text_editor.h"
#include "foundation/desktop/employee_import_window.h"
#include "foundation/desktop/turnos_window.h"
#include "foundation/desktop/xlsx_spreadsheet.h"
#include "foundation/employee_import.h"
#include "foundation/turnos.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;
using namespace testing;

TEST(TurnosWindow, ChangesShiftsWithTheKeyboardAlone) {
    EmployeeDesk desk;
    desk.record("01", {EmployeeDesk::employee("001", "ANA"), EmployeeDesk::employee("002", "BIA")});
    Turnos turnos(desk.at, desk.browser, desk.locks);
    TurnosWindow window(turnos);
    const WindowDriver screen(window);
    EXPECT_EQ(screen.focusName(), "turnos.list");
    screen.press(Qt::Key_Down);
    EXPECT_EQ(screen.find<QLabel>("turnos.name").text().toStdString(), "002 BIA");
    screen.press(Qt::Key_Return);
    EXPECT_EQ(screen.focusName(), "turnos.shifts");
    screen.press(Qt::Key_Down);
    screen.press(Qt::Key_Down);
    desk.person.answers = {Answer::Yes};
    screen.press(Qt::Key_Return);
    EXPECT_EQ(turnos.shown()[1].shift, "Dois");
    EXPECT_EQ(turnos.shown()[0].shift, "Unico");
    EXPECT_EQ(namelessWidgets(window), "");
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
    EXPECT_EQ(namelessWidgets(window), "");
}

TEST(TextViewer, ShowsTheReportsLetters) {
    EmployeeDesk desk;
    desk.file("01RelAtivos.txt") = "Fun\xE7\xE3o\r\n";
    TextViewer viewer(desk.files, desk.browser);
    EXPECT_FALSE(viewer.open("/data/missing.txt"));
    ASSERT_TRUE(viewer.open("/data/01RelAtivos.txt"));
    QWidget* shown = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("relatorio")) shown = window;
    ASSERT_NE(shown, nullptr);
    const auto* text = shown->findChild<QPlainTextEdit*>(QStringLiteral("relatorio.text"));
    EXPECT_EQ(toUtf8(text->toPlainText()), "Função\n");
    EXPECT_EQ(namelessWidgets(*shown), "");
    shown->close();
}

TEST(XlsxSpreadsheet, WritesAWorkbook) {
    XlsxSpreadsheet spreadsheet;
    const Table table{{"Código", "Nome"}, {{"001", "ANA"}, {"002", "JOSÉ <&>"}}};
    const std::string bytes = spreadsheet.workbookOf(table, "Funcionários");
    EXPECT_THAT(bytes, HasSubstr("xl/worksheets/sheet1.xml"));
    EXPECT_TRUE(bytes.starts_with("PK"));
    EXPECT_THROW((void)spreadsheet.workbookOf(table, "nome/inválido"), Fault);
}

}  // namespace
}  // namespace winvrx
