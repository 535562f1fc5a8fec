#include "foundation/register/desktop/empregados_window.h"

#include "foundation/register/employee_import.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace winvrx {
namespace {

using testing::EmployeeDesk;
using ::testing::HasSubstr;
using ::testing::Not;
using testing::WindowDriver;

class EmpregadosWindowTest : public ::testing::Test {
  protected:
    void open(const std::vector<Employee>& employees = {}) {
        if (!employees.empty()) desk_.file("01CartaPonto") = testing::employeeList(employees);
        screen_.emplace(window_.emplace(desk_.empregados, import_));
    }

    static Employee employee(const char* code, const char* name) {
        return testing::employee(code, name, {.shift = "UNICO"});
    }

    [[nodiscard]] int visibleRows() const {
        const auto& list = screen_->find<QTreeWidget>("empregados.list");
        int count = 0;
        for (int row = 0; row < list.topLevelItemCount(); ++row)
            if (!list.topLevelItem(row)->isHidden()) ++count;
        return count;
    }

    EmployeeDesk desk_;
    EmployeeImport import_{desk_.at};
    std::optional<EmpregadosWindow> window_;
    std::optional<WindowDriver> screen_;
};

TEST_F(EmpregadosWindowTest, IncludesWithTheKeyboardAlone) {
    open();
    EXPECT_EQ(screen_->text("empregados.code"), "001");
    EXPECT_EQ(screen_->focusName(), "empregados.name");
    screen_->typeHere("ANA CONCEIÇÃO");
    for (int field = 0; field < 6; ++field)
        screen_->press(Qt::Key_Return);
    ASSERT_EQ(screen_->focusName(), "empregados.admission") << "Enter leads into the next tab";
    screen_->typeHere("12032024");
    for (int field = 0; field < 4; ++field)
        screen_->press(Qt::Key_Enter);
    EXPECT_EQ(screen_->text("empregados.admission"), "12/03/2024");
    ASSERT_EQ(screen_->focusName(), "empregados.shift");
    screen_->typeHere("D");
    screen_->press(Qt::Key_Return);
    screen_->typeHere("5");
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(desk_.person.shown.size(), 1U) << desk_.person.shown.back().detail;
    EXPECT_EQ(desk_.person.shown[0].text, "Confirma a Inclusão na LISTA DE FUNCIONARIOS?");
    const Employee stored = decode<Employee>(desk_.file("01CartaPonto"));
    EXPECT_EQ(stored.name, "ANA CONCEIÇÃO");
    EXPECT_EQ(stored.admission, "12/03/2024");
    EXPECT_EQ(stored.shift, "Dois");
    EXPECT_EQ(stored.scale, "5x1");
    EXPECT_EQ(screen_->state(), "1 de 1");
}

TEST_F(EmpregadosWindowTest, EnterInTheLastFieldRecords) {
    open({employee("001", "ANA")});
    screen_->type("empregados.telephone", "5555");
    screen_->find("empregados.notes").setFocus();
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_Return);
    EXPECT_EQ(decode<Employee>(desk_.file("01CartaPonto")).telephone, "5555");
}

TEST_F(EmpregadosWindowTest, AnImpossibleDateIsSaidAndRefused) {
    open({employee("001", "ANA")});
    const auto before = desk_.files.content;
    screen_->type("empregados.admission", "31/02/2024");
    EXPECT_EQ(screen_->hint("empregados.admission"), "⚠ Esta data não existe no calendário.");
    screen_->find("empregados.name").setFocus();
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_F2);
    EXPECT_EQ(desk_.person.shown.back().text, "Data de Admissão Incorreta!!");
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_EQ(screen_->text("empregados.admission"), "31/02/2024");
    EXPECT_EQ(screen_->focusName(), "empregados.admission");
}

TEST_F(EmpregadosWindowTest, TheRefusalLeadsToWhatIsMissing) {
    open();
    screen_->typeHere("ANA");
    screen_->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk_.person.shown.back().text, "Dados Incompletos!!");
    EXPECT_EQ(screen_->focusName(), "empregados.admission");
    screen_->typeHere("12/03/2024");
    screen_->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(screen_->focusName(), "empregados.shift");
    EXPECT_FALSE(desk_.files.exists("/data/01CartaPonto"));
}

