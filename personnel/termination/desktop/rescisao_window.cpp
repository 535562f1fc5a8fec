#include "personnel/termination/desktop/rescisao_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

enum Column { kWords, kQuantity, kCredit, kDebit, kColumns };
constexpr int kTermCharacters = 44;
constexpr int kLinesInSight = 12;
constexpr int kLineCharacters = 80;
constexpr int kMemoLines = 6;

QString amountText(Money amount) {
    return toQt(moneyText(amount));
}

}  // namespace

RescisaoWindow::RescisaoWindow(const Rescisao& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("rescisao"), toQt(kTerminationTitle), parent), command_(command) {
    auto* terms = look::scrolled(buildTerms(this), this);
    terms->setFixedWidth(fontMetrics().averageCharWidth() * kTermCharacters);
    terms->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setBody({{terms}, {buildLines(this), 1}});
    buildCommands();
    const Employee& employee = command_.employee();
    setSubtitle(QStringLiteral("Cada linha tem a sua conta; nada é gravado aqui"));
    setChips({toQt(employee.code) + QLatin1Char(' ') + toQt(employee.name)});
    setState(QStringLiteral("Líquido a receber: R$ ") + amountText(command_.sheet()->net));
    lines_->setCurrentItem(lines_->topLevelItem(0));
    lines_->setFocus();
}

QWidget* RescisaoWindow::buildTerms(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Rescisão registrada"), part));
    const auto add = [&](const std::string& text, look::TextSize size) {
        QLabel* label = look::label(toQt(text), size, part);
        label->setWordWrap(true);
        column->addWidget(label);
        return label;
    };
    for (const Rescisao::Term& term : command_.terms()) {
        add(term.name + ": " + term.value, look::TextSize::Body);
        if (!term.rule.empty()) add(term.rule, look::TextSize::Hint);
    }
    for (const std::string& remark : command_.sheet()->remarks)
        look::setTint(*add("⚠ " + remark, look::TextSize::Hint), look::Tint::Warning);
    column->addStretch();
    return part;
}

QWidget* RescisaoWindow::buildLines(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    lines_ = look::table(QStringLiteral("rescisao.lines"), QStringLiteral("Verbas"),
                         {QStringLiteral("Verba"), QStringLiteral("Quantidade"),
                          QStringLiteral("Créditos (R$)"), QStringLiteral("Descontos (R$)")},
                         part);
    lines_->header()->setSectionResizeMode(kWords, QHeaderView::Stretch);
    lines_->setMinimumSize(lines_->fontMetrics().averageCharWidth() * kLineCharacters,
                           lines_->fontMetrics().height() * kLinesInSight);
    addLines(command_.sheet()->credits, "", kCredit);
    addLines(command_.sheet()->debits, "", kDebit);
    addTotals();
    addLines(command_.sheet()->deposits, "Depósito: ", kCredit);
    for (const int at : {kQuantity, kCredit, kDebit})
        lines_->resizeColumnToContents(at);
    column->addWidget(lines_, 1);
    column->addWidget(look::heading(QStringLiteral("Memória de cálculo"), part));
    memo_ = look::label(QString(), look::TextSize::Body, part);
    look::name(*memo_, QStringLiteral("rescisao.memo"), QStringLiteral("Memória de cálculo"));
    memo_->setWordWrap(true);
    memo_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    memo_->setMinimumHeight(memo_->fontMetrics().height() * kMemoLines);
    memo_->setAlignment(Qt::AlignTop);
    column->addWidget(memo_);
    connect(lines_, &QTreeWidget::currentItemChanged, this, &RescisaoWindow::showMemo);
    return part;
}

void RescisaoWindow::addLines(const std::vector<TerminationLine>& lines, const char* group,
                              int column) {
    for (const TerminationLine& line : lines) {
        auto* item = new QTreeWidgetItem(lines_);
        item->setText(kWords, QString::fromUtf8(group) + toQt(line.words));
        item->setText(kQuantity, toQt(line.quantity));
        item->setText(column, amountText(line.amount));
        item->setTextAlignment(kQuantity, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        item->setFont(column, look::fixedFont());
        shown_.push_back(&line);
    }
}

void RescisaoWindow::addTotals() {
    const TerminationSheet& sheet = *command_.sheet();
    auto* total = new QTreeWidgetItem(lines_);
    total->setText(kWords, QStringLiteral("TOTAIS"));
    total->setText(kCredit, amountText(sheet.gross));
    total->setText(kDebit, amountText(sheet.deductions));
    auto* net = new QTreeWidgetItem(lines_);
    net->setText(kWords, QStringLiteral("LÍQUIDO A RECEBER"));
    net->setText(kCredit, amountText(sheet.net));
    for (QTreeWidgetItem* item : {total, net}) {
        for (int at = 0; at < kColumns; ++at) {
            QFont bold = at >= kCredit ? look::fixedFont() : font();
            bold.setBold(true);
            item->setFont(at, bold);
        }
        for (const int at : {kCredit, kDebit})
            item->setTextAlignment(at, Qt::AlignRight | Qt::AlignVCenter);
        shown_.push_back(nullptr);
    }
}

void RescisaoWindow::buildCommands() {
    addDefaultButton({"print", QStringLiteral("&Imprimir Cálculo"), QKeySequence::Print,
                      "rescisao.print", [this] { (void)command_.preview(); }});
    addLeavingButton("rescisao.close");
}

void RescisaoWindow::showMemo() {
    const int row = lines_->indexOfTopLevelItem(lines_->currentItem());
    const TerminationLine* line = row < 0 ? nullptr : shown_.at(static_cast<std::size_t>(row));
    QStringList text;
    if (line)
        for (const MemoLine& one : line->memo)
            text << toQt(memoText(one));
    memo_->setText(line ? text.join(QLatin1Char('\n'))
                        : QStringLiteral("Escolha uma verba para ver a sua conta."));
}

void openTermination(const Workplace& at, ReportEngine& engine,
                     const std::filesystem::path& legalFolder, const Employee& employee,
                     QWidget* parent) {
    Rescisao command(at, engine, legalFolder, employee);
    if (command.load()) RescisaoWindow(command, parent).exec();
}

}  // namespace winvrx
