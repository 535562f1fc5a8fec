#include "output/desktop/tipo_ponto_window.h"

#include "foundation/desktop/look.h"
#include "foundation/desktop/qt_text.h"
#include "foundation/text.h"
#include "output/desktop/option_group.h"
#include "output/tipo_ponto.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kRows = 8;

QString optionText(const CardStock& stock) {
    return toQt(stock.code) + QStringLiteral("   ") + toQt(trimmed(stock.displayName));
}

}  // namespace

TipoPontoWindow::TipoPontoWindow(TipoPonto& stocks, QWidget* parent)
    : ScreenWindow(QStringLiteral("tipoPonto"), QStringLiteral("Tipo de Cartão"), parent),
      stocks_(stocks) {
    setBody(buildBody());
    setState(QStringLiteral("A escolha é gravada na hora."));
    QPushButton* close =
        addClosingButton(QStringLiteral("&Fechar"), QStringLiteral("tipoPonto.close"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &TipoPontoWindow::reject);
    connect(options_, &OptionGroup::picked, this, &TipoPontoWindow::choose);
    connect(this, &ScreenWindow::helpRequested, this, [this] { stocks_.help(); });
    stocks_.load();
    showCurrent();
    options_->setFocus();
    resize(sizeHint());
}

QWidget* TipoPontoWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    look::layOutBody(*column);
    auto* inUse = new QHBoxLayout;
    inUse->addWidget(look::label(QStringLiteral("Cartão em uso:"), look::TextSize::Heading, body));
    current_ = look::label(QString(), look::TextSize::Heading, body);
    current_->setObjectName(QStringLiteral("tipoPonto.current"));
    inUse->addWidget(current_, 1);
    column->addLayout(inUse);
    column->addSpacing(look::kGap);
    options_ = new OptionGroup(QStringLiteral("&Marcas de cartão"),
                               QStringLiteral("tipoPonto.stocks"), kRows, body);
    const auto stocks = TipoPonto::offered();
    for (std::size_t at = 0; at < stocks.size(); ++at)
        options_->addOption(static_cast<int>(at), optionText(*stocks[at]), toQt(stocks[at]->code));
    column->addWidget(options_);
    column->addStretch();
    return body;
}

void TipoPontoWindow::choose(int position) {
    (void)stocks_.choose(*TipoPonto::offered().at(static_cast<std::size_t>(position)));
    showCurrent();
}

void TipoPontoWindow::showCurrent() {
    current_->setText(toQt(stocks_.label()));
    current_->setAccessibleName(QStringLiteral("Cartão em uso: ") + current_->text());
    const auto stocks = TipoPonto::offered();
    const auto found = std::ranges::find(stocks, stocks_.current());
    options_->choose(found == stocks.end() ? -1 : static_cast<int>(found - stocks.begin()));
}

}  // namespace winvrx
