#include "output/labels/desktop/etiquetas_window.h"

#include "foundation/register/company_register.h"
#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/option_group.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/cards/desktop/output_choice.h"
#include "output/labels/criar_etiqueta.h"
#include "output/labels/desktop/criar_etiqueta_window.h"
#include "output/labels/desktop/estoque_window.h"
#include "output/labels/desktop/sheet_view.h"
#include "report/desktop/calibration_window.h"
#include "report/desktop/impressorar_window.h"
#include "report/print_calibration.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr std::size_t kDateWidth = 10;
constexpr std::size_t kCopiesWidth = 2;
constexpr int kListCharacters = 38;

constexpr FieldKind kDayField{.hint = dateHint, .completed = completedDate};

}  // namespace

EtiquetasWindow::EtiquetasWindow(Etiquetas& labels, EtiquetasWindowDesk desk, QWidget* parent)
    : ScreenWindow(QStringLiteral("etiquetas"), toQt(kEtiquetasTitle), parent),
      labels_(labels),
      desk_(std::move(desk)) {
    labels_.load();
    buildCommands();
    setBody({{buildPeople(this), 3}, {buildTexts(this), 3}, {buildSheet(this), 4}});
    buildClosingButtons();
    connectAll();
    people_->refresh();
    showTexts();
    showContext();
    resize(look::kWindowSize);
    texts_->setFocus();
}

void EtiquetasWindow::buildCommands() {
    addCommand({"edit", QStringLiteral("Textos das Etiquetas"), Qt::CTRL | Qt::Key_E,
                "etiquetas.edit", [this] { visit(desk_.openTexts); }});
    addCommand({"printer-settings", QStringLiteral("Selecionar Impressora"), Qt::CTRL | Qt::Key_R,
                "etiquetas.printer", [this] { visit(desk_.openPrinters); }});
    addCommand({"ruler", QStringLiteral("Escala e Calibração"), Qt::CTRL | Qt::Key_J,
                "etiquetas.calibration", [this] { visit(desk_.openCalibration); }});
    addCommand({"stock", QStringLiteral("Controle de Estoque"), Qt::CTRL | Qt::Key_K,
                "etiquetas.stock", [this] { visit(desk_.openStock); }});
    addCommand({"align", QStringLiteral("Imprimir Teste"), Qt::CTRL | Qt::Key_T, "etiquetas.frames",
                [this] { print(&Etiquetas::printFrames); }})
        ->setToolTip(QStringLiteral("Molduras em papel comum, para comparar contra a luz"));
}

void EtiquetasWindow::buildClosingButtons() {
    addDefaultButton({"print", QStringLiteral("&Imprimir"), QKeySequence::Print, "etiquetas.print",
                      [this] { print(&Etiquetas::print); }});
    addLeavingButton("etiquetas.close");
}

QWidget* EtiquetasWindow::buildPeople(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    people_ = new EmployeePicker(
        labels_.list(), {.screen = QStringLiteral("etiquetas"), .narrows = true, .ticks = true},
        part);
    people_->setMinimumWidth(people_->fontMetrics().averageCharWidth() * kListCharacters);
    column->addWidget(people_, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGap);
    const auto add = [&](const QString& text, const char* name, bool on) {
        const auto tickShown = [this, on] {
            labels_.list().tickShown(on);
            people_->refresh();
            showContext();
        };
        row->addWidget(newButton({"", text, {}, name, tickShown}, part));
    };
    add(QStringLiteral("Marcar &todos"), "etiquetas.tickAll", true);
    add(QStringLiteral("Desmarca&r todos"), "etiquetas.untickAll", false);
    column->addLayout(row);
    return part;
}

