#include "personnel/leaves/desktop/afastamento_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/register/employee_queries.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/leaves/absence_report.h"
#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/desktop/leave_form_panel.h"
#include "personnel/leaves/desktop/year_strip.h"
#include "timecard/month/desktop/month_entry.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

#include <array>

namespace winvrx {

namespace {

const QString kNoMonth =
    QStringLiteral("Escolha primeiro o mês de trabalho em \"Mês de Trabalho\" (F7).");

/// Over the columns of a leave's line, in their order.
constexpr std::array<std::string_view, kLeaveFields.size()> kHeadings = {
    "Tipo",         "Primeiro dia",    "Último dia",    "Duração",
    "Aviso em",     "Início do aviso", "Rescisão",      "Tipo de aviso",
    "Fim do aviso", "Último trabalho", "Pagamento até", "Homologação"};

/// The line of a leave, column by column; its tip is the line as it is.
QTreeWidgetItem* rowOf(const Leave& leave, const std::string& bytes) {
    auto* row = new QTreeWidgetItem;
    for (std::size_t at = 0; at < kLeaveFields.size(); ++at)
        row->setText(static_cast<int>(at), toQt(leave.*kLeaveFields[at].member));
    if (!leave.period()) row->setText(0, QStringLiteral("⚠ ") + row->text(0));
    for (int column = 0; column < row->columnCount(); ++column)
        row->setToolTip(column, toQt(readableText(bytes)));
    return row;
}

}  // namespace

AfastamentoWindow::AfastamentoWindow(Afastamento& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("afastamento"), QStringLiteral("Afastamento"), parent),
      command_(command) {
    setBody({{buildEmployees()}, {buildLeaves(), 1}}, look::kMargin);
    buildCommands();
    refresh();
    employees_->focusList();
}

QWidget* AfastamentoWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        command_.list(),
        {.screen = QStringLiteral("leaves"),
         .subsetName = QStringLiteral("withLeaves"),
         .subsetCaption = QStringLiteral("Todos com Registro de Afastamento (%1)")},
        this);
    employees_->setFixedWidth(look::kSideWidth);
    connect(employees_, &EmployeePicker::subsetChosen, this, [this](bool only) {
        (void)command_.showOnlyWithLeaves(only);
        refresh();
    });
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        (void)command_.filterBy(shift);
        refresh();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this, &AfastamentoWindow::chooseEmployee);
    connect(employees_, &EmployeePicker::opened, this, [this] {
        if (command_.file().leaves.empty())
            form_->focus(LeaveInput::Type);
        else
            leaves_->setFocus(Qt::TabFocusReason);
    });
    return employees_;
}

QWidget* AfastamentoWindow::buildLeaves() {
    const auto [part, column] = look::part(this);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->setSpacing(look::kMargin);
    row->addLayout(buildList(part), 1);
    year_ = new YearStrip(part);
    row->addWidget(year_);
    column->addLayout(row, 1);
    form_ = new LeaveFormPanel(command_, part);
    connect(form_, &LeaveFormPanel::edited, this, &AfastamentoWindow::showState);
    column->addWidget(form_);
    return part;
}

QLayout* AfastamentoWindow::buildList(QWidget* part) {
    auto* column = new QVBoxLayout;
    look::layOutPart(*column);
    name_ = look::line(QStringLiteral("leaves.name"), look::TextSize::Heading, part);
    column->addWidget(name_);
    contradiction_ = look::line(QStringLiteral("leaves.contradiction"), look::TextSize::Hint, part);
    look::setTint(*contradiction_, look::Tint::Warning);
    column->addWidget(contradiction_);
    leaves_ = look::table(QStringLiteral("leaves.list"), QStringLiteral("Afastamentos"),
                          toQtList(kHeadings), part);
    connect(leaves_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) chooseLeave(leaves_->indexOfTopLevelItem(item));
    });
    connect(leaves_, &QTreeWidget::itemDoubleClicked, this,
            [this] { form_->focus(LeaveInput::Type); });
    onEnter(*leaves_, [this] { form_->focus(LeaveInput::Type); });
    column->addWidget(leaves_, 1);
    return column;
}

void AfastamentoWindow::buildCommands() {
    addCommand({"add", QStringLiteral("Adicionar Afastamento"), Qt::Key_Insert, "leaves.add",
                [this] { beginOrAdd(); }});
    addCommand({"edit", QStringLiteral("Alterar Afastamento"), Qt::Key_F2, "leaves.change",
                [this] { change(); }});
    addCommand({"delete", QStringLiteral("Excluir Afastamento"), Qt::Key_Delete, "leaves.remove",
                [this] { showOutcome(command_.remove()); }, leaves_});
    activation_ = addCommand({"employees", {}, Qt::Key_F9, "leaves.activation", [this] {
                                  finishTyping();
                                  showOutcome(command_.changeActivation());
                              }});
    addCommand({"month", QStringLiteral("Mês de Trabalho"), Qt::Key_F7, "leaves.month", [this] {
                    if (command_.confirmLeaving()) emit monthRequested();
                }});
    addCommand({"print", QStringLiteral("Ausências"), QKeySequence::Print, "leaves.absences",
                [this] { emit absencesRequested(false); }})
        ->setToolTip(QStringLiteral("Ausências do mês de toda a empresa: Ctrl+P numa folha, Ctrl+T "
                                    "em texto"));
    connect(new QShortcut(QKeySequence(QStringLiteral("Ctrl+T")), this), &QShortcut::activated,
            this, [this] { emit absencesRequested(true); });
    addDefaultButton({"save", QStringLiteral("&Gravar"), QKeySequence::Save, "leaves.save",
                      [this] { command_.chosen() ? change() : beginOrAdd(); }});
    addClosingButton({"payroll", QStringLiteral("Cálculo da Rescisão"), Qt::CTRL | Qt::Key_R,
                      "leaves.termination", [this] { emit terminationRequested(); }});
    addLeavingButton("leaves.close");
    addPageKeys([this](int by) { employees_->step(by); });
}

