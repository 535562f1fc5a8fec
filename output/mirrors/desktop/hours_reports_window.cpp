#include "output/mirrors/desktop/hours_reports_window.h"

#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/cards/desktop/output_choice.h"
#include "timecard/month/desktop/month_entry.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kListCharacters = 46;
constexpr std::size_t kDateWidth = 10;

constexpr FieldKind kDayField{.hint = dateHint, .completed = completedDate};

/// How far a report is.
Progress hoursProgress(QWidget* parent) {
    return Progress({QStringLiteral("horas.progress"), QStringLiteral("GERANDO RELATÓRIO"),
                     QStringLiteral("Funcionário %1 de %2"),
                     QStringLiteral("Gravando os dados de %1 funcionários…")},
                    parent);
}

/// The reports with a spreadsheet of their own.
struct OpenReports {
    OpenReports(const Workplace& at, const HoursEntryDesk& desk)
        : reports(at, {desk.editor, spreadsheet, desk.browser, desk.engine, desk.printers,
                       *desk.rotation}) {}

    XlsxSpreadsheet spreadsheet;
    HoursReports reports;
};

}  // namespace

HoursReportsWindow::HoursReportsWindow(HoursReports& reports,
                                       std::function<void(QWidget* parent)> openWorkMonth,
                                       QWidget* parent)
    : ScreenWindow(QStringLiteral("horas"), QStringLiteral("ESPELHO E RELATÓRIOS DE HORAS"),
                   parent),
      reports_(reports),
      openWorkMonth_(std::move(openWorkMonth)) {
    reports_.load();
    buildCommands();
    setBody({{buildEmployees(), 2}, {buildChoices(), 3}});
    buildClosingButtons();
    employees_->refresh();
    showPeriod();
    showContext();
    employees_->focusList();
}

void HoursReportsWindow::buildCommands() {
    addCommand({"month", QStringLiteral("Mês Trabalho (Todos)"), Qt::CTRL | Qt::Key_M,
                "horas.month", [this] {
                    if (openWorkMonth_) openWorkMonth_(this);
                    reports_.load();
                    employees_->refresh();
                    showPeriod();
                    showContext();
                }});
    addCommand({"mirror", QStringLiteral("Espelho de Ponto"), Qt::CTRL | Qt::Key_I, "horas.mirrors",
                [this] { printMirrors(); }});
    addCommand({"sheet", QStringLiteral("Folha Manual"), Qt::CTRL | Qt::Key_L, "horas.manual",
                [this] { printManualSheet(); }});
    addCommand({"preview", QStringLiteral("Ver Resumo"), Qt::CTRL | Qt::Key_R, "horas.overview",
                [this] { make(&HoursReports::showOverview); }});
    addCommand(
        {"sheet", QStringLiteral("Espelho em Texto"), Qt::CTRL | Qt::Key_E, "horas.mirror", [this] {
             if (takePeriod()) (void)reports_.showMirrorText(employees_->selected());
         }});
    addCommand({"save", QStringLiteral("Totais em CSV"), Qt::CTRL | Qt::Key_T, "horas.csv",
                [this] { exportSums(); }});
}

void HoursReportsWindow::buildClosingButtons() {
    addDefaultButton({"sheet", QStringLiteral("&Gerar Relatório"), QKeySequence::Print,
                      "horas.report", [this] { make(&HoursReports::report); }});
    addClosingButton(
        {"card", QStringLiteral("Espelho nos &Lados do Cartão"), {}, "horas.sides", [this] {
             printSides();
         }});
    addLeavingButton("horas.close");
}

QWidget* HoursReportsWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        reports_.list(), {.screen = QStringLiteral("horas"), .scales = true, .narrows = true},
        this);
    employees_->setMinimumWidth(employees_->fontMetrics().averageCharWidth() * kListCharacters);
    connect(employees_, &EmployeePicker::narrowed, this, &HoursReportsWindow::showContext);
    return employees_;
}

QWidget* HoursReportsWindow::buildChoices() {
    const auto [part, column] = look::part(this);
    column->setSpacing(look::kGroupGap);
    column->addWidget(buildPeriod(part));
    output_ = new OutputChoice(QStringLiteral("horas.output"), part);
    output_->showOutput({});
    column->addWidget(output_, 0, Qt::AlignLeft);
    column->addWidget(buildExplanation(part));
    column->addStretch();
    return part;
}

QWidget* HoursReportsWindow::buildPeriod(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Período"), part));
    auto* dates = new QHBoxLayout;
    dates->setSpacing(look::kGap);
    const auto field = [&](const QString& caption, const QString& name) {
        auto* made = new Field({.caption = caption,
                                .objectName = QStringLiteral("horas.") + name,
                                .width = kDateWidth,
                                .kind = kDayField},
                               part);
        dates->addWidget(made);
        connect(made, &Field::finished, this, [this] { (void)takePeriod(); });
        return made;
    };
    first_ = field(QStringLiteral("D&e"), QStringLiteral("first"));
    last_ = field(QStringLiteral("&Até"), QStringLiteral("last"));
    last_->input()->setProperty("lastField", true);
    dates->addStretch();
    column->addLayout(dates);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(look::kGap);
    const auto choice = [&](const QString& text, const char* name, auto choose) {
        const auto take = [this, choose] {
            (reports_.*choose)();
            showPeriod();
        };
        choices->addWidget(newButton({"", text, {}, name, take}, part));
    };
    choice(QStringLiteral("Mês de &trabalho"), "horas.wholeMonth", &HoursReports::chooseMonth);
    choice(QStringLiteral("Fe&chamento do ponto"), "horas.closing", &HoursReports::chooseClosing);
    choices->addStretch();
    column->addLayout(choices);
    return part;
}

