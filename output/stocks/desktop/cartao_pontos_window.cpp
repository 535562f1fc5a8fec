#include "output/stocks/desktop/cartao_pontos_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "output/stocks/desktop/alignment_pad.h"
#include "report/desktop/scale_panel.h"

#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

enum Heading { kStockColumn, kVerticalColumn, kHorizontalColumn };

constexpr int kStockCharacters = 20;

QWidget* framed(QWidget* part) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    look::layOutBody(*column);
    column->addWidget(part);
    column->addStretch();
    return page;
}

}  // namespace

CartaoPontosWindow::CartaoPontosWindow(CartaoPontos& screen, LayoutSource layouts, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaoPontos"), toQt(kCartaoPontosTitle), parent),
      screen_(screen) {
    screen_.load();
    buildCommands();
    setBody({{buildEntries(this)},
             {buildSample(std::move(layouts), this), 1},
             {buildAdjustments(this)}});
    addLeavingButton("cartaoPontos.close", QStringLiteral("Fecha&r"));
    connectAll();
    resize(look::kWindowSize);
    showEntries();
    showEntry();
    entries_->setFocus();
}

void CartaoPontosWindow::buildCommands() {
    addCommand({"print", QStringLiteral("Imprimir Teste"), QKeySequence::Print, "cartaoPontos.test",
                [this] { printTest(); }});
    addCommand({"restore", QStringLiteral("Reset Alinhamentos"), Qt::CTRL | Qt::Key_R,
                "cartaoPontos.reset", [this] { reset(); }});
}

QWidget* CartaoPontosWindow::buildEntries(QWidget* parent) {
    entries_ = look::table(QStringLiteral("cartaoPontos.entries"), QStringLiteral("Alinhamentos"),
                           {QStringLiteral("Tipo de cartão"), QStringLiteral("Vertical"),
                            QStringLiteral("Horizontal")},
                           parent);
    entries_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    entries_->header()->setSectionResizeMode(kStockColumn, QHeaderView::Stretch);
    const int letter = entries_->fontMetrics().averageCharWidth();
    entries_->setFixedWidth(letter * 2 * kStockCharacters + look::kGroupGap);
    return entries_;
}

QWidget* CartaoPontosWindow::buildSample(LayoutSource layouts, QWidget* parent) {
    const auto [part, column] = look::part(parent);
    column->addWidget(look::heading(QStringLiteral("Amostra"), part));
    sample_ = new CardSample(std::move(layouts), part);
    column->addWidget(sample_, 1);
    return part;
}

QWidget* CartaoPontosWindow::buildAdjustments(QWidget* parent) {
    auto* tabs = new QTabWidget(parent);
    look::name(*tabs, QStringLiteral("cartaoPontos.tabs"), QStringLiteral("Ajustes"));
    pad_ = new AlignmentPad;
    tabs->addTab(framed(pad_), QStringLiteral("Alinha&mento"));
    scale_ = new ScalePanel(screen_.calibration(), QStringLiteral("neste tipo de cartão"));
    tabs->addTab(framed(scale_), QStringLiteral("E&scala e calibração"));
    return tabs;
}

void CartaoPontosWindow::connectAll() {
    connect(entries_, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { select(entries_->indexOfTopLevelItem(item)); });
    connect(pad_, &AlignmentPad::moveRequested, this, &CartaoPontosWindow::move);
    connect(pad_, &AlignmentPad::lineOffsetTyped, this, [this](const QString& text) {
        screen_.typeLineOffset(toUtf8(text));
        showAlignment();
    });
    connect(scale_, &ScalePanel::done, this, [this](const QString& text) {
        sample_->align(screen_.alignment());
        setState(text);
    });
}

void CartaoPontosWindow::select(int entry) {
    if (entry < 0 || static_cast<std::size_t>(entry) == screen_.selected()) return;
    if (scale_->confirmLeaving()) (void)screen_.select(static_cast<std::size_t>(entry));
    showEntries();
    showEntry();
}

void CartaoPontosWindow::move(Direction direction) {
    pad_->finishTyping();
    if (screen_.move(direction)) setState(QStringLiteral("Alinhamento gravado."));
    showEntries();
    showAlignment();
}

void CartaoPontosWindow::reset() {
    if (screen_.reset()) setState(QStringLiteral("Todos os alinhamentos voltaram ao padrão."));
    showEntries();
    showAlignment();
}

void CartaoPontosWindow::printTest() {
    pad_->finishTyping();
    if (screen_.printTest()) setState(QStringLiteral("Cartão de teste enviado à impressora."));
}

bool CartaoPontosWindow::mayClose() {
    return scale_->confirmLeaving();
}

void CartaoPontosWindow::showEntry() {
    setChips(
        {screen_.printer().empty() ? QStringLiteral("Sem impressora") : toQt(screen_.printer())});
    setSubtitle(QStringLiteral("Cartão ") + toQt(trimmed(screen_.stock().displayName)));
    sample_->showCard(screen_.layoutName(), screen_.sampleRows(), screen_.alignment(),
                      screen_.printsHeader());
    scale_->refresh();
    showAlignment();
    setState(QStringLiteral("Cada passo é gravado na hora."));
}

void CartaoPontosWindow::showAlignment() {
    pad_->showOffsets(screen_.offsets());
    pad_->showLineOffset(toQt(screen_.lineOffset()));
    sample_->align(screen_.alignment());
}

void CartaoPontosWindow::showEntries() {
    const QSignalBlocker quiet(entries_);
    const auto stocks = CartaoPontos::entries();
    for (std::size_t at = 0; at < stocks.size(); ++at) {
        const int row = static_cast<int>(at);
        QTreeWidgetItem* item = entries_->topLevelItem(row);
        if (!item) item = new QTreeWidgetItem(entries_);
        item->setText(kStockColumn, toQt(trimmed(stocks[at]->displayName)));
        item->setText(kVerticalColumn, QString::number(screen_.offsets(at).vertical));
        item->setText(kHorizontalColumn, QString::number(screen_.offsets(at).horizontal));
        item->setTextAlignment(kVerticalColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setTextAlignment(kHorizontalColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    entries_->setCurrentItem(entries_->topLevelItem(static_cast<int>(screen_.selected())));
}

}  // namespace winvrx
