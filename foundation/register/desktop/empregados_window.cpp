#include "foundation/register/desktop/empregados_window.h"

#include "foundation/register/desktop/employee_form.h"
#include "foundation/register/empregados.h"
#include "foundation/values/desktop/qt_text.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>

namespace winvrx {

namespace {

/// "12 ativos", "1 ativo".
QString counted(std::ptrdiff_t count, const QString& what) {
    return QStringLiteral("%1 %2%3").arg(count).arg(what,
                                                    count == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

EmpregadosWindow::EmpregadosWindow(Empregados& empregados, EmployeeImport& import, QWidget* parent)
    : RegisterWindow({.screen = QStringLiteral("empregados"),
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
    form_ = new EmployeeForm(this);
    connect(form_, &EmployeeForm::edited, this, &EmpregadosWindow::showState);
    connect(this, &ScreenWindow::helpRequested, this, [this] { empregados_.help(); });
    addListCommands();
    assemble(form_, nullptr, ListRoom::Wide);
    empregados_.tellWaiting([this](std::string_view text) {
        setState(toQt(text));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    empregados_.load();
    if (!empregados_.companyTitle().empty()) setChips({toQt(empregados_.companyTitle())});
    refresh(0);
    focusForm();
}

std::vector<RegisterList::Row> EmpregadosWindow::rows() const {
    std::vector<RegisterList::Row> rows;
    for (const EmployeeLine& line : empregados_.lines()) {
        if (!line.code()) {
            rows.push_back(RegisterList::unreadRow(line.bytes));
            continue;
        }
        const Employee& employee = line.employee;
        const QStringList cells = {toQt(employee.code), toQt(employee.name),
                                   toQt(employee.function), statusOf(line)};
        rows.push_back({cells, toQt(searchedText(employee))});
    }
    return rows;
}

QString EmpregadosWindow::statusOf(const EmployeeLine& line) const {
    if (empregados_.inactiveSince(line)) return QStringLiteral("Inativo");
    return line.employee.status == kDeletedStatus ? toQt(kDeletedStatus) : QStringLiteral("Ativo");
}

void EmpregadosWindow::showRecord(std::optional<std::size_t> position) {
    Employee employee;
    QString status;
    const EmployeeLine* line = position ? &empregados_.lines().at(*position) : nullptr;
    if (line && line->code()) {
        employee = line->employee;
        status = statusOf(*line);
        if (const auto since = empregados_.inactiveSince(*line))
            status += QStringLiteral(" desde ") + toQt(dateText(*since));
    } else if (const auto code = empregados_.proposedCode(); !line && code) {
        employee.code = code->text();
    }
    form_->showEmployee(employee, !position, status);
    showCounts();
}

void EmpregadosWindow::showCounts() {
    const auto& lines = empregados_.lines();
    const auto inactive = std::count_if(
        lines.begin(), lines.end(),
        [this](const EmployeeLine& line) { return empregados_.inactiveSince(line).has_value(); });
    const auto unread = std::count_if(lines.begin(), lines.end(),
                                      [](const EmployeeLine& line) { return !line.code(); });
    const auto active = static_cast<std::ptrdiff_t>(lines.size()) - inactive - unread;
    if (lines.empty())
        setSubtitle(QStringLiteral("nenhum funcionário"));
    else
        setSubtitle(counted(active, QStringLiteral("ativo")) + QStringLiteral(", ") +
                    counted(inactive, QStringLiteral("inativo")) +
                    RegisterList::unreadCount(unread));
}

bool EmpregadosWindow::isDirty() const {
    return form_->isDirty();
}

void EmpregadosWindow::focusForm() {
    form_->focusFirst();
}

QString EmpregadosWindow::newRecordTitle() const {
    return QStringLiteral("Novo funcionário · * preenchimento obrigatório");
}

bool EmpregadosWindow::includeTyped() {
    if (empregados_.include(form_->typed())) return true;
    form_->focusMissing();
    return false;
}

bool EmpregadosWindow::changeTyped(std::size_t position) {
    if (empregados_.change(position, form_->typed())) return true;
    form_->focusMissing();
    return false;
}

bool EmpregadosWindow::removeRecord(std::size_t position) {
    return empregados_.remove(position);
}

bool EmpregadosWindow::mayDiscardTyped() {
    return empregados_.mayDiscardTyped();
}

void EmpregadosWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && form_->moveToNextTab()) return;
    RegisterWindow::keyPressEvent(event);
}

}  // namespace winvrx
