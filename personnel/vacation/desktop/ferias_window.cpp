#include "personnel/vacation/desktop/ferias_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/vacation/ferias.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <array>

namespace winvrx {

namespace {

const QString kNoMonth =
    QStringLiteral("Escolha primeiro o mês de trabalho em \"Mês de Trabalho\" (F7).");

struct Shown {
    VacationInput input;
    const char* name;
    const char* caption;
    std::size_t width;
    FieldKind kind = kContractDateField;
};

/// In the order in which they are typed.
constexpr std::array kShown = {
    Shown{VacationInput::First, "first", "&Início das férias", 10},
    Shown{VacationInput::Days, "days", "&Dias", 2, kNumberField},
    Shown{VacationInput::Last, "last", "&Término", 10},
    Shown{VacationInput::Sold, "sold", "Dias &vendidos", 2, kNumberField},
};

constexpr std::array kHeadings = {"Período aquisitivo", "Situação", "Início", "Término",
                                  "Vendidos",           "13º",      "Mês",    "Total líquido",
                                  "Limite da concessão"};

QTreeWidgetItem* rowOf(const Ferias& command, const PeriodRow& row) {
    QStringList texts{toQt(dateText(row.period.first) + " a " + dateText(row.period.last)),
                      toQt(row.text())};
    if (const VacationItem* item = command.itemOf(row)) {
        texts << toQt(item->first) << toQt(item->last)
              << toQt(item->soldDays() > 0 ? item->sold : "")
              << toQt(item->hasThirteenth() ? "1ª parcela" : "") << toQt(item->month)
              << toQt(item->net);
    } else {
        texts << QString() << QString() << QString() << QString() << QString() << QString();
    }
    texts << toQt(row.period.forfeit ? "" : dateText(row.period.limit));
    auto* shown = new QTreeWidgetItem(texts);
    const bool lacksLeave =
        row.line && row.status != PeriodStatus::Provision && !command.hasLeaveOf(row);
    if (lacksLeave) {
        shown->setText(2, QStringLiteral("⚠ ") + shown->text(2));
        shown->setToolTip(
            2, QStringLiteral("Estes dias não estão gravados como afastamento (006 FÉRIAS)."));
    }
    if (!row.isAcquiredOn(command.today()) && row.status == PeriodStatus::Pending)
        shown->setToolTip(1, QStringLiteral("O período aquisitivo ainda não terminou."));
    shown->setTextAlignment(7, Qt::AlignRight | Qt::AlignVCenter);
    return shown;
}

}  // namespace

FeriasWindow::FeriasWindow(Ferias& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("ferias"), QStringLiteral("Período de Aquisição de Férias"),
                   parent),
      command_(command) {
    setBody({{buildEmployees()}, {buildPeriods(), 1}}, look::kMargin);
    buildCommands();
    refresh();
    employees_->focusList();
}

QWidget* FeriasWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        command_.list(),
        {.screen = QStringLiteral("vacations"),
         .subsetName = QStringLiteral("due"),
         // The place of the count stays, for the list to fill.
         .subsetCaption = QStringLiteral("Férias a vencer em %1 dias (%2)")
                              .arg(kDueWithinDays)
                              .replace(QLatin1String("%2"), QLatin1String("%1"))},
        this);
    employees_->setFixedWidth(look::kSideWidth);
    connect(employees_, &EmployeePicker::subsetChosen, this, [this](bool only) {
        (void)command_.showOnlyDue(only);
        refresh();
    });
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        (void)command_.filterBy(shift);
        refresh();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this, &FeriasWindow::chooseEmployee);
    connect(employees_, &EmployeePicker::opened, this,
            [this] { rows_->setFocus(Qt::TabFocusReason); });
    return employees_;
}

QWidget* FeriasWindow::buildPeriods() {
    const auto [part, column] = look::part(this);
    name_ = look::line(QStringLiteral("vacations.name"), look::TextSize::Heading, part);
    column->addWidget(name_);
    dueText_ = look::line(QStringLiteral("vacations.dueText"), look::TextSize::Hint, part);
    look::setTint(*dueText_, look::Tint::Warning);
    column->addWidget(dueText_);
    rows_ = look::table(QStringLiteral("vacations.list"), QStringLiteral("Períodos"),
                        toQtList(kHeadings), part);
    connect(rows_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) choosePeriod(rows_->indexOfTopLevelItem(item));
    });
    connect(rows_, &QTreeWidget::itemDoubleClicked, this,
            [this] { fields_[VacationInput::First]->takeFocus(); });
    onEnter(*rows_, [this] { fields_[VacationInput::First]->takeFocus(); });
    column->addWidget(rows_, 1);
    column->addWidget(buildForm(part));
    return part;
}

QWidget* FeriasWindow::buildForm(QWidget* part) {
    const auto [form, column] = look::part(part);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    for (const Shown& shown : kShown) {
        auto* field =
            new Field({.caption = QString::fromUtf8(shown.caption),
                       .objectName = QStringLiteral("vacations.") + QLatin1String(shown.name),
                       .width = shown.width,
                       .kind = shown.kind,
                       .today = command_.today()},
                      form);
        fields_[shown.input] = field;
        connect(field, &Field::edited, this, [this, input = shown.input] { take(input); });
        row->addWidget(field, 1, Qt::AlignTop);
    }
    fields_[VacationInput::Sold]->input()->setProperty("lastField", true);
    column->addLayout(row);
    thirteenth_ =
        new QCheckBox(QStringLiteral("Pagar a &1ª parcela do 13º salário com as férias"), form);
    look::name(*thirteenth_, QStringLiteral("vacations.thirteenth"), thirteenth_->text());
    connect(thirteenth_, &QCheckBox::clicked, this, [this](bool with) {
        command_.form().payThirteenth(with);
        showState();
    });
    column->addWidget(thirteenth_);
    notes_ = look::line(QStringLiteral("vacations.notes"), look::TextSize::Hint, form);
    column->addWidget(notes_);
    return form;
}

