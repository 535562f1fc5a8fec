#include "personnel/forms/desktop/relatorios_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/register/desktop/register_list.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/option_group.h"
#include "foundation/widgets/desktop/progress.h"
#include "report/desktop/pdf_file_dialog.h"
#include "timecard/month/desktop/month_entry.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kKeywordCharacters = 24;
constexpr int kEmployeeCharacters = 40;
constexpr int kPurposeLines = 2;
const QString kNoneChosen =
    QStringLiteral("Escolha um relatório na lista: digite parte do título ou escolha uma palavra.");

template <typename Id>
constexpr int idOf(Id id) {
    return static_cast<int>(id);
}

ListRow rowOf(const CatalogueForm& form) {
    const std::string title(form.title);
    return {.cells = {padded(form.number, 2), title, std::string(1, static_cast<char>(form.mark))},
            .searched = form.line() + " " + std::string(form.purpose)};
}

QString purposeOf(const CatalogueForm& form) {
    const QString filling = form.isFilled()
                                ? QStringLiteral("Sai preenchido com os dados do funcionário.")
                                : QStringLiteral("Sai em branco, para preencher à mão.");
    return QString::fromUtf8(form.purpose) + QLatin1Char('\n') + filling;
}

}  // namespace

RelatoriosWindow::RelatoriosWindow(Relatorios& reports,
                                   std::function<void(QWidget* parent)> openWorkMonth,
                                   QWidget* parent)
    : ScreenWindow(QStringLiteral("relatorios"), toQt(kRelatoriosTitle), parent),
      reports_(reports),
      openWorkMonth_(std::move(openWorkMonth)) {
    reports_.load();
    buildCommands();
    setBody({{buildKeywords(this)}, {buildForms(this), 1}, {buildEmployees(this)}});
    buildClosingButtons();
    employees_->refresh();
    showForms();
    showContext();
    forms_->takeFocus();
}

void RelatoriosWindow::buildCommands() {
    addCommand({"month", QStringLiteral("Mês Trabalho (Todos)"), Qt::CTRL | Qt::Key_M,
                "relatorios.month", [this] {
                    if (openWorkMonth_) openWorkMonth_(this);
                    reports_.load();
                    employees_->refresh();
                    showContext();
                }});
}

void RelatoriosWindow::buildClosingButtons() {
    addDefaultButton({"print", QStringLiteral("Imprimir I&ndividual"), QKeySequence::Print,
                      "relatorios.printOne", [this] { print(false); }})
        ->setToolTip(QStringLiteral("Para o funcionário selecionado (Ctrl+P)"));
    addClosingButton({"print", QStringLiteral("Imprimi&r"), Qt::CTRL | Qt::SHIFT | Qt::Key_P,
                      "relatorios.printAll", [this] { print(true); }})
        ->setToolTip(QStringLiteral(
            "Para todos os funcionários da lista, uma folha para cada um (Ctrl+Shift+P)"));
    addLeavingButton("relatorios.close");
}

QWidget* RelatoriosWindow::buildKeywords(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    part->setFixedWidth(part->fontMetrics().averageCharWidth() * kKeywordCharacters);
    QLabel* heading = look::heading(QStringLiteral("&Palavra"), part);
    column->addWidget(heading);
    keywords_ = new QListWidget(part);
    heading->setBuddy(keywords_);
    look::name(*keywords_, QStringLiteral("relatorios.keywords"), QStringLiteral("Palavra"));
    keywords_->addItem(QStringLiteral("(todos)"));
    for (const std::string_view keyword : kFormKeywords)
        keywords_->addItem(toQt(keyword));
    keywords_->setCurrentRow(0);
    connect(keywords_, &QListWidget::currentRowChanged, this, [this](int row) {
        reports_.narrowTo(row > 0 ? kFormKeywords.at(static_cast<std::size_t>(row) - 1)
                                  : std::string_view());
        showForms();
    });
    connect(keywords_, &QListWidget::activated, this, [this] { forms_->takeFocus(); });
    column->addWidget(keywords_, 1);
    return part;
}

QWidget* RelatoriosWindow::buildForms(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    forms_ = new RegisterList(
        QStringLiteral("relatorios.forms"), QStringLiteral("Relatório"),
        QStringLiteral("Pesquisa Relatório ..."),
        {QStringLiteral("Nº"), QStringLiteral("Título"), QStringLiteral("+ / −")}, part);
    forms_->setEmptyTexts(QStringLiteral("Nenhum relatório com esta palavra."), {});
    connect(forms_, &RegisterList::chosen, this, [this](std::size_t position) {
        reports_.choose(position);
        showChosen();
    });
    connect(forms_, &RegisterList::entered, this, [this] { print(false); });
    column->addWidget(forms_, 1);
    purpose_ = look::paragraph(QStringLiteral("relatorios.purpose"), look::TextSize::Body, part);
    purpose_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    purpose_->setMinimumHeight(purpose_->fontMetrics().lineSpacing() * kPurposeLines);
    column->addWidget(purpose_);
    return part;
}