void AfastamentoWindow::refresh() {
    if (!command_.selected() && !command_.list().employees().empty()) (void)command_.select(0);
    if (command_.month())
        setChips({toQt(command_.companyTitle()), toQt(command_.periodCaption()),
                  toQt(monthTitle(*command_.month()))});
    employees_->setHint(command_.month() ? QString() : kNoMonth);
    employees_->refresh();
    showEmployee();
}

void AfastamentoWindow::chooseEmployee(std::size_t position) {
    finishTyping();
    if (command_.list().selectedPosition() != position) (void)command_.select(position);
    showEmployee();
}

void AfastamentoWindow::showEmployee() {
    employees_->select(command_.list().selectedPosition());
    const Employee* one = command_.selected();
    name_->setText(one ? toQt(one->code + " " + one->name)
                       : QStringLiteral("Nenhum funcionário selecionado"));
    look::showWarning(*contradiction_, toQt(command_.contradiction()));
    activation_->setText(toQt(command_.activationCaption()) + QStringLiteral("  F9"));
    activation_->setToolTip(activation_->text());
    activation_->setAccessibleName(toQt(command_.activationCaption()));
    showLeaves();
    form_->refresh();
    showState();
}

void AfastamentoWindow::showLeaves() {
    const QSignalBlocker quiet(leaves_);
    leaves_->clear();
    for (const auto& line : command_.file().leaves)
        leaves_->addTopLevelItem(rowOf(line.record, line.bytes));
    const auto chosen = command_.chosen();
    leaves_->setCurrentItem(chosen ? leaves_->topLevelItem(static_cast<int>(*chosen)) : nullptr);
    const auto period = command_.form().period();
    const auto of = [](Date date) { return std::optional(date.year()); };
    year_->show(command_.calendar(), chosen && period   ? of(period->first)
                                     : command_.month() ? std::optional(command_.month()->year())
                                                        : std::nullopt);
}

void AfastamentoWindow::chooseLeave(int row) {
    finishTyping();
    (void)command_.choose(static_cast<std::size_t>(row));
    // The list is still handling the key or click that moved it.
    QMetaObject::invokeMethod(
        this, [this] { showEmployee(); }, Qt::QueuedConnection);
}

void AfastamentoWindow::beginOrAdd() {
    finishTyping();
    const bool fresh = command_.chosen() && !command_.form().isChanged();
    if (!fresh) return showOutcome(command_.add());
    if (!command_.begin()) return;
    showEmployee();
    form_->focus(LeaveInput::Type);
}

void AfastamentoWindow::change() {
    finishTyping();
    if (command_.chosen() && !command_.form().isChanged()) return form_->focus(LeaveInput::Type);
    showOutcome(command_.change());
}

void AfastamentoWindow::showOutcome(bool done) {
    if (done) {
        refresh();
        leaves_->setFocus(Qt::OtherFocusReason);
        return;
    }
    form_->follow();
    if (command_.blamed()) form_->focus(*command_.blamed());
    showState();
}

void AfastamentoWindow::showState() {
    const std::size_t count = command_.file().leaves.size();
    QString text = count == 0
                       ? QStringLiteral("Nenhum afastamento. Preencha os campos e tecle Ins.")
                       : toQt(countOf(count, "afastamento"));
    if (!command_.selected()) text.clear();
    if (command_.form().isChanged()) text = QStringLiteral("Alterações não gravadas");
    setState(text);
}

bool AfastamentoWindow::mayClose() {
    finishTyping();
    return command_.confirmLeaving();
}

void openLeaves(const Workplace& at, const LeavesDesk& desk, QWidget* parent,
                const std::optional<EmployeeCode>& inHand) {
    const RecordedAnswers records(at.store());
    Afastamento leaves(at, records);
    if (leaves.open() && inHand) (void)leaves.select(*inHand);
    AfastamentoWindow window(leaves, parent);
    QObject::connect(&window, &AfastamentoWindow::monthRequested, &window, [&] {
        openWorkMonth(at, &window);
        (void)leaves.open();
        window.refresh();
    });
    QObject::connect(&window, &AfastamentoWindow::absencesRequested, &window, [&](bool asText) {
        if (!leaves.month())
            (void)leaves.open();
        else if (asText)
            (void)showAbsences(at, desk.editor, *leaves.month());
        else
            (void)previewAbsences({at, desk.engine}, *leaves.month());
    });
    QObject::connect(&window, &AfastamentoWindow::terminationRequested, &window, [&] {
        if (const Employee* one = leaves.selected())
            desk.openTermination(&window, *one);
        else
            at.person.tell(noEmployeeSelected());
    });
    window.exec();
}

MenuEntry leavesEntry(const Workplace& at, const LeavesDesk& desk) {
    return {.group = QStringLiteral("Pessoal"),
            .tile = {"leave", QStringLiteral("Afastame&ntos"), "menu.leaves.open", Qt::Key_F10},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openLeaves(at, desk, parent); },
            .state =
                [](const MonthProgress*) { return QStringLiteral("Férias, atestados, rescisão"); }};
}

}  // namespace winvrx