TEST_F(EmpregadosWindowTest, AScaleThatBarsTheShiftIsSaid) {
    open({employee("001", "ANA")});
    auto& scale = screen_->find<QComboBox>("empregados.scale");
    scale.setCurrentIndex(2);
    EXPECT_EQ(toUtf8(scale.currentText()), "12x36 -> Turnos 1 e 3");
    EXPECT_EQ(screen_->hint("empregados.scale"), "⚠ 12x36 somente nos turnos 1 e 3.");
    screen_->find<QComboBox>("empregados.shift").setCurrentIndex(3);
    EXPECT_EQ(screen_->hint("empregados.scale"), "");
}

TEST_F(EmpregadosWindowTest, ShowingARecordChangesNothing) {
    Employee odd = employee("002", "BIA");
    odd.shift = "Noite";
    odd.restDay = "xyz";
    odd.notes = "Sala\u00a012";
    open({employee("001", "ANA"), odd});
    EXPECT_EQ(screen_->find<QComboBox>("empregados.shift").currentText().toStdString(),
              "Unico  -> Comercial  ");
    EXPECT_EQ(screen_->state(), "1 de 2");
    screen_->press(Qt::Key_PageDown);
    EXPECT_EQ(screen_->state(), "2 de 2");
    EXPECT_EQ(screen_->find<QComboBox>("empregados.shift").currentIndex(), -1);
    screen_->type("empregados.telephone", "5555");
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_F2);
    EXPECT_EQ(decode<Employee>(splitLines(desk_.file("01CartaPonto"))[1]).notes, odd.notes);
}

TEST_F(EmpregadosWindowTest, SearchLooksIntoNameCodeFunctionAndCpf) {
    Employee ana = employee("001", "ANA CONCEIÇÃO");
    ana.function = "PADEIRA";
    Employee bia = employee("012", "BIA");
    bia.taxId = "529.982.247-25";
    open({ana, bia, employee("003", "CARLA")});
    struct Case {
        const char* typed;
        int rows;
    };
    for (const Case& c : {Case{"conceicao", 1},
                          {"012", 1},
                          {"padei", 1},
                          {"529.982", 1},
                          {"52998224725", 1},
                          {"ivo", 0},
                          {"an padeira", 1},
                          {"a", 3},
                          {"zzz", 0},
                          {"", 3}}) {
        screen_->find<QLineEdit>("empregados.search").setText(QLatin1String(c.typed));
        EXPECT_EQ(visibleRows(), c.rows) << c.typed;
    }
    screen_->find("empregados.list").setFocus();
    screen_->typeHere("bia");
    EXPECT_EQ(screen_->text("empregados.search"), "bia") << "typing in the list searches";
    screen_->press(Qt::Key_Down);
    EXPECT_EQ(screen_->text("empregados.name"), "BIA");
}

TEST_F(EmpregadosWindowTest, AFieldIsCompletedWhenItsKeyRecords) {
    open({employee("001", "ANA")});
    struct Case {
        int tab;
        const char* field;
        const char* typed;
        std::string Employee::*member;
        const char* recorded;
    };
    for (const Case& c :
         {Case{1, "empregados.admission", "01042024", &Employee::admission, "01/04/2024"},
          {2, "empregados.taxId", "52998224725", &Employee::taxId, "529.982.247-25"},
          {3, "empregados.postalCode", "12080700", &Employee::postalCode, "12080-700"}}) {
        desk_.person.answers = {Answer::Yes};
        screen_->find<QTabWidget>("empregados.tabs").setCurrentIndex(c.tab);
        screen_->type(c.field, c.typed);
        screen_->press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(decode<Employee>(desk_.file("01CartaPonto")).*c.member, c.recorded) << c.field;
    }
}

TEST_F(EmpregadosWindowTest, LongFunctionsLeaveTheNameItsRoom) {
    Employee ana = employee("001", "ANA CAROLINA DE ALBUQUERQUE");
    ana.function = "AUXILIAR DE ESCRITÓR";
    open({ana});
    window_->resize(1240, 690);
    QApplication::processEvents();
    auto& list = screen_->find<QTreeWidget>("empregados.list");
    EXPECT_GE(list.columnWidth(1), list.fontMetrics().horizontalAdvance(toQt(ana.name)));
    EXPECT_EQ(list.topLevelItem(0)->toolTip(2), toQt(ana.function)) << "what is cut can be read";
}