QWidget* RelatoriosWindow::buildEmployees(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    part->setFixedWidth(part->fontMetrics().averageCharWidth() * kEmployeeCharacters);
    column->addWidget(look::heading(QStringLiteral("Funcionário"), part));
    employees_ =
        new EmployeePicker(reports_.list(),
                           {.screen = QStringLiteral("relatorios"),
                            .narrows = true,
                            .details = [this](const Employee& one) { return activityAt(one); }},
                           part);
    column->addWidget(employees_, 1);
    connect(employees_, &EmployeePicker::narrowed, this, &RelatoriosWindow::showContext);
    face_ = new OptionGroup(QStringLiteral("&Ficha:"), QStringLiteral("relatorios.face"), 1, part);
    face_->addOption(idOf(FormFace::Sheet), QStringLiteral("Uma folha"), QStringLiteral("sheet"));
    face_->addOption(idOf(FormFace::Front), QStringLiteral("Frente"), QStringLiteral("front"));
    face_->addOption(idOf(FormFace::Back), QStringLiteral("Verso"), QStringLiteral("back"));
    face_->choose(idOf(FormFace::Sheet));
    column->addWidget(face_);
    output_ =
        new OptionGroup(QStringLiteral("Saí&da:"), QStringLiteral("relatorios.output"), 2, part);
    output_->addOption(idOf(ReportOutput::Preview), QStringLiteral("&Visualizar"),
                       QStringLiteral("preview"));
    output_->addOption(idOf(ReportOutput::Printer), QStringLiteral("I&mprimir"),
                       QStringLiteral("printer"));
    output_->addOption(idOf(ReportOutput::PdfFile), QStringLiteral("&Gravar em PDF"),
                       QStringLiteral("pdf"));
    output_->choose(idOf(ReportOutput::Preview));
    column->addWidget(output_);
    return part;
}

void RelatoriosWindow::showForms() {
    std::vector<ListRow> rows;
    for (const CatalogueForm& form : reports_.forms())
        rows.push_back(rowOf(form));
    forms_->setRows(rows);
    forms_->mark(reports_.chosenPosition());
    showChosen();
}

void RelatoriosWindow::showChosen() {
    const CatalogueForm* form = reports_.chosen();
    purpose_->setText(form ? purposeOf(*form) : kNoneChosen);
    face_->setVisible(form && hasFaces(*form));
    setState(form ? toQt(padded(form->number, 2) + "-" + std::string(form->title)) : kNoneChosen);
}

void RelatoriosWindow::showContext() {
    const Company& company = reports_.company();
    setSubtitle(QStringLiteral("Avisos, recibos, termos e fichas, prontos para assinar"));
    setChips({toQt(company.code) + QLatin1Char(' ') + toQt(company.name),
              reports_.month() ? toQt(monthTitle(*reports_.month()))
                               : QStringLiteral("Sem mês de trabalho"),
              toQt(codeOf(reports_.list().shift()))});
}

QString RelatoriosWindow::activityAt(const Employee& employee) const {
    const auto position = reports_.list().positionOf(employee.code);
    return toQt(
        activityOf(employee, position ? reports_.list().marks(*position) : EmployeeMarks()));
}

void RelatoriosWindow::print(bool all) {
    Progress progress({QStringLiteral("relatorios.progress"), QStringLiteral("IMPRIMINDO"),
                       QStringLiteral("Folha %1 de %2")},
                      this);
    const FormRun run{
        .output = static_cast<ReportOutput>(output_->chosen()),
        .face = static_cast<FormFace>(face_->chosen()),
        .progress = [&progress](int done, int total) { return progress.show(done, total); },
        .choosePdf =
            [this](const std::string& name) {
                return toUtf8(choosePdfFile(this, QStringLiteral("Gravar em PDF"), toQt(name)));
            }};
    if (all)
        (void)reports_.printAll(run);
    else
        (void)reports_.printOne(employees_->selected(), run);
}

MenuEntry formsEntry(const Workplace& at, ReportEngine& engine) {
    return {
        .group = QStringLiteral("Pessoal"),
        .tile = {"forms", QStringLiteral("Relatórios"), "menu.forms.open", Qt::CTRL | Qt::Key_R},
        .needs = MenuNeeds::Company,
        .open =
            [at, &engine](QWidget* parent) {
                Relatorios reports(at, engine);
                RelatoriosWindow(
                    reports, [&at](QWidget* over) { openWorkMonth(at, over); }, parent)
                    .exec();
            },
        .state = [](const MonthProgress*) { return QStringLiteral("Avisos, recibos e fichas"); }};
}

}  // namespace winvrx
