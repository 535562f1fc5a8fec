#include "foundation/register/desktop/turnos_window.h"

#include "foundation/register/empregados.h"
#include "foundation/register/turnos.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/register_list.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

QString shiftText(const Employee& employee) {
    const auto shift = parseShift(employee.shift);
    return shift ? toQt(codeOf(*shift)) : toQt(employee.shift);
}

std::vector<RegisterList::Row> rowsOf(const std::vector<Employee>& employees) {
    std::vector<RegisterList::Row> rows;
    for (const Employee& one : employees) {
        const QStringList cells = {toQt(one.code), toQt(one.name), shiftText(one),
                                   toQt(codeOf(one.scaleOr()))};
        rows.push_back({cells, toQt(searchedText(one))});
    }
    return rows;
}

}  // namespace

TurnosWindow::TurnosWindow(Turnos& turnos, QWidget* parent)
    : ScreenWindow(QStringLiteral("turnos"), QStringLiteral("Turnos"), parent), turnos_(turnos) {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    row->addWidget(buildLists(), 3);
    row->addWidget(buildShifts(), 2);
    setBody(body);
    buildCommands();
    turnos_.load();
    if (!turnos_.companyTitle().empty()) setChips({toQt(turnos_.companyTitle())});
    showList();
    list_->takeFocus();
}

QWidget* TurnosWindow::buildLists() {
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    QComboBox* filter = buildFilter(part);
    column->addWidget(filter);
    list_ = new RegisterList(QStringLiteral("turnos"), toQt(kEmployeeListTitle),
                             QStringLiteral("Pesquisar nome, código, função ou CPF…"),
                             {QStringLiteral("Código"), QStringLiteral("Nome"),
                              QStringLiteral("Turno"), QStringLiteral("Escala")},
                             part);
    column->addWidget(list_, 1);
    connect(list_, &RegisterList::chosen, this, [this](std::size_t position) { select(position); });
    connect(list_, &RegisterList::firstRequested, filter,
            [filter] { filter->setCurrentIndex(filter->count() - 1); });
    connect(list_, &RegisterList::entered, this, [this] { shifts_->setFocus(Qt::TabFocusReason); });
    return part;
}

QComboBox* TurnosWindow::buildFilter(QWidget* parent) {
    auto* filter = new QComboBox(parent);
    look::name(*filter, QStringLiteral("turnos.filter"), QStringLiteral("Turno mostrado"));
    for (const ShiftFilter one : kMenuShiftFilters)
        filter->addItem(QStringLiteral("Turno: ") + toQt(codeOf(one)));
    const auto* place =
        std::find(kMenuShiftFilters.begin(), kMenuShiftFilters.end(), turnos_.filter());
    filter->setCurrentIndex(static_cast<int>(place - kMenuShiftFilters.begin()));
    connect(filter, &QComboBox::currentIndexChanged, this, [this](int index) {
        turnos_.setFilter(kMenuShiftFilters[static_cast<std::size_t>(index)]);
        showList();
    });
    return filter;
}

QWidget* TurnosWindow::buildShifts() {
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    name_ = look::heading(QString(), part);
    name_->setObjectName(QStringLiteral("turnos.name"));
    name_->setWordWrap(true);
    column->addWidget(name_);
    details_ = look::label(QString(), look::TextSize::Hint, part);
    details_->setObjectName(QStringLiteral("turnos.details"));
    details_->setWordWrap(true);
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
    QToolButton* change = addCommand(QStringLiteral("edit"), QStringLiteral("Alterar Turno"),
                                     Qt::Key_F2, QStringLiteral("turnos.change"));
    connect(change, &QToolButton::clicked, this, &TurnosWindow::changeShift);
    connect(this, &ScreenWindow::helpRequested, this, [this] { turnos_.help(); });
    QPushButton* save = addClosingButton(QStringLiteral("&Gravar"), QStringLiteral("turnos.save"));
    save->setIcon(look::icon(QStringLiteral("save")));
    save->setDefault(true);
    auto* saveKey = new QShortcut(QKeySequence::Save, this);
    connect(saveKey, &QShortcut::activated, this, &TurnosWindow::changeShift);
    connect(save, &QPushButton::clicked, this, &TurnosWindow::changeShift);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("turnos.close"));
    connect(close, &QPushButton::clicked, this, &TurnosWindow::reject);
}

void TurnosWindow::showList() {
    shown_ = turnos_.shown();
    if (turnos_.filter() == ShiftFilter::Todos)
        list_->setEmptyTexts(QStringLiteral("Nenhum funcionário ainda. Inclua o primeiro no "
                                            "Registro de Funcionários."),
                             QString());
    else
        list_->setEmptyTexts(QStringLiteral("Nenhum funcionário neste turno."),
                             QStringLiteral("Mostrar todos os turnos"));
    list_->setRows(rowsOf(shown_));
    select(shown_.empty() ? std::nullopt : std::optional<std::size_t>(0));
    list_->mark(current_);
}

void TurnosWindow::select(std::optional<std::size_t> position) {
    current_ = position;
    if (!position) {
        name_->setText(QStringLiteral("Nenhum funcionário selecionado"));
        details_->clear();
        shifts_->setCurrentRow(-1);
        setState(QString());
        return;
    }
    const Employee& employee = shown_.at(*position);
    name_->setText(toQt(employee.code + " " + employee.name));
    details_->setText(
        QStringLiteral("Turno %1 · Escala %2 · %3")
            .arg(shiftText(employee), toQt(codeOf(employee.scaleOr())), toQt(employee.function)));
    const auto shift = parseShift(employee.shift);
    shifts_->setCurrentRow(shift ? static_cast<int>(*shift) : -1);
    setState(QStringLiteral("%1 de %2").arg(*position + 1).arg(shown_.size()));
}

void TurnosWindow::changeShift() {
    if (!current_) return turnos_.askForEmployee();
    const int row = shifts_->currentRow();
    const auto shift =
        row < 0 ? std::nullopt : std::optional(kShifts.at(static_cast<std::size_t>(row)));
    const std::size_t place = *current_;
    if (!turnos_.change(shown_.at(place), shift)) return;
    showList();
    // With a filter the employee may have left the list; then the one after him is next.
    if (!shown_.empty()) select(std::min(place, shown_.size() - 1));
    list_->mark(current_);
    list_->takeFocus();
}

}  // namespace winvrx
