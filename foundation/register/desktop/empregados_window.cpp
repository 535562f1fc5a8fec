#include "foundation/register/desktop/empregados_window.h"

#include "foundation/register/desktop/employee_form.h"
#include "foundation/register/empregados.h"
#include "foundation/values/desktop/qt_text.h"

#include <QCoreApplication>

namespace winvrx {

EmpregadosWindow::EmpregadosWindow(Empregados& empregados, EmployeeImport& import, QWidget* parent)
    : RegisterWindow(empregados,
                     {.screen = QStringLiteral("empregados"),
                      .title = QStringLiteral("Registro de Funcionários"),
                      .listTitle = toQt(kEmployeeListTitle),
                      .searchHint = QStringLiteral("Pesquisar nome, código, função ou CPF…"),
                      .emptyList = QStringLiteral("Nenhum funcionário ainda. Preencha o cadastro "
                                                  "ao lado e grave."),
                      .emptyAction = QStringLiteral("Incluir o primeiro"),
                      .headings = {QStringLiteral("Código"), QStringLiteral("Nome"),
                                   QStringLiteral("Função"), QStringLiteral("Situação")}},
                     parent),
      empregados_(empregados),
      import_(import) {
    addListCommands();
    assemble(new EmployeeForm(empregados, this), nullptr, ListRoom::Wide);
    empregados_.tellWaiting([this](std::string_view text) {
        setState(toQt(text));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    openAt(0);
    if (!empregados_.companyTitle().empty()) setChips({toQt(empregados_.companyTitle())});
}

}  // namespace winvrx
