#include "output/cards/desktop/cartao_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/cards/desktop/output_choice.h"
#include "output/cards/desktop/print_choices_box.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kHeaderLines = 6;
constexpr int kListCharacters = 46;

}  // namespace

CartaoWindow::CartaoWindow(Cartao& cartao, CartaoWindowDesk desk, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartao"), toQt(kCartaoTitle), parent),
      cartao_(cartao),
      desk_(std::move(desk)) {
    cartao_.load();
    buildCommands();
    setBody({{buildEmployees(), 2}, {buildPage(), 3}});
    buildClosingButtons();
    connectAll();
    showList();
    employees_->focusList();
}

void CartaoWindow::buildCommands() {
    addCommand({"stock", QStringLiteral("Tipo de Cartão"), Qt::CTRL | Qt::Key_T, "cartao.stock",
                [this] { visit(desk_.openStocks); }});
    addCommand({"month", QStringLiteral("Mês Trabalho (Todos)"), Qt::CTRL | Qt::Key_M,
                "cartao.month", [this] { visit(desk_.openWorkMonth); }});
    addCommand({"printer-settings", QStringLiteral("Selecionar Impressora"), Qt::CTRL | Qt::Key_R,
                "cartao.printer", [this] { visit(desk_.openPrinters); }});
    addCommand({"align", QStringLiteral("Ajuste de Impressão"), Qt::CTRL | Qt::Key_J,
                "cartao.alignment", [this] { visit(desk_.openAlignment); }});
}

void CartaoWindow::buildClosingButtons() {
    addDefaultButton({"print", QStringLiteral("&Imprimir >"), QKeySequence::Print,
                      "cartao.printOne", [this] { printOne(); }})
        ->setToolTip(QStringLiteral("Imprimir Somente Um Cartão Selecionado"));
    addClosingButton({"print", QStringLiteral("Imprimi&r >>"), Qt::CTRL | Qt::SHIFT | Qt::Key_P,
                      "cartao.printAll", [this] { printAll(); }})
        ->setToolTip(QStringLiteral("Imprimir Todos os Cartão da Lista"));
    addLeavingButton("cartao.close");
}

QWidget* CartaoWindow::buildEmployees() {
    employees_ = new EmployeePicker(cartao_.list(),
                                    {.screen = QStringLiteral("cartao"), .narrows = true}, this);
    employees_->setMinimumWidth(employees_->fontMetrics().averageCharWidth() * kListCharacters);
    return employees_;
}

QWidget* CartaoWindow::buildPage() {
    const auto [part, column] = look::part(this);
    column->setSpacing(look::kGroupGap);
    column->addWidget(buildPreview(part));
    choices_ = new PrintChoicesBox(cartao_.choices(), part);
    column->addWidget(choices_);
    column->addStretch();
    return part;
}

QWidget* CartaoWindow::buildPreview(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    column->addWidget(look::heading(QStringLiteral("Cabeçalho do cartão"), part));
    auto* panel = new QFrame(part);
    look::setRole(*panel, "panel");
    auto* inside = new QVBoxLayout(panel);
    look::layOutBody(*inside);
    header_ = look::line(QStringLiteral("cartao.header"), look::TextSize::Body, panel);
    header_->setTextFormat(Qt::PlainText);
    header_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    header_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    header_->setWordWrap(true);
    header_->setMinimumHeight(header_->fontMetrics().lineSpacing() * kHeaderLines);
    inside->addWidget(header_);
    headerHint_ = look::line(QStringLiteral("cartao.headerHint"), look::TextSize::Hint, panel);
    inside->addWidget(headerHint_);
    column->addWidget(panel);
    return part;
}

void CartaoWindow::connectAll() {
    connect(choices_, &PrintChoicesBox::changed, this, [this] {
        cartao_.choices() = choices_->choices();
        showPreview();
        showContext();
    });
    connect(employees_, &EmployeePicker::narrowed, this, [this] {
        showPreview();
        showContext();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this, &CartaoWindow::showPreview);
    connect(employees_, &EmployeePicker::opened, this, &CartaoWindow::printOne);
}

void CartaoWindow::visit(const std::function<void(QWidget*)>& screen) {
    (void)cartao_.remember();
    if (screen) screen(this);
    cartao_.load();
    choices_->showChoices(cartao_.choices());
    showList();
}

bool CartaoWindow::mayClose() {
    (void)cartao_.remember();
    return true;
}

void CartaoWindow::printOne() {
    (void)cartao_.printOne(employees_->selected(), runWith(nullptr));
}

void CartaoWindow::printAll() {
    if (cartao_.choices().mode == PrintMode::OneAtATime) {
        (void)cartao_.printAll(runWith(nullptr));
        return;
    }
    Progress progress({QStringLiteral("cartao.progress"), QStringLiteral("IMPRIMINDO"),
                       QStringLiteral("Cartão %1 de %2")},
                      this);
    (void)cartao_.printAll(runWith(&progress));
}

PrintRun CartaoWindow::runWith(Progress* progress) {
    PrintRun run = pdfAsking(this, progress);
    run.chooseStock = [this] { visit(desk_.openStocks); };
    return run;
}

void CartaoWindow::showList() {
    employees_->refresh();
    showPreview();
    showContext();
}

void CartaoWindow::showPreview() {
    const QString text = toQt(cartao_.headerPreview(employees_->selected()));
    header_->setEnabled(!text.isEmpty() && cartao_.choices().printer.printHeader);
    if (!text.isEmpty())
        header_->setText(text);
    else if (!cartao_.month())
        header_->setText(QStringLiteral("Escolha o mês de trabalho em \"Mês Trabalho (Todos)\"."));
    else
        header_->setText(QStringLiteral("Selecione um funcionário na lista."));
    headerHint_->setText(cartao_.choices().printer.printHeader
                             ? QString()
                             : QStringLiteral("Não será impresso: vale o cabeçalho do cartão."));
}

void CartaoWindow::showContext() {
    const QString stock = toQt(trimmed(cartao_.stockLabel()));
    const QString printer = cartao_.printerName().empty() ? QStringLiteral("impressora padrão")
                                                          : toQt(cartao_.printerName());
    const bool central = cartao_.choices().printer.tray == TrayPosition::Central;
    setSubtitle(stock.isEmpty() ? QStringLiteral("Nenhum tipo de cartão escolhido")
                                : QStringLiteral("Cartão ") + stock);
    setChips({toQt(cartao_.company().code) + QLatin1Char(' ') + toQt(cartao_.company().name),
              cartao_.month() ? toQt(monthTitle(*cartao_.month()))
                              : QStringLiteral("Sem mês de trabalho"),
              toQt(codeOf(cartao_.list().shift()))});
    setState(QStringList{toQt(countOf(cartao_.list().shown().size(), "cartão", "cartões")),
                         stock.isEmpty() ? QStringLiteral("sem tipo de cartão") : stock,
                         central ? QStringLiteral("Central") : QStringLiteral("Lateral"), printer}
                 .join(QStringLiteral(" · ")));
}

}  // namespace winvrx