QWidget* HoursReportsWindow::buildExplanation(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    column->addWidget(look::heading(QStringLiteral("O que cada comando gera"), part));
    const QStringList lines = {
        QStringLiteral(
            "<b>Espelho de Ponto</b>: uma folha para cada funcionário da lista assinar."),
        QStringLiteral("<b>Espelho nos Lados do Cartão</b>: o mês de trabalho no cartão, uma "
                       "quinzena em cada lado."),
        QStringLiteral("<b>Folha Manual</b>: a folha do espelho, do funcionário selecionado, sem "
                       "horários."),
        QStringLiteral("<b>Gerar Relatório</b>: horas extras e faltas dia a dia, resumo e "
                       "afastamentos, em planilha ou texto."),
        QStringLiteral("<b>Ver Resumo</b>: uma página com as faltas e extras de todos; quem "
                       "precisa de atenção vem primeiro."),
        QStringLiteral("<b>Espelho em Texto</b>: os dias do funcionário selecionado."),
        QStringLiteral("<b>Totais em CSV</b>: uma linha por funcionário, para o escritório da "
                       "folha.")};
    for (const QString& line : lines) {
        QLabel* text = look::label(line, look::TextSize::Body, part);
        text->setWordWrap(true);
        column->addWidget(text);
    }
    return part;
}

void HoursReportsWindow::showPeriod() {
    const auto& period = reports_.period();
    first_->setStored(period ? dateText(period->first) : std::string());
    last_->setStored(period ? dateText(period->last) : std::string());
}

bool HoursReportsWindow::takePeriod() {
    const bool taken = reports_.choosePeriod(first_->stored(), last_->stored());
    const bool typed = !first_->stored().empty() && !last_->stored().empty();
    last_->setFinding(taken || !typed
                          ? QString()
                          : QStringLiteral("Termina antes de começar, ou passa de um ano."));
    return taken;
}

bool HoursReportsWindow::requireTakenPeriod() {
    if (takePeriod()) return true;
    reports_.refusePeriod();
    first_->takeFocus();
    return false;
}

void HoursReportsWindow::make(bool (HoursReports::*report)(const PageProgress& progress)) {
    if (!requireTakenPeriod()) return;
    Progress progress = hoursProgress(this);
    (void)(reports_.*report)(std::ref(progress));
}

void HoursReportsWindow::printMirrors() {
    if (!requireTakenPeriod()) return;
    Progress progress(
        {QStringLiteral("horas.progress"), QStringLiteral("IMPRIMINDO ESPELHO DE PONTO"),
         QStringLiteral("Folha %1 de %2")},
        this);
    (void)reports_.printMirrors(output_->choices(), pdfAsking(this, &progress));
}

void HoursReportsWindow::printManualSheet() {
    if (!requireTakenPeriod()) return;
    (void)reports_.printManualSheet(employees_->selected(), output_->choices(), pdfAsking(this));
}

void HoursReportsWindow::printSides() {
    Progress progress({QStringLiteral("horas.progress"), QStringLiteral("Imprimindo Ponto"),
                       QStringLiteral("Cartão %1 de %2")},
                      this);
    (void)reports_.printSides(output_->choices(), pdfAsking(this, &progress),
                              [this](const std::string& line) { setState(toQt(line)); });
    showPeriod();
    showContext();
}

void HoursReportsWindow::exportSums() {
    if (!requireTakenPeriod()) return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Totais em CSV"),
                                                      folder + QStringLiteral("/horas.csv"),
                                                      QStringLiteral("CSV (*.csv)"));
    if (file.isEmpty()) return;
    Progress progress = hoursProgress(this);
    (void)reports_.exportSums(std::filesystem::path(file.toStdU16String()), std::ref(progress));
}

void HoursReportsWindow::showContext() {
    const Company& company = reports_.company();
    setSubtitle(QStringLiteral("Horas extras, faltas e afastamentos do período"));
    setChips({toQt(company.code) + QLatin1Char(' ') + toQt(company.name),
              reports_.month() ? toQt(monthTitle(*reports_.month()))
                               : QStringLiteral("Sem mês de trabalho"),
              toQt(codeOf(reports_.list().shift()))});
    setState(toQt(countOf(reports_.list().shown().size(), "funcionário") + " no relatório"));
}

void openHoursReports(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent) {
    OpenReports open(at, desk);
    HoursReportsWindow(
        open.reports, [&at](QWidget* over) { openWorkMonth(at, over); }, parent)
        .exec();
}

void showHoursSummary(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent) {
    OpenReports open(at, desk);
    open.reports.load();
    Progress progress = hoursProgress(parent);
    (void)open.reports.showOverview(std::ref(progress));
}

MenuEntries hoursEntries(const Workplace& at, const HoursEntryDesk& desk) {
    const QString group = QStringLiteral("Cartão de Ponto");
    const auto open = [at, desk](QWidget* parent) { openHoursReports(at, desk, parent); };
    return {
        {.group = group,
         .tile = {"clock", QStringLiteral("Relatório de &Horas"), "menu.hours.open", Qt::Key_F12},
         .needs = MenuNeeds::Employees,
         .open = open,
         .state = [](const MonthProgress*) { return QStringLiteral("Extras, faltas e resumo"); }},
        {.group = group,
         .tile = {"mirror", QStringLiteral("Espelho"), "menu.mirror.open"},
         .needs = MenuNeeds::Employees,
         .open = open,
         .state = [](const MonthProgress*) { return QStringLiteral("Folha para assinar"); }}};
}

}  // namespace winvrx