QWidget* EtiquetasWindow::buildTexts(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    kind_ = new OptionGroup(
        QStringLiteral("Etiquetas:"), QStringLiteral("etiquetas.kind"), 2,
        {{LabelKind::Annotations, QStringLiteral("Anotações da &CTPS"), "annotations"},
         {LabelKind::Addresses, QStringLiteral("&Nome e endereço"), "addresses"}},
        part);
    kind_->choose(labels_.choices().kind);
    column->addWidget(kind_);
    QLabel* heading = look::heading(QStringLiteral("Te&xtos"), part);
    column->addWidget(heading);
    texts_ = new QListWidget(part);
    look::name(*texts_, QStringLiteral("etiquetas.texts"), QStringLiteral("Textos"));
    heading->setBuddy(texts_);
    column->addWidget(texts_, 1);
    QLabel* note = look::label(
        QStringLiteral("ESPAÇO marca. Sem funcionário marcado, a anotação sai com os espaços em "
                       "branco; com funcionários, uma para cada um."),
        look::TextSize::Hint, part);
    note->setWordWrap(true);
    column->addWidget(note);
    return part;
}

QWidget* EtiquetasWindow::buildSheet(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    sheets_ =
        new OptionGroup(QStringLiteral("Folha de etiquetas:"), QStringLiteral("etiquetas.sheet"),
                        static_cast<int>(kLabelSheets.size()), part);
    for (std::size_t at = 0; at < kLabelSheets.size(); ++at)
        sheets_->addOption(static_cast<int>(at), toQt(kLabelSheets[at].name),
                           QString::number(static_cast<qulonglong>(at + 1)));
    sheets_->choose(labels_.choices().sheet);
    column->addWidget(sheets_);
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGroupGap);
    auto* drawn = new QVBoxLayout;
    drawn->addWidget(look::heading(QStringLiteral("Primeira etiqueta livre"), part));
    sheet_ = new SheetView(QStringLiteral("etiquetas.first"), part);
    drawn->addWidget(sheet_, 1);
    row->addLayout(drawn, 1);
    row->addWidget(buildNumbers(part));
    column->addLayout(row, 1);
    return part;
}

QWidget* EtiquetasWindow::buildNumbers(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    copies_ = new Field({.caption = QStringLiteral("Có&pias de cada"),
                         .objectName = QStringLiteral("etiquetas.copies"),
                         .width = kCopiesWidth,
                         .kind = kNumberField},
                        part);
    copies_->setStored(std::to_string(labels_.choices().copies));
    column->addWidget(copies_);
    day_ = new Field({.caption = QStringLiteral("D&ata das anotações"),
                      .objectName = QStringLiteral("etiquetas.day"),
                      .width = kDateWidth,
                      .kind = kDayField},
                     part);
    day_->setStored(labels_.choices().day);
    day_->input()->setProperty("lastField", true);
    column->addWidget(day_);
    output_ =
        new OutputChoice(QStringLiteral("etiquetas.output"), part, OutputChoice::Pdf::OneFile);
    output_->showOutput({.output = labels_.choices().output});
    column->addWidget(output_);
    column->addStretch();
    return part;
}

void EtiquetasWindow::connectAll() {
    connect(people_, &EmployeePicker::narrowed, this, &EtiquetasWindow::showContext);
    connect(people_, &EmployeePicker::ticked, this, &EtiquetasWindow::showContext);
    connect(texts_, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        labels_.tick(static_cast<std::size_t>(texts_->row(item)),
                     item->checkState() == Qt::Checked);
        showContext();
    });
    connect(kind_, &OptionGroup::picked, this, [this](int kind) {
        labels_.choices().kind = static_cast<LabelKind>(kind);
        showContext();
    });
    connect(sheets_, &OptionGroup::picked, this, [this](int sheet) {
        labels_.choices().sheet = static_cast<std::size_t>(sheet);
        labels_.choices().first = 0;
        showContext();
    });
    connect(sheet_, &SheetView::picked, this, [this](std::size_t place) {
        labels_.choices().first = place;
        showContext();
    });
    connect(copies_, &Field::edited, this, &EtiquetasWindow::takeNumbers);
    connect(day_, &Field::edited, this, &EtiquetasWindow::takeNumbers);
    connect(day_, &Field::finished, this, &EtiquetasWindow::takeNumbers);
}

void EtiquetasWindow::takeNumbers() {
    const auto copies = parseWholeNumber(toUtf8(copies_->text()), 1, kMostLabelCopies);
    labels_.choices().copies = copies.value_or(1);
    copies_->setFinding(copies ? QString() : QStringLiteral("De 1 a 99; sem número sai uma."));
    labels_.choices().day = parseDate(day_->stored()) ? day_->stored() : std::string();
    showContext();
}

