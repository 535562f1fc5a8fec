#include "output/cards/desktop/cartao_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "foundation/widgets/desktop/search_box.h"
#include "output/cards/desktop/print_choices_box.h"
#include "report/desktop/pdf_file_dialog.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QToolButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kHeaderLines = 6;
constexpr int kListCharacters = 46;

QString countText(std::size_t cards) {
    return cards == 1 ? QStringLiteral("1 cartão")
                      : QStringLiteral("%1 cartões").arg(static_cast<qulonglong>(cards));
}

QString listText(const Employee& employee) {
    return toQt(employee.code) + QStringLiteral("   ") + toQt(employee.name);
}

}  // namespace

CartaoWindow::CartaoWindow(Cartao& cartao, CartaoWindowDesk desk, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartao"), toQt(kCartaoTitle), parent),
      cartao_(cartao),
      desk_(std::move(desk)) {
    cartao_.load();
    buildCommands();
    setBody(buildBody());
    buildClosingButtons();
    connectAll();
    search_->serve(list_);
    showList();
    list_->setFocus();
}

void CartaoWindow::buildCommands() {
    struct Command {
        const char* icon;
        QString text;
        QKeySequence key;
        const char* name;
        const std::function<void(QWidget*)>& screen;
    };
    const Command commands[] = {{"stock", QStringLiteral("Tipo de Cartão"), Qt::CTRL | Qt::Key_T,
                                 "stock", desk_.openStocks},
                                {"month", QStringLiteral("Mês Trabalho (Todos)"),
                                 Qt::CTRL | Qt::Key_M, "month", desk_.openWorkMonth},
                                {"printer-settings", QStringLiteral("Selecionar Impressora"),
                                 Qt::CTRL | Qt::Key_R, "printer", desk_.openPrinters},
                                {"align", QStringLiteral("Ajuste de Impressão"),
                                 Qt::CTRL | Qt::Key_J, "alignment", desk_.openAlignment}};
    for (const Command& one : commands) {
        QToolButton* button = addCommand(QLatin1String(one.icon), one.text, one.key,
                                         QStringLiteral("cartao.") + QLatin1String(one.name));
        connect(button, &QToolButton::clicked, this,
                [this, &screen = one.screen] { visit(screen); });
    }
}

void CartaoWindow::buildClosingButtons() {
    QPushButton* one =
        addClosingButton(QStringLiteral("&Imprimir >"), QStringLiteral("cartao.printOne"));
    one->setIcon(look::icon(QStringLiteral("print")));
    one->setToolTip(QStringLiteral("Imprimir Somente Um Cartão Selecionado"));
    one->setDefault(true);
    connect(one, &QPushButton::clicked, this, &CartaoWindow::printOne);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, one,
            &QPushButton::click);
    QPushButton* all =
        addClosingButton(QStringLiteral("Imprimi&r >>"), QStringLiteral("cartao.printAll"));
    all->setIcon(look::icon(QStringLiteral("print")));
    all->setToolTip(QStringLiteral("Imprimir Todos os Cartão da Lista"));
    connect(all, &QPushButton::clicked, this, &CartaoWindow::printAll);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P), this),
            &QShortcut::activated, all, &QPushButton::click);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("cartao.close"));
    connect(close, &QPushButton::clicked, this, &CartaoWindow::reject);
}

QWidget* CartaoWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    row->addWidget(buildList(body), 2);
    auto* right = new QVBoxLayout;
    right->setSpacing(look::kGroupGap);
    right->addWidget(buildPreview(body));
    choices_ = new PrintChoicesBox(cartao_.choices(), body);
    right->addWidget(choices_);
    right->addStretch();
    row->addLayout(right, 3);
    return body;
}

QWidget* CartaoWindow::buildList(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    shift_ = new QComboBox(part);
    look::name(*shift_, QStringLiteral("cartao.shift"), QStringLiteral("Turno"));
    for (const ShiftFilter filter : kMenuShiftFilters)
        shift_->addItem(toQt(codeOf(filter)), static_cast<int>(filter));
    shift_->setCurrentIndex(shift_->findData(static_cast<int>(cartao_.filter())));
    auto* shiftLabel = new QLabel(QStringLiteral("T&urno:"), part);
    shiftLabel->setBuddy(shift_);
    auto* shiftRow = new QHBoxLayout;
    shiftRow->addWidget(shiftLabel);
    shiftRow->addWidget(shift_, 1);
    column->addLayout(shiftRow);
    search_ = new SearchBox(QStringLiteral("cartao.search"),
                            QStringLiteral("Pesquisa Funcionário ..."), part);
    column->addWidget(search_);
    list_ = new QListWidget(part);
    look::name(*list_, QStringLiteral("cartao.employees"), QStringLiteral("Funcionários"));
    list_->setMinimumWidth(list_->fontMetrics().averageCharWidth() * kListCharacters);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    column->addWidget(list_, 1);
    emptyList_ = look::label(QString(), look::TextSize::Hint, part);
    emptyList_->setObjectName(QStringLiteral("cartao.emptyList"));
    emptyList_->setWordWrap(true);
    column->addWidget(emptyList_);
    return part;
}

