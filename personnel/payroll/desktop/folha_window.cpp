#include "personnel/payroll/desktop/folha_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "personnel/payroll/desktop/pay_sheet_panel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>

namespace winvrx {

namespace {

constexpr int kSideWidth = 296;
constexpr int kFiguresWidth = 288;
const QString kNoMonth =
    QStringLiteral("Escolha primeiro o mês de trabalho em \"Mês de Trabalho\" (F7).");

/// A list of names and figures, as high as its rows.
QTreeWidget* figureList(const char* name, const QString& title, const QString& heading,
                        QWidget* parent) {
    QTreeWidget* list = look::table(QLatin1String(name), title, {title, heading}, parent);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

void addFigure(QTreeWidget& list, const std::string& name, const std::string& figure) {
    auto* row = new QTreeWidgetItem(&list, {toQt(name), toQt(figure)});
    row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    row->setFont(1, look::fixedFont());
}

void fitHeight(QTreeWidget& list) {
    const int rows = std::max(list.topLevelItemCount(), 1);
    list.setFixedHeight(list.header()->sizeHint().height() + 2 * list.frameWidth() +
                        rows * std::max(list.sizeHintForRow(0), list.fontMetrics().height()));
}

}  // namespace

FolhaWindow::FolhaWindow(FolhaScreen& screen, QWidget* parent)
    : ScreenWindow(QStringLiteral("folha"), QStringLiteral("Folha de Pagamento"), parent),
      screen_(screen) {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kMargin);
    row->addWidget(buildEmployees());
    row->addWidget(buildSheet(), 1);
    row->addWidget(buildFigures());
    setBody(body);
    buildCommands();
    buildClosingButtons();
    refresh();
    employees_->focusList();
}

QWidget* FolhaWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        screen_.list(),
        {.screen = QStringLiteral("folha"),
         .scales = true,
         .details = [this](const Employee& one) { return toQt(screen_.activity(one)); }},
        this);
    employees_->setFixedWidth(kSideWidth);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        (void)screen_.filterBy(shift);
        refresh();
    });
    connect(employees_, &EmployeePicker::scaleChosen, this, [this](std::optional<Scale> scale) {
        (void)screen_.filterBy(scale);
        refresh();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this, &FolhaWindow::choose);
    connect(employees_, &EmployeePicker::opened, this, &FolhaWindow::enterSheet);
    for (const auto& [key, by] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)}) {
        auto* move = new QShortcut(key, this);
        connect(move, &QShortcut::activated, employees_,
                [this, step = by] { employees_->step(step); });
    }
    return employees_;
}

QWidget* FolhaWindow::buildSheet() {
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    auto* heading = new QHBoxLayout;
    name_ = look::heading(QString(), part);
    name_->setObjectName(QStringLiteral("folha.name"));
    heading->addWidget(name_, 1);
    heading->addWidget(buildRuns(part));
    column->addLayout(heading);
    standing_ = look::label(QString(), look::TextSize::Hint, part);
    standing_->setObjectName(QStringLiteral("folha.standing"));
    column->addWidget(standing_);
    sheet_ = new PaySheetPanel(part);
    connect(sheet_, &PaySheetPanel::turnedTo, this, &FolhaWindow::showMemo);
    connect(sheet_, &PaySheetPanel::amountTyped, this, &FolhaWindow::takeAmount);
    column->addWidget(sheet_, 1);
    return part;
}

QWidget* FolhaWindow::buildRuns(QWidget* parent) {
    runs_ = new QComboBox(parent);
    look::name(*runs_, QStringLiteral("folha.run"), QStringLiteral("Folha de"));
    for (const PayrollRun run : kPayrollRuns)
        runs_->addItem(toQt(captionOf(run)));
    connect(runs_, &QComboBox::activated, this, [this](int place) {
        (void)screen_.chooseRun(kPayrollRuns.at(static_cast<std::size_t>(place)));
        refresh();
    });
    return runs_;
}

QWidget* FolhaWindow::buildFigures() {
    auto* part = new QWidget(this);
    part->setFixedWidth(kFiguresWidth);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    hours_ = figureList("folha.hours", QStringLiteral("Resumo das horas"), QStringLiteral("Horas"),
                        part);
    column->addWidget(hours_);
    column->addSpacing(look::kGap);
    bases_ =
        figureList("folha.bases", QStringLiteral("Bases e encargos"), QStringLiteral("R$"), part);
    column->addWidget(bases_);
    warnings_ = look::label(QString(), look::TextSize::Hint, part);
    warnings_->setObjectName(QStringLiteral("folha.warnings"));
    warnings_->setWordWrap(true);
    look::setTint(*warnings_, look::Tint::Warning);
    column->addWidget(warnings_);
    column->addStretch();
    return part;
}