void FeriasWindow::buildCommands() {
    addCommand({"apply", QStringLiteral("QUITAR"), Qt::Key_F9, "vacations.settle",
                [this] { showOutcome(command_.settle()); }});
    addCommand({"restore", QStringLiteral("Restaurar Quitação"), Qt::Key_F8, "vacations.restore",
                [this] { showOutcome(command_.restoreSettlement()); }});
    addCommand({"sheet", QStringLiteral("Provisão"), Qt::Key_F6, "vacations.provide",
                [this] { showOutcome(command_.provide()); }});
    addCommand({"print", QStringLiteral("Provisões do Mês"), Qt::SHIFT | Qt::Key_F6,
                "vacations.provisions", [this] { emit provisionsRequested(); }});
    addCommand({"delete", QStringLiteral("Excluir"), Qt::Key_Delete, "vacations.remove",
                [this] { showOutcome(command_.remove()); }, rows_});
    addCommand({"month", QStringLiteral("Mês de Trabalho"), Qt::Key_F7, "vacations.month", [this] {
                    if (command_.confirmLeaving()) emit monthRequested();
                }});
    addCommand({"print", QStringLiteral("Aviso de Férias"), QKeySequence::Print, "vacations.notice",
                [this] { emit noticeRequested(); }});
    addDefaultButton({"save", QStringLiteral("&Gravar"), QKeySequence::Save, "vacations.save",
                      [this] { showOutcome(command_.record()); }});
    addLeavingButton("vacations.close");
    addPageKeys([this](int by) { employees_->step(by); });
}

void FeriasWindow::refresh() {
    if (!command_.selected() && !command_.list().employees().empty()) (void)command_.select(0);
    if (command_.month())
        setChips({toQt(command_.companyTitle()), toQt(monthTitle(*command_.month()))});
    employees_->setHint(command_.month() ? QString() : kNoMonth);
    employees_->refresh();
    showEmployee();
}

void FeriasWindow::chooseEmployee(std::size_t position) {
    if (command_.selectedPosition() != position) (void)command_.select(position);
    showEmployee();
}

void FeriasWindow::choosePeriod(int row) {
    (void)command_.choose(static_cast<std::size_t>(row));
    // The list is still handling the key or click that moved it.
    QMetaObject::invokeMethod(
        this, [this] { showRows(); }, Qt::QueuedConnection);
}

void FeriasWindow::take(VacationInput input) {
    command_.form().type(input, fields_[input]->stored());
    for (const auto& [other, field] : fields_)
        if (other != input && field->stored() != command_.form().text(other))
            field->setStored(command_.form().text(other));
    showNotes();
    showState();
}

void FeriasWindow::showEmployee() {
    employees_->select(command_.selectedPosition());
    const Employee* one = command_.selected();
    QString name = QStringLiteral("Nenhum funcionário selecionado");
    if (one) name = toQt(one->code + " " + one->name + ", admissão " + one->admission);
    name_->setText(name);
    look::showWarning(*dueText_, toQt(command_.dueText()));
    showRows();
}

void FeriasWindow::showRows() {
    {
        const QSignalBlocker quiet(rows_);
        rows_->clear();
        for (const PeriodRow& row : command_.rows())
            rows_->addTopLevelItem(rowOf(command_, row));
        const auto chosen = command_.chosen();
        rows_->setCurrentItem(chosen ? rows_->topLevelItem(static_cast<int>(*chosen)) : nullptr);
    }
    showForm();
}

void FeriasWindow::showForm() {
    const PeriodRow* row = command_.chosenRow();
    const bool takesDays = row && !row->period.forfeit;
    for (const auto& [input, field] : fields_) {
        field->setStored(command_.form().text(input));
        field->setEnabled(takesDays);
    }
    thirteenth_->setChecked(command_.form().withThirteenth());
    thirteenth_->setEnabled(takesDays);
    showNotes();
    showState();
}

void FeriasWindow::showNotes() {
    look::showText(*notes_, toQtList(command_.planNotes()).join(QLatin1Char('\n')));
}

void FeriasWindow::showOutcome(bool done) {
    if (done) {
        refresh();
        rows_->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (command_.blamed()) fields_[*command_.blamed()]->takeFocus();
    showState();
}

void FeriasWindow::showState() {
    QString text;
    if (command_.selected())
        text = command_.rows().empty()
                   ? QStringLiteral("A admissão do cadastro não é uma data até este mês.")
                   : QStringLiteral("Escolha o período, informe o início e tecle Ctrl+S.");
    if (command_.form().isChanged()) text = QStringLiteral("Alterações não gravadas");
    setState(text);
}

bool FeriasWindow::mayClose() {
    return command_.confirmLeaving();
}

}  // namespace winvrx
