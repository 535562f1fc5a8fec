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
    list->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
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
    setBody({{buildEmployees()}, {buildSheet(), 1}, {buildFigures()}}, look::kMargin);
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
    addPageKeys([this](int by) { employees_->step(by); });
    return employees_;
}

QWidget* FolhaWindow::buildSheet() {
    const auto [part, column] = look::part(this);
    auto* heading = new QHBoxLayout;
    name_ = look::line(QStringLiteral("folha.name"), look::TextSize::Heading, part);
    heading->addWidget(name_, 1);
    heading->addWidget(buildRuns(part));
    column->addLayout(heading);
    standing_ = look::line(QStringLiteral("folha.standing"), look::TextSize::Hint, part);
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
    const auto [part, column] = look::part(this);
    part->setFixedWidth(kFiguresWidth);
    hours_ = figureList("folha.hours", QStringLiteral("Resumo das horas"), QStringLiteral("Horas"),
                        part);
    column->addWidget(hours_);
    column->addSpacing(look::kGap);
    bases_ =
        figureList("folha.bases", QStringLiteral("Bases e encargos"), QStringLiteral("R$"), part);
    column->addWidget(bases_);
    warnings_ = look::paragraph(QStringLiteral("folha.warnings"), look::TextSize::Hint, part);
    look::setTint(*warnings_, look::Tint::Warning);
    column->addWidget(warnings_);
    column->addStretch();
    return part;
}

void FolhaWindow::buildCommands() {
    const auto leadingTo = [this](void (FolhaWindow::*requested)()) {
        return [this, requested] {
            if (screen_.confirmLeaving()) emit(this->*requested)();
        };
    };
    addCommand({"month", QStringLiteral("Mês de Trabalho"), Qt::Key_F7, "folha.month",
                leadingTo(&FolhaWindow::monthRequested)});
    addCommand({"sheet", QStringLiteral("Eventos"), Qt::Key_F8, "folha.catalogue",
                [this] { requestEvents(false); }});
    addCommand({"employees", QStringLiteral("Eventos do Funcionário"), Qt::SHIFT | Qt::Key_F8,
                "folha.ownCatalogue", [this] { requestEvents(true); }});
    addCommand({"apply", QStringLiteral("Opções"), Qt::Key_F6, "folha.options",
                leadingTo(&FolhaWindow::optionsRequested)});
    addCommand({"edit", QStringLiteral("Dados"), Qt::SHIFT | Qt::Key_F6, "folha.facts",
                leadingTo(&FolhaWindow::factsRequested)});
    addCommand({"month", QStringLiteral("Visão do Mês"), Qt::Key_F4, "folha.overview", [this] {
                    if (screen_.isOpen() && screen_.confirmLeaving()) emit overviewRequested();
                }});
    buildPapers();
    addCommand({"search", QStringLiteral("Memória"), Qt::Key_F3, "folha.explain",
                [this] { sheet_->focusMemo(); }});
    reopen_ =
        addCommand({"restore", QStringLiteral("Reabrir Mês"), Qt::Key_F9, "folha.reopen", [this] {
                        if (screen_.reopen()) refresh();
                    }});
}

void FolhaWindow::buildPapers() {
    QToolButton* print =
        addCommand({"print", QStringLiteral("Imprimir"), QKeySequence::Print, "folha.print", {}});
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
    addClosingButton({"", QStringLiteral("GRAVAR &TODOS"), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                      "folha.saveAll", [this] { saveAll(); }});
    addDefaultButton(
        {"save", QStringLiteral("&Gravar Selecionado"), QKeySequence::Save, "folha.save", [this] {
             if (screen_.save()) refresh();
         }});
    addLeavingButton("folha.close");
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
    look::showText(*warnings_, warnings.join(QLatin1Char('\n')));
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