TEST_F(EmpregadosWindowTest, NotesTakeNoMoreThanTheirColumn) {
    open({employee("001", "ANA")});
    auto& notes = screen_->find<QPlainTextEdit>("empregados.notes");
    notes.setPlainText(toQt(std::string(239, 'x')));
    notes.moveCursor(QTextCursor::Start);
    screen_->find("empregados.notes").setFocus();
    screen_->typeHere("ABC");
    EXPECT_EQ(toUtf8(notes.toPlainText()), "A" + std::string(239, 'x'));
    notes.setPlainText(QStringLiteral("duas\nlinhas"));
    EXPECT_THAT(screen_->hint("empregados.notes"), HasSubstr("não pode ser gravado"));
}

TEST_F(EmpregadosWindowTest, AnEmptyListSaysWhatToDoNext) {
    open();
    EXPECT_THAT(screen_->find<QLabel>("empregados.empty").text().toStdString(),
                HasSubstr("Nenhum funcionário ainda"));
    EXPECT_TRUE(screen_->find("empregados.first").isVisible());
    EXPECT_FALSE(screen_->find("empregados.delete").isEnabled());
    EXPECT_EQ(screen_->namelessWidgets(), "");
}

TEST_F(EmpregadosWindowTest, DeletesTheSelectedEmployee) {
    open({employee("001", "ANA"), employee("002", "BIA")});
    desk_.file("01PadrHor001.pdx") = "08:00";
    screen_->find("empregados.list").setFocus();
    screen_->press(Qt::Key_Delete);
    EXPECT_EQ(screen_->state(), "1 de 2") << "No leaves everything";
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_Delete);
    EXPECT_EQ(screen_->state(), "1 de 1");
    EXPECT_EQ(screen_->text("empregados.name"), "BIA");
    EXPECT_FALSE(desk_.files.exists("/data/01PadrHor001.pdx"));
}

TEST_F(EmpregadosWindowTest, TheStatusComesFromTheLeaveFile) {
    desk_.file("01configAf002") = "**** 10/02/2024\r\n";
    open({employee("001", "ANA"), employee("002", "BIA")});
    EXPECT_EQ(screen_->find<QLabel>("subtitle").text().toStdString(), "1 ativo, 1 inativo");
    EXPECT_EQ(screen_->text("empregados.status"), "Ativo");
    screen_->press(Qt::Key_PageDown);
    EXPECT_EQ(screen_->text("empregados.status"), "Inativo desde 10/02/2024");
    EXPECT_THAT(screen_->state(), Not(HasSubstr("Alterações")));
}

TEST_F(EmpregadosWindowTest, AmountsAndNumbersGetTheirForm) {
    Employee ana = employee("001", "ANA");
    ana.salary = "1850";
    open({ana});
    EXPECT_EQ(screen_->text("empregados.salary"), "R$ 1.850,00");
    EXPECT_EQ(screen_->state(), "1 de 1") << "another form is no edit";
    screen_->type("empregados.salary", "2000,5");
    screen_->type("empregados.taxId", "52998224725");
    screen_->type("empregados.postalCode", "12080700");
    screen_->find("empregados.name").setFocus();
    EXPECT_EQ(screen_->text("empregados.salary"), "R$ 2.000,50");
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_F2);
    const Employee stored = decode<Employee>(desk_.file("01CartaPonto"));
    EXPECT_EQ(stored.salary, "2.000,50");
    EXPECT_EQ(stored.taxId, "529.982.247-25");
    EXPECT_EQ(stored.postalCode, "12080-700");
}

TEST_F(EmpregadosWindowTest, AKeyOpensTheMenuOfTheList) {
    open({employee("001", "ANA")});
    std::string opened;
    QTimer::singleShot(0, &*window_, [&] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            opened = popup->objectName().toStdString();
            popup->close();
        }
    });
    screen_->press(Qt::Key_F9);
    EXPECT_EQ(opened, "empregados.menu");
}

