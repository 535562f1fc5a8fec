#include "personnel/vacation/desktop/ferias_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/vacation/ferias.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

#include <array>

namespace winvrx {

namespace {

constexpr int kSideWidth = 288;
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

QStringList headings() {
    QStringList texts;
    for (const char* heading : {"Período aquisitivo", "Situação", "Início", "Término", "Vendidos",
                                "13º", "Mês", "Total líquido", "Limite da concessão"})
        texts << QString::fromUtf8(heading);
    return texts;
}

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
    texts << toQt(dateText(row.period.limit));
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
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kMargin);
    row->addWidget(buildEmployees());
    row->addWidget(buildPeriods(), 1);
    setBody(body);
    buildCommands();
    addKeys();
    refresh();
    employees_->focusList();
}

QWidget* FeriasWindow::buildEmployees() {
    employees_ =
        new EmployeePicker(command_.list(),
                           {.screen = QStringLiteral("vacations"),
                            .subsetName = QStringLiteral("due"),
                            .subsetCaption = QStringLiteral("Férias a vencer em %2 dias (%1)")
                                                 .arg(QStringLiteral("%1"))
                                                 .arg(kDueWithinDays)},
                           this);
    employees_->setFixedWidth(kSideWidth);
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
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    name_ = look::heading(QString(), part);
    name_->setObjectName(QStringLiteral("vacations.name"));
    column->addWidget(name_);
    dueText_ = look::label(QString(), look::TextSize::Hint, part);
    dueText_->setObjectName(QStringLiteral("vacations.dueText"));
    look::setTint(*dueText_, look::Tint::Warning);
    column->addWidget(dueText_);
    rows_ =
        look::table(QStringLiteral("vacations.list"), QStringLiteral("Períodos"), headings(), part);
    connect(rows_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) choosePeriod(rows_->indexOfTopLevelItem(item));
    });
    connect(rows_, &QTreeWidget::itemDoubleClicked, this,
            [this] { fields_[VacationInput::First]->takeFocus(); });
    rows_->installEventFilter(this);
    column->addWidget(rows_, 1);
    column->addWidget(buildForm(part));
    return part;
}

QWidget* FeriasWindow::buildForm(QWidget* part) {
    auto* form = new QWidget(part);
    auto* column = new QVBoxLayout(form);
    look::layOutPart(*column);
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
    notes_ = look::label(QString(), look::TextSize::Hint, form);
    notes_->setObjectName(QStringLiteral("vacations.notes"));
    column->addWidget(notes_);
    return form;
}

void FeriasWindow::buildCommands() {
    const auto add = [this](const char* icon, const QString& text, const QKeySequence& key,
                            const char* name, auto act, QWidget* within = nullptr) {
        QToolButton* button =
            addCommand(QLatin1String(icon), text, key,
                       QStringLiteral("vacations.") + QLatin1String(name), within);
        connect(button, &QToolButton::clicked, this, act);
    };
    add("apply", QStringLiteral("QUITAR"), Qt::Key_F9, "settle",
        [this] { showOutcome(command_.settle()); });
    add("restore", QStringLiteral("Restaurar Quitação"), Qt::Key_F8, "restore",
        [this] { showOutcome(command_.restoreSettlement()); });
    add("sheet", QStringLiteral("Provisão"), Qt::Key_F6, "provide",
        [this] { showOutcome(command_.provide()); });
    add("print", QStringLiteral("Provisões do Mês"), QKeySequence(Qt::SHIFT | Qt::Key_F6),
        "provisions", [this] { emit provisionsRequested(); });
    add(
        "delete", QStringLiteral("Excluir"), Qt::Key_Delete, "remove",
        [this] { showOutcome(command_.remove()); }, rows_);
    add("month", QStringLiteral("Mês de Trabalho"), Qt::Key_F7, "month", [this] {
        if (command_.confirmLeaving()) emit monthRequested();
    });
    add("print", QStringLiteral("Aviso de Férias"), QKeySequence::Print, "notice",
        [this] { emit noticeRequested(); });
    QPushButton* save =
        addClosingButton(QStringLiteral("&Gravar"), QStringLiteral("vacations.save"));
    save->setIcon(look::icon(QStringLiteral("save")));
    save->setDefault(true);
    const auto record = [this] { showOutcome(command_.record()); };
    connect(save, &QPushButton::clicked, this, record);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, record);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("vacations.close"));
    connect(close, &QPushButton::clicked, this, &FeriasWindow::reject);
}

void FeriasWindow::addKeys() {
    for (const auto& [key, by] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)}) {
        auto* move = new QShortcut(key, this);
        connect(move, &QShortcut::activated, employees_,
                [this, step = by] { employees_->step(step); });
    }
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
    const QString due = toQt(command_.dueText());
    dueText_->setText(QStringLiteral("⚠ ") + due);
    dueText_->setVisible(!due.isEmpty());
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
    for (const auto& [input, field] : fields_) {
        field->setStored(command_.form().text(input));
        field->setEnabled(command_.chosen().has_value());
    }
    thirteenth_->setChecked(command_.form().withThirteenth());
    thirteenth_->setEnabled(command_.chosen().has_value());
    showNotes();
    showState();
}

void FeriasWindow::showNotes() {
    QStringList lines;
    for (const std::string& note : command_.planNotes())
        lines << toQt(note);
    notes_->setText(lines.join(QLatin1Char('\n')));
    notes_->setVisible(!lines.isEmpty());
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

/// ENTER on a period goes on to its fields.
bool FeriasWindow::eventFilter(QObject* watched, QEvent* event) {
    const int key =
        event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : Qt::Key_unknown;
    if (watched != rows_ || (key != Qt::Key_Return && key != Qt::Key_Enter))
        return ScreenWindow::eventFilter(watched, event);
    fields_[VacationInput::First]->takeFocus();
    return true;
}

bool FeriasWindow::mayClose() {
    return command_.confirmLeaving();
}

}  // namespace winvrx
