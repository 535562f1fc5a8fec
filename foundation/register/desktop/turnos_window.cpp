#include "foundation/register/desktop/turnos_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/register/empregados.h"
#include "foundation/register/turnos.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

QString shiftText(const Employee& employee) {
    const auto shift = parseShift(employee.shift);
    return shift ? toQt(codeOf(*shift)) : toQt(employee.shift);
}

QString termsOf(const Employee& employee) {
    return QStringLiteral("Turno %1 · Escala %2")
        .arg(shiftText(employee), toQt(codeOf(employee.scaleOr())));
}

}  // namespace

TurnosWindow::TurnosWindow(Turnos& turnos, QWidget* parent)
    : ScreenWindow(QStringLiteral("turnos"), QStringLiteral("Turnos"), parent), turnos_(turnos) {
    setBody({{buildEmployees(), 3}, {buildShifts(), 2}});
    buildCommands();
    turnos_.load();
    if (!turnos_.companyTitle().empty()) setChips({toQt(turnos_.companyTitle())});
    employees_->refresh();
    showSelected();
    employees_->focusList();
}

QWidget* TurnosWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        turnos_.list(), {.screen = QStringLiteral("turnos"), .narrows = true, .details = termsOf},
        this);
    connect(employees_, &EmployeePicker::narrowed, this, &TurnosWindow::showSelected);
    connect(employees_, &EmployeePicker::employeeChosen, this, &TurnosWindow::showSelected);
    connect(employees_, &EmployeePicker::opened, this,
            [this] { shifts_->setFocus(Qt::TabFocusReason); });
    return employees_;
}

QWidget* TurnosWindow::buildShifts() {
    const auto [part, column] = look::part(this);
    name_ = look::paragraph(QStringLiteral("turnos.name"), look::TextSize::Heading, part);
    column->addWidget(name_);
    details_ = look::paragraph(QStringLiteral("turnos.details"), look::TextSize::Hint, part);
    column->addWidget(details_);
    column->addSpacing(look::kGap);
    column->addWidget(look::heading(toQt(kShiftListTitle), part));
    shifts_ = new QListWidget(part);
    look::name(*shifts_, QStringLiteral("turnos.shifts"), toQt(kShiftListTitle));
    shifts_->setFont(look::fixedFont());
    for (const Shift shift : kShifts)
        shifts_->addItem(toQt(listTextOf(shift)));
    shifts_->setFixedHeight(shifts_->sizeHintForRow(0) * (shifts_->count() + 1));
    column->addWidget(shifts_);
    column->addWidget(
        look::label(QStringLiteral("A escala 12x36 é permitida somente nos turnos 1 e 3."),
                    look::TextSize::Hint, part));
    column->addStretch();
    return part;
}

void TurnosWindow::buildCommands() {
    addCommand({"edit", QStringLiteral("Alterar Turno"), Qt::Key_F2, "turnos.change",
                [this] { changeShift(); }});
    addDefaultButton({"save", QStringLiteral("&Gravar"), QKeySequence::Save, "turnos.save",
                      [this] { changeShift(); }});
    addLeavingButton("turnos.close");
}

void TurnosWindow::showSelected() {
    const auto position = employees_->selected();
    if (!position) {
        name_->setText(QStringLiteral("Nenhum funcionário selecionado"));
        details_->clear();
        shifts_->setCurrentRow(-1);
        setState(QString());
        return;
    }
    const auto& employees = turnos_.list().employees();
    const Employee& employee = employees.at(*position);
    name_->setText(toQt(employee.code + " " + employee.name));
    details_->setText(termsOf(employee) + QStringLiteral(" · ") + toQt(employee.function));
    const auto shift = parseShift(employee.shift);
    shifts_->setCurrentRow(shift ? static_cast<int>(*shift) : -1);
    setState(QStringLiteral("%1 de %2").arg(*position + 1).arg(employees.size()));
}

void TurnosWindow::changeShift() {
    const auto place = employees_->selected();
    if (!place) return turnos_.askForEmployee();
    const int row = shifts_->currentRow();
    const auto shift =
        row < 0 ? std::nullopt : std::optional(kShifts.at(static_cast<std::size_t>(row)));
    if (!turnos_.change(turnos_.list().employees().at(*place), shift)) return;
    employees_->refresh();
    // With a filter the employee may have left the list; then the one after him is next.
    const std::size_t count = turnos_.list().employees().size();
    if (count > 0) employees_->select(std::min(*place, count - 1));
    employees_->selectShown();
    showSelected();
    employees_->focusList();
}

}  // namespace winvrx