QToolButton* FolhaWindow::command(const char* icon, const QString& text, const QKeySequence& key,
                                  const char* name) {
    return addCommand(QLatin1String(icon), text, key,
                      QStringLiteral("folha.") + QLatin1String(name));
}

void FolhaWindow::buildCommands() {
    connect(command("month", QStringLiteral("Mês de Trabalho"), Qt::Key_F7, "month"),
            &QToolButton::clicked, this, [this] {
                if (screen_.confirmLeaving()) emit monthRequested();
            });
    connect(command("sheet", QStringLiteral("Eventos"), Qt::Key_F8, "catalogue"),
            &QToolButton::clicked, this, [this] { requestEvents(false); });
    connect(command("employees", QStringLiteral("Eventos do Funcionário"), Qt::SHIFT | Qt::Key_F8,
                    "ownCatalogue"),
            &QToolButton::clicked, this, [this] { requestEvents(true); });
    connect(command("apply", QStringLiteral("Opções"), Qt::Key_F6, "options"),
            &QToolButton::clicked, this, [this] {
                if (screen_.confirmLeaving()) emit optionsRequested();
            });
    connect(command("edit", QStringLiteral("Dados"), Qt::SHIFT | Qt::Key_F6, "facts"),
            &QToolButton::clicked, this, [this] {
                if (screen_.confirmLeaving()) emit factsRequested();
            });
    connect(command("month", QStringLiteral("Visão do Mês"), Qt::Key_F4, "overview"),
            &QToolButton::clicked, this, [this] {
                if (screen_.isOpen() && screen_.confirmLeaving()) emit overviewRequested();
            });
    buildPapers();
    connect(command("search", QStringLiteral("Memória"), Qt::Key_F3, "explain"),
            &QToolButton::clicked, this, [this] { sheet_->focusMemo(); });
    reopen_ = command("restore", QStringLiteral("Reabrir Mês"), Qt::Key_F9, "reopen");
    connect(reopen_, &QToolButton::clicked, this, [this] {
        if (screen_.reopen()) refresh();
    });
}

void FolhaWindow::buildPapers() {
    QToolButton* print = command("print", QStringLiteral("Imprimir"), QKeySequence::Print, "print");
    auto* papers = new QMenu(print);
    const auto add = [&](const char* text, const QKeySequence& key, const char* name,
                         FolhaPaper paper) {
        QAction* action = papers->addAction(QString::fromUtf8(text));
        action->setObjectName(QStringLiteral("folha.print.") + QLatin1String(name));
        action->setShortcut(key);
        addAction(action);
        connect(action, &QAction::triggered, this, [this, paper] {
            if (screen_.isOpen()) emit paperRequested(paper);
        });
    };
    add("&Folha de Pagamento", {}, "payroll", FolhaPaper::Payroll);
    add("Recibos de &Todos (dois por folha)", Qt::CTRL | Qt::Key_T, "slips", FolhaPaper::PaySlips);
    add("&Recibo de Pagamento", Qt::CTRL | Qt::Key_R, "receipt", FolhaPaper::Receipt);
    add("Recibo com &Memória de Cálculo", {}, "memos", FolhaPaper::ReceiptWithMemos);
    add("Recibo de &Adiantamento", {}, "advance", FolhaPaper::Advance);
    connect(print, &QToolButton::clicked, this,
            [print, papers] { papers->popup(print->mapToGlobal(QPoint(0, print->height()))); });
}

void FolhaWindow::turnTo(const std::string& code) {
    if (const auto position = screen_.list().positionOf(code)) choose(*position);
}

void FolhaWindow::buildClosingButtons() {
    QPushButton* all =
        addClosingButton(QStringLiteral("GRAVAR &TODOS"), QStringLiteral("folha.saveAll"));
    connect(all, &QPushButton::clicked, this, &FolhaWindow::saveAll);
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S, this), &QShortcut::activated, this,
            &FolhaWindow::saveAll);
    QPushButton* save =
        addClosingButton(QStringLiteral("&Gravar Selecionado"), QStringLiteral("folha.save"));
    save->setIcon(look::icon(QStringLiteral("save")));
    save->setDefault(true);
    const auto record = [this] {
        if (screen_.save()) refresh();
    };
    connect(save, &QPushButton::clicked, this, record);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, record);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("folha.close"));
    connect(close, &QPushButton::clicked, this, &FolhaWindow::reject);
}

