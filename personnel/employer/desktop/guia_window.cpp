#include "personnel/employer/desktop/guia_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kMemoLines = 6;

QStringList headings() {
    QStringList titles = {QStringLiteral("Funcionário")};
    for (const GuideFigure& figure : kGuideFigures)
        titles << toQt(figure.name);
    return titles << QStringLiteral("Total");
}

}  // namespace

GuiaWindow::GuiaWindow(const DomesticMonth& month, QWidget* parent)
    : ScreenWindow(QStringLiteral("guia"), toQt(kGuideTitle), parent), month_(month) {
    setBody(buildGuide());
    buildCommands();
    setSubtitle(QStringLiteral("Soma das folhas gravadas do mês, para conferir a guia (DAE)"));
    setChips({toQt(monthTitle(month_.month())),
              QStringLiteral("Pagamento até ") + toQt(dateText(month_.due()))});
    QString state = QStringLiteral("A recolher: R$ ") + toQt(moneyText(month_.total().total()));
    if (!month_.unrecorded().empty())
        state += QStringLiteral(" · %1 sem folha gravada").arg(month_.unrecorded().size());
    setState(state);
    lines_->setCurrentItem(lines_->topLevelItem(0));
    lines_->setFocus();
}

QWidget* GuiaWindow::buildGuide() {
    const auto [body, column] = look::body(this);
    lines_ = look::table(QStringLiteral("guia.lines"), QStringLiteral("Guia"), headings(), body);
    for (const GuideLine& line : month_.lines())
        addRow(line.employee, line.amounts, false);
    addRow("TOTAL DA GUIA", month_.total(), true);
    for (int at = 1; at < lines_->columnCount(); ++at)
        lines_->resizeColumnToContents(at);
    lines_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    column->addWidget(lines_, 1);
    column->addWidget(look::heading(QStringLiteral("Memória de cálculo"), body));
    memo_ = look::paragraph(QStringLiteral("guia.memo"), look::TextSize::Body, body);
    memo_->setAlignment(Qt::AlignTop);
    memo_->setMinimumHeight(memo_->fontMetrics().height() * kMemoLines);
    column->addWidget(memo_);
    connect(lines_, &QTreeWidget::currentItemChanged, this, &GuiaWindow::showMemo);
    return body;
}

void GuiaWindow::addRow(const std::string& name, const GuideAmounts& amounts, bool isTotal) {
    QStringList cells = {toQt(name)};
    for (const GuideFigure& figure : kGuideFigures)
        cells << toQt(moneyText(amounts.*figure.member));
    cells << toQt(moneyText(amounts.total()));
    auto* item = new QTreeWidgetItem(lines_, cells);
    for (int at = 0; at < cells.size(); ++at) {
        QFont shown = at == 0 ? font() : look::fixedFont();
        shown.setBold(isTotal);
        item->setFont(at, shown);
        if (at > 0) item->setTextAlignment(at, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void GuiaWindow::buildCommands() {
    addDefaultButton({"print", QStringLiteral("&Imprimir Guia"), QKeySequence::Print, "guia.print",
                      [this] { emit pageRequested(); }});
    addLeavingButton("guia.close");
}

void GuiaWindow::showMemo() {
    const int row = lines_->indexOfTopLevelItem(lines_->currentItem());
    QStringList text;
    if (row >= 0 && static_cast<std::size_t>(row) < month_.lines().size())
        for (const MemoLine& line : month_.lines()[static_cast<std::size_t>(row)].memo)
            text << toQt(memoText(line));
    memo_->setText(text.join(QLatin1Char('\n')));
}

}  // namespace winvrx