void EtiquetasWindow::visit(const std::function<void(QWidget*)>& screen) {
    if (screen) screen(this);
    labels_.load();
    people_->refresh();
    showTexts();
    showContext();
}

void EtiquetasWindow::print(bool (Etiquetas::*give)(const PrintRun& run)) {
    labels_.choices().output = output_->choices().output;
    Progress progress({QStringLiteral("etiquetas.progress"), toQt(kLabelProgressTitle),
                       QStringLiteral("Folha %1 de %2")},
                      this);
    (void)(labels_.*give)(pdfAsking(this, &progress));
}

void EtiquetasWindow::showTexts() {
    const QSignalBlocker quiet(texts_);
    const int row = texts_->currentRow();
    texts_->clear();
    for (std::size_t at = 0; at < labels_.texts().size(); ++at) {
        const LabelText& text = labels_.texts()[at];
        auto* item = new QListWidgetItem(toQt(text.number + " " + text.title), texts_);
        item->setToolTip(toQt(shownLabelText(text.text)));
        item->setCheckState(labels_.isTicked(at) ? Qt::Checked : Qt::Unchecked);
    }
    texts_->setCurrentRow(std::clamp(row, 0, std::max(texts_->count() - 1, 0)));
}

void EtiquetasWindow::showContext() {
    const LabelRun run = labels_.labels();
    const std::size_t count = run.labels * run.copies;
    texts_->setEnabled(labels_.choices().kind == LabelKind::Annotations);
    sheet_->showSheet(run.sheet, run.first, count);
    setSubtitle(toQt(run.sheet.name));
    setChips({toQt(labels_.company().code) + QLatin1Char(' ') + toQt(labels_.company().name),
              toQt(codeOf(labels_.list().shift()))});
    setState(QStringList{toQt(countOf(count, "etiqueta")),
                         toQt(countOf(count == 0 ? 0 : run.sheets(), "folha")),
                         labels_.printerName().empty() ? QStringLiteral("impressora padrão")
                                                       : toQt(labels_.printerName())}
                 .join(QStringLiteral(" · ")));
}

namespace {

void openTexts(const Workplace& at, QWidget* parent) {
    if (!at.session.company) return at.person.tell(noCompany(at));
    CriarEtiqueta texts(at);
    CriarEtiquetaWindow(texts, parent).exec();
}

void openCalibration(const Workplace& at, const CardPrintingDesk& desk, Etiquetas& labels,
                     QWidget* parent) {
    PrintCalibration calibration(at, desk.engine, "Ajuste de Impressão");
    if (!attempt(at, incorrectData(), [&] {
            calibration.load(labels.scaleKey(), {.printerName = labels.printerName()});
        }))
        return;
    CalibrationWindow(calibration, toQt(labels.sheet().name), QStringLiteral("nesta folha"), parent)
        .exec();
}

void openLabels(const Workplace& at, const CardPrintingDesk& desk, QWidget* parent) {
    Etiquetas labels(at, {desk.browser, desk.engine, desk.printers}, kMenuLabelSheet);
    const EtiquetasWindowDesk screens{
        .openTexts = [&](QWidget* over) { openTexts(at, over); },
        .openPrinters = [&](QWidget* over) { openPrinters(at, desk.printers, over); },
        .openCalibration = [&](QWidget* over) { openCalibration(at, desk, labels, over); },
        .openStock = [&](QWidget* over) { EstoqueWindow(labels, over).exec(); }};
    EtiquetasWindow(labels, screens, parent).exec();
}

}  // namespace

MenuEntry labelsEntry(const Workplace& at, const CardPrintingDesk& desk) {
    return {.group = QStringLiteral("Ferramentas"),
            .tile = {"labels", QStringLiteral("Eti&quetas"), "menu.labels.open"},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openLabels(at, desk, parent); },
            .state = [](const MonthProgress*) { return QStringLiteral("CTPS e endereços"); }};
}

}  // namespace winvrx
