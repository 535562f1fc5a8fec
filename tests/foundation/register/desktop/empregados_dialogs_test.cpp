// The questions that the employee register puts in dialogs of its own: company, place and file.
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/employee_import.h"
#include "tests/support/employee_desk.h"
#include "tests/support/window_driver.h"

#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::EmployeeDesk;
using ::testing::HasSubstr;
using testing::WindowDriver;

class EmpregadosDialogsTest : public ::testing::Test {
  protected:
    EmpregadosDialogsTest() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        desk_.file("01Empresa") =
            joinedLines({encode(company("01", "PRIMEIRA")), encode(company("02", "SEGUNDA"))});
        desk_.record("01",
                     {EmployeeDesk::employee("001", "ANA"), EmployeeDesk::employee("002", "BIA"),
                      EmployeeDesk::employee("003", "CAIO")});
        screen_.emplace(window_.emplace(desk_.empregados, import_));
    }

    static Company company(const char* code, const char* name) {
        Company made = sampleCompany(*parseDate("10/01/2024"));
        made.code = code;
        made.name = name;
        return made;
    }

    /// What an operator does in the next dialog.
    template <typename Dialog>
    void inDialog(std::function<void(Dialog&)> act) {
        asked_ = false;
        QTimer::singleShot(0, &*window_, [this, act = std::move(act)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            asked_ = true;
            act(*dialog);
        });
    }

    void trigger(const char* action) { screen_->find<QAction>(action).trigger(); }

    EmployeeDesk desk_;
    EmployeeImport import_{desk_.at};
    std::optional<EmpregadosWindow> window_;
    std::optional<WindowDriver> screen_;
    bool asked_ = false;
};

TEST_F(EmpregadosDialogsTest, TransfersToTheCompanyChosen) {
    inDialog<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(toUtf8(dialog.labelText()), "Transferir ANA para a empresa:");
        EXPECT_EQ(dialog.comboBoxItems(), QStringList(QStringLiteral("02 SEGUNDA")));
        dialog.accept();
    });
    desk_.person.answers = {Answer::Yes};
    screen_->press(Qt::Key_F6);
    EXPECT_TRUE(asked_);
    EXPECT_EQ(desk_.codes("01"), "002 003 ");
    EXPECT_EQ(desk_.codes("02"), "001 ");
    EXPECT_EQ(screen_->text("empregados.name"), "BIA");
}

TEST_F(EmpregadosDialogsTest, MovesToThePlaceTypedAndRefusesOthers) {
    struct Case {
        const char* typed;
        const char* refusal;
        const char* codes;
    };
    for (const Case& c :
         {Case{"x", "O Numero da Posição Inválido!", "001 002 003 "},
          {"0",
           "O Numero da Posição não deve ser Igual ou Menor que 0 (Quantidade de Itens na Lista)!",
           "001 002 003 "},
          {"4", "O Numero da Posição não deve ser Maior do que a Quantidade de Itens na Lista!",
           "001 002 003 "},
          {"3", nullptr, "002 003 001 "}}) {
        desk_.person.shown.clear();
        inDialog<QInputDialog>([&c](QInputDialog& dialog) {
            EXPECT_EQ(toUtf8(dialog.labelText()), "Nova posição na lista (1 a 3):");
            dialog.setTextValue(toQt(c.typed));
            dialog.accept();
        });
        screen_->find<QToolButton>("empregados.move").click();
        EXPECT_TRUE(asked_) << c.typed;
        EXPECT_EQ(desk_.codes(), c.codes) << c.typed;
        ASSERT_EQ(desk_.person.shown.size(), c.refusal ? 1U : 0U) << c.typed;
        if (c.refusal) {
            EXPECT_EQ(desk_.person.shown[0].text, c.refusal);
        }
    }
    EXPECT_EQ(screen_->state(), "3 de 3") << "the employee moved stays selected";
}

TEST_F(EmpregadosDialogsTest, ExportsUnderTheNameGiven) {
    struct Case {
        const char* typed;
        const char* written;
    };
    for (const Case& c : {Case{"/out/lista.csv", "/out/lista.csv"},
                          {"/out/lista.XLSX", "/out/lista.XLSX"},
                          {"/out/lista", "/out/lista.xlsx"}}) {
        inDialog<QFileDialog>([&c](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(toQt(c.typed));
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
        trigger("empregados.export");
        EXPECT_TRUE(asked_) << c.typed;
        EXPECT_TRUE(desk_.files.exists(c.written)) << c.typed;
        EXPECT_THAT(screen_->state(), HasSubstr(c.written));
    }
    EXPECT_THAT(desk_.files.content.at("/out/lista.csv"), HasSubstr("001;ANA;"));
    EXPECT_EQ(desk_.files.content.at("/out/lista.xlsx"), "workbook");
}

TEST_F(EmpregadosDialogsTest, WithNobodySelectedTheCommandsSaySo) {
    screen_->press(Qt::Key_Insert);
    for (const Qt::Key key : {Qt::Key_F6, Qt::Key_F7}) {
        desk_.person.shown.clear();
        screen_->press(key);
        ASSERT_EQ(desk_.person.shown.size(), 1U);
        EXPECT_EQ(desk_.person.shown[0].text, "Selecione um Funcionário na Lista!");
    }
}

TEST_F(EmpregadosDialogsTest, WithOneCompanyATransferIsRefusedBeforeItsDialog) {
    desk_.file("01Empresa") = joinedLines({encode(company("01", "PRIMEIRA"))});
    desk_.empregados.load();
    screen_->press(Qt::Key_F6);
    ASSERT_EQ(desk_.person.shown.size(), 1U);
    EXPECT_EQ(desk_.person.shown[0].title, "Transferência");
    EXPECT_EQ(desk_.person.shown[0].text, "Não há outra empresa cadastrada.");
}

TEST_F(EmpregadosDialogsTest, ADialogThatIsLeftChangesNothing) {
    const auto before = desk_.files.content;
    const auto leave = [](QDialog& dialog) { dialog.reject(); };
    for (const char* command : {"empregados.transfer", "empregados.move"}) {
        inDialog<QDialog>(leave);
        screen_->find<QToolButton>(command).click();
        EXPECT_TRUE(asked_) << command;
    }
    for (const char* action : {"empregados.import", "empregados.export"}) {
        inDialog<QDialog>(leave);
        trigger(action);
        EXPECT_TRUE(asked_) << action;
    }
    EXPECT_EQ(desk_.files.content, before);
    EXPECT_TRUE(desk_.person.shown.empty());
}

}  // namespace
}  // namespace winvrx
