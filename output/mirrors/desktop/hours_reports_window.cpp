#include "output/mirrors/desktop/hours_reports_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/cards/desktop/output_choice.h"

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

QString countText(std::size_t people) {
    return people == 1 ? QStringLiteral("1 funcionário")
                       : QStringLiteral("%1 funcionários").arg(static_cast<qulonglong>(people));
}

}  // namespace

Progress hoursProgress(QWidget* parent) {
    return Progress({QStringLiteral("horas.progress"), QStringLiteral("GERANDO RELATÓRIO"),
                     QStringLiteral("Funcionário %1 de %2"),
                     QStringLiteral("Gravando os dados de %1 funcionários…")},
                    parent);
}

HoursReportsWindow::HoursReportsWindow(HoursReports& reports,
                                       std::function<void(QWidget* parent)> openWorkMonth,
                                       QWidget* parent)
    : ScreenWindow(QStringLiteral("horas"), QStringLiteral("ESPELHO E RELATÓRIOS DE HORAS"),
                   parent),
      reports_(reports),
      openWorkMonth_(std::move(openWorkMonth)) {
    reports_.load();
    buildCommands();
    setBody(buildBody());
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
    addCommand(
        {"preview", QStringLiteral("Ver Resumo"), Qt::CTRL | Qt::Key_R, "horas.overview", [this] {
             make([this](const PageProgress& progress) { return reports_.showOverview(progress); });
         }});
    addCommand(
        {"sheet", QStringLiteral("Espelho em Texto"), Qt::CTRL | Qt::Key_E, "horas.mirror", [this] {
             if (takePeriod()) (void)reports_.showMirrorText(employees_->selected());
         }});
    addCommand({"save", QStringLiteral("Totais em CSV"), Qt::CTRL | Qt::Key_T, "horas.csv",
                [this] { exportSums(); }});
}

void HoursReportsWindow::buildClosingButtons() {
    addDefaultButton(
        {"sheet", QStringLiteral("&Gerar Relatório"), QKeySequence::Print, "horas.report", [this] {
             make([this](const PageProgress& progress) { return reports_.report(progress); });
         }});
    addClosingButton(
        {"card", QStringLiteral("Espelho nos &Lados do Cartão"), {}, "horas.sides", [this] {
             printSides();
         }});
    addLeavingButton("horas.close");
}

QWidget* HoursReportsWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    employees_ = new EmployeePicker(
        reports_.list(), {.screen = QStringLiteral("horas"), .scales = true, .narrows = true},
        body);
    employees_->setMinimumWidth(employees_->fontMetrics().averageCharWidth() * kListCharacters);
    row->addWidget(employees_, 2);
    auto* right = new QVBoxLayout;
    right->setSpacing(look::kGroupGap);
    right->addWidget(buildPeriod(body));
    output_ = new OutputChoice(QStringLiteral("horas.output"), body);
    output_->showOutput({});
    right->addWidget(output_);
    right->addWidget(buildExplanation(body));
    right->addStretch();
    row->addLayout(right, 3);
    connect(employees_, &EmployeePicker::narrowed, this, &HoursReportsWindow::showContext);
    return body;
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
    first_ = field(QStringLiteral("&De"), QStringLiteral("first"));
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
    choice(QStringLiteral("&Mês de trabalho"), "horas.wholeMonth", &HoursReports::chooseMonth);
    choice(QStringLiteral("&Fechamento do ponto"), "horas.closing", &HoursReports::chooseClosing);
    choices->addStretch();
    column->addLayout(choices);
    return part;
}

QWidget* HoursReportsWindow::buildExplanation(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    column->addWidget(look::heading(QStringLiteral("O que cada comando gera"), part));
    const QStringList lines = {
        QStringLiteral("Espelho de Ponto: uma folha para cada funcionário da lista assinar."),
        QStringLiteral("Folha Manual: a mesma folha, do funcionário selecionado, sem horários."),
        QStringLiteral("Gerar Relatório: horas extras e faltas dia a dia, resumo e afastamentos, "
                       "em planilha ou texto."),
        QStringLiteral("Ver Resumo: uma página com as faltas e extras de todos; quem precisa de "
                       "atenção vem primeiro."),
        QStringLiteral("Espelho em Texto: os dias do funcionário selecionado."),
        QStringLiteral("Totais em CSV: uma linha por funcionário, para o escritório da folha.")};
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

template <typename Make>
void HoursReportsWindow::make(Make&& make) {
    if (!requireTakenPeriod()) return;
    Progress progress = hoursProgress(this);
    (void)make([&progress](int done, int total) { return progress.show(done, total); });
}

void HoursReportsWindow::printMirrors() {
    if (!requireTakenPeriod()) return;
    Progress progress(
        {QStringLiteral("horas.progress"), QStringLiteral("IMPRIMINDO ESPELHO DE PONTO"),
         QStringLiteral("Folha %1 de %2")},
        this);
    PrintRun run = pdfAsking(this);
    run.progress = [&progress](int done, int total) { return progress.show(done, total); };
    PrintChoices choices;
    output_->takeInto(choices);
    (void)reports_.printMirrors(choices, run);
}

void HoursReportsWindow::printManualSheet() {
    if (!requireTakenPeriod()) return;
    PrintChoices choices;
    output_->takeInto(choices);
    (void)reports_.printManualSheet(employees_->selected(), choices, pdfAsking(this));
}

void HoursReportsWindow::printSides() {
    Progress progress({QStringLiteral("horas.progress"), QStringLiteral("Imprimindo Ponto"),
                       QStringLiteral("Cartão %1 de %2")},
                      this);
    PrintRun run = pdfAsking(this);
    run.progress = [&progress](int done, int total) { return progress.show(done, total); };
    PrintChoices choices;
    output_->takeInto(choices);
    (void)reports_.printSides(choices, run,
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
    make([&](const PageProgress& progress) {
        return reports_.exportSums(std::filesystem::path(file.toStdU16String()), progress);
    });
}

void HoursReportsWindow::showContext() {
    const Company& company = reports_.company();
    setSubtitle(QStringLiteral("Horas extras, faltas e afastamentos do período"));
    setChips({toQt(company.code) + QLatin1Char(' ') + toQt(company.name),
              reports_.month() ? toQt(monthTitle(*reports_.month()))
                               : QStringLiteral("Sem mês de trabalho"),
              toQt(codeOf(reports_.list().shift()))});
    setState(countText(reports_.list().shown().size()) + QStringLiteral(" no relatório"));
}

}  // namespace winvrx