TEST_F(EmpregadosWindowTest, SortingKeepsTheSelectionAndAsksAboutTypedText) {
    open({employee("001", "ZULMIRA"), employee("002", "ANA")});
    screen_->type("empregados.telephone", "5555");
    screen_->find<QAction>("empregados.sortByName").trigger();
    EXPECT_EQ(desk_.codes(), "001 002 ") << "the typed text is asked about first";
    EXPECT_EQ(screen_->text("empregados.telephone"), "5555");
    desk_.person.answers = {Answer::Yes, Answer::Yes};
    screen_->find<QAction>("empregados.sortByName").trigger();
    EXPECT_EQ(desk_.codes(), "002 001 ");
    EXPECT_EQ(screen_->text("empregados.name"), "ZULMIRA");
    EXPECT_EQ(screen_->state(), "2 de 2");
}

TEST_F(EmpregadosWindowTest, TheCodeOfARecordedEmployeeIsFixed) {
    open({employee("001", "ANA")});
    EXPECT_TRUE(screen_->find<QLineEdit>("empregados.code").isReadOnly());
    screen_->press(Qt::Key_Insert);
    screen_->type("empregados.code", "1234");
    EXPECT_EQ(screen_->text("empregados.code"), "123");
    screen_->type("empregados.code", "7");
    screen_->find("empregados.name").setFocus();
    EXPECT_EQ(screen_->text("empregados.code"), "007");
}

TEST_F(EmpregadosWindowTest, AfterAFailureTheRowsShowWhatIsOnDisk) {
    open({employee("001", "ANA"), employee("002", "BIA")});
    desk_.file("01CartaPonto") = encode(employee("002", "BIA")) + "\r\n";
    desk_.person.answers = {Answer::Yes};
    screen_->find("empregados.list").setFocus();
    screen_->press(Qt::Key_Delete);
    EXPECT_EQ(screen_->state(), "1 de 1");
    EXPECT_EQ(screen_->text("empregados.name"), "BIA");
    screen_->type("empregados.telephone", "5555");
    desk_.file("01CartaPonto") = encode(employee("003", "CARLA")) + "\r\n";
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_F2);
    EXPECT_EQ(screen_->text("empregados.telephone"), "5555") << "what is typed is not lost";
    EXPECT_EQ(screen_->text("empregados.name"), "BIA") << "nor shown over another employee";
}

TEST_F(EmpregadosWindowTest, CountsAgreeWithTheList) {
    Employee gone = employee("003", "CARLA");
    gone.status = "Excluido";
    open({employee("001", "ANA"), gone});
    EXPECT_EQ(screen_->find<QLabel>("subtitle").text().toStdString(),
              "1 ativo, 0 inativos, 1 excluído");
}

TEST_F(EmpregadosWindowTest, ALineThatIsNotUnderstoodIsShownAndKept) {
    const std::string damaged = "\x81 rasgada\r\n\r\n" + encode(employee("002", "BIA")) + "\r\n";
    desk_.file("01CartaPonto") = damaged;
    open();
    const auto& list = screen_->find<QTreeWidget>("empregados.list");
    EXPECT_EQ(list.topLevelItem(0)->text(1).toStdString(), "Linha não entendida: · rasgada");
    EXPECT_EQ(list.topLevelItem(1)->text(1).toStdString(), "Linha em branco");
    EXPECT_EQ(list.topLevelItem(2)->text(1).toStdString(), "BIA");
    EXPECT_EQ(screen_->find<QLabel>("subtitle").text().toStdString(),
              "1 ativo, 0 inativos, 2 linhas não entendidas");
    EXPECT_THAT(screen_->state(), HasSubstr("Linha não entendida"));
    EXPECT_FALSE(screen_->find("empregados.change").isEnabled());
    screen_->press(Qt::Key_PageDown);
    screen_->press(Qt::Key_PageDown);
    EXPECT_TRUE(screen_->find("empregados.change").isEnabled());
    screen_->type("empregados.name", "BIA MARIA");
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk_.file("01CartaPonto").substr(0, 15), damaged.substr(0, 15));
    EXPECT_THAT(desk_.file("01CartaPonto"), HasSubstr("002 BIA MARIA"));
}

}  // namespace
}  // namespace winvrx