QWidget* CartaoWindow::buildPreview(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Cabeçalho do cartão"), part));
    auto* panel = new QFrame(part);
    look::setRole(*panel, "panel");
    auto* inside = new QVBoxLayout(panel);
    look::layOutBody(*inside);
    header_ = look::label(QString(), look::TextSize::Body, panel);
    header_->setObjectName(QStringLiteral("cartao.header"));
    header_->setTextFormat(Qt::PlainText);
    header_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    header_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    header_->setWordWrap(true);
    header_->setMinimumHeight(header_->fontMetrics().lineSpacing() * kHeaderLines);
    inside->addWidget(header_);
    headerHint_ = look::label(QString(), look::TextSize::Hint, panel);
    headerHint_->setObjectName(QStringLiteral("cartao.headerHint"));
    inside->addWidget(headerHint_);
    column->addWidget(panel);
    return part;
}

void CartaoWindow::connectAll() {
    connect(this, &ScreenWindow::helpRequested, this, [this] { cartao_.help(); });
    connect(choices_, &PrintChoicesBox::changed, this, [this] {
        cartao_.choices() = choices_->choices();
        showPreview();
        showContext();
    });
    connect(shift_, &QComboBox::currentIndexChanged, this, [this] {
        cartao_.setFilter(static_cast<ShiftFilter>(shift_->currentData().toInt()));
        showList();
    });
    connect(search_, &SearchBox::textChanged, this, [this](const QString& text) {
        cartao_.setSearch(toUtf8(text));
        showList();
    });
    connect(list_, &QListWidget::currentRowChanged, this, &CartaoWindow::showPreview);
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
    (void)cartao_.printOne(selected(), runWith(nullptr));
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
    PrintRun run{
        .choosePdf = [this](const std::string& proposedName) { return choosePdf(proposedName); },
        .choosePdfFolder = [this] { return choosePdfFolder(); }};
    if (progress)
        run.progress = [progress](int done, int total) { return progress->show(done, total); };
    return run;
}

std::string CartaoWindow::choosePdf(const std::string& proposedName) {
    return toUtf8(choosePdfFile(this, QStringLiteral("Gravar em PDF"), toQt(proposedName)));
}

std::string CartaoWindow::choosePdfFolder() {
    return toUtf8(QFileDialog::getExistingDirectory(
        this, QStringLiteral("Pasta dos arquivos PDF"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
}

void CartaoWindow::showList() {
    const QString former = list_->currentItem() ? list_->currentItem()->text() : QString();
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        for (const Employee& employee : cartao_.employees())
            list_->addItem(listText(employee));
        const auto same = list_->findItems(former, Qt::MatchExactly);
        list_->setCurrentRow(same.isEmpty() ? 0 : list_->row(same.front()));
    }
    const bool empty = cartao_.employees().empty();
    emptyList_->setVisible(empty);
    emptyList_->setText(search_->text().isEmpty()
                            ? QStringLiteral("Nenhum funcionário neste turno. Escolha outro turno "
                                             "ou inclua funcionários no cadastro.")
                            : QStringLiteral("Nenhum funcionário com este nome ou código."));
    showPreview();
    showContext();
}

void CartaoWindow::showPreview() {
    const QString text = toQt(cartao_.headerPreview(selected()));
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
              toQt(codeOf(cartao_.filter()))});
    setState(QStringList{countText(cartao_.employees().size()),
                         stock.isEmpty() ? QStringLiteral("sem tipo de cartão") : stock,
                         central ? QStringLiteral("Central") : QStringLiteral("Lateral"), printer}
                 .join(QStringLiteral(" · ")));
}

std::optional<std::size_t> CartaoWindow::selected() const {
    const int row = list_->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

}  // namespace winvrx