void FolhaWindow::refresh() {
    if (!screen_.position() && screen_.isOpen() && !screen_.list().shown().empty())
        (void)screen_.select(screen_.list().shown().front());
    if (screen_.isOpen()) {
        const Company& company = screen_.company();
        setChips({toQt(company.code + " " + company.name),
                  toQt(monthTitle(screen_.folha().month().month))});
    }
    runs_->setCurrentIndex(static_cast<int>(screen_.folha().run()));
    employees_->setHint(screen_.isOpen() ? QString() : kNoMonth);
    employees_->refresh();
    QStringList warnings;
    if (screen_.isOpen())
        for (const std::string& text : screen_.folha().warnings())
            warnings << QStringLiteral("⚠ ") + toQt(text);
    warnings_->setText(warnings.join(QLatin1Char('\n')));
    warnings_->setVisible(!warnings.isEmpty());
    showEmployee();
}

void FolhaWindow::choose(std::size_t position) {
    if (screen_.position() != position) (void)screen_.select(position);
    // The list is still handling the key or click that moved it.
    QMetaObject::invokeMethod(
        this, [this] { showEmployee(); }, Qt::QueuedConnection);
}

void FolhaWindow::showEmployee() {
    employees_->select(screen_.position());
    const Employee* one = screen_.selected();
    name_->setText(one ? toQt(one->code + " " + one->name)
                       : QStringLiteral("Nenhum funcionário selecionado"));
    standing_->setText(toQt(screen_.standing()));
    const auto& shown = screen_.folha().shown();
    const bool isRecorded = shown && shown->isRecorded;
    const PaySheet* now = isRecorded && shown->now ? &*shown->now : nullptr;
    sheet_->showSheet(shown ? &shown->sheet : nullptr, now);
    reopen_->setEnabled(isRecorded);
    showHours();
    showBases();
    setState(shown ? QStringLiteral("Digite um valor para trocá-lo; Del volta ao calculado")
                   : QStringLiteral("Enter calcula a folha do funcionário"));
}

void FolhaWindow::showHours() {
    hours_->clear();
    const auto& shown = screen_.folha().shown();
    const HourTotals totals =
        shown && shown->month.hours ? shown->month.hours->totals() : HourTotals{};
    for (const HoursRow& row : hoursRows(totals))
        addFigure(*hours_, row.label, row.hours);
    fitHeight(*hours_);
}

void FolhaWindow::showBases() {
    bases_->clear();
    for (const auto& [name, amount] : screen_.figures())
        addFigure(*bases_, name, moneyText(amount));
    fitHeight(*bases_);
}

void FolhaWindow::showMemo(int line) {
    QStringList texts;
    if (line >= 0 && screen_.folha().shown())
        for (const std::string& text : screen_.memo(static_cast<std::size_t>(line)))
            texts << toQt(text);
    sheet_->showMemo(texts);
}

void FolhaWindow::enterSheet() {
    if (screen_.compute() == Folha::Opening::ToTimeCard) emit timeCardRequested();
    if (screen_.folha().shown()) sheet_->focusEvents();
}

void FolhaWindow::takeAmount(int line, const QString& amount) {
    const auto& shown = screen_.folha().shown();
    if (!shown) return;
    const PayLine& of = shown->sheet.lines.at(static_cast<std::size_t>(line));
    const auto type = [this, event = EventCode::parse(of.event.code).value(),
                       typed = toUtf8(amount)] { (void)screen_.type(event, typed); };
    // What is no amount is told of as soon as the editor is closed.
    if (amount.isEmpty() || parseMoney(toUtf8(amount)))
        type();
    else
        QMetaObject::invokeMethod(this, type, Qt::QueuedConnection);
    showEmployee();
}

void FolhaWindow::saveAll() {
    Progress progress({.objectName = QStringLiteral("folha.progress"),
                       .title = QStringLiteral("GRAVAR TODOS"),
                       .step = QStringLiteral("Funcionário %1 de %2"),
                       .finishing = QStringLiteral("Gravando %1 folhas…")},
                      this);
    (void)screen_.saveAll([&](int done, int total) { return progress.show(done, total); });
    refresh();
}

void FolhaWindow::requestEvents(bool own) {
    if (!screen_.isOpen() || (own && !screen_.selected())) {
        (void)screen_.compute();
        return;
    }
    if (screen_.confirmLeaving()) emit eventsRequested(own);
}

bool FolhaWindow::mayClose() {
    return screen_.confirmLeaving();
}

}  // namespace winvrx
