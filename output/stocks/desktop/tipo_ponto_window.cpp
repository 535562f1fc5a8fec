#include "output/stocks/desktop/tipo_ponto_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "output/stocks/desktop/card_pictures.h"
#include "output/stocks/desktop/stock_grid.h"
#include "output/stocks/tipo_ponto.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kPanelWidth = 224;
constexpr double kSheetPixelsPerMillimetre = 0.42;
constexpr int kDigitPause = 1500;  // milliseconds
constexpr qsizetype kCodeDigits = 2;

const QString kState =
    QStringLiteral("A escolha é gravada na hora. Setas ou os dois dígitos do código escolhem.");
const QString kNoStock = QStringLiteral(
    "Nenhum cartão escolhido ainda. Compare os desenhos com o cartão que está na impressora.");
const QString kNoCard = QStringLiteral(
    "⚠ O tipo gravado, \"%1\", não é um cartão de ponto. Escolha o cartão que está na impressora.");

}  // namespace

TipoPontoWindow::TipoPontoWindow(TipoPonto& stocks, CardPictures& pictures, QWidget* parent)
    : ScreenWindow(QStringLiteral("tipoPonto"), QStringLiteral("Tipo de Cartão"), parent),
      stocks_(stocks),
      pictures_(pictures) {
    options_ =
        new StockGrid(QStringLiteral("tipoPonto.stocks"), TipoPonto::offered(), pictures_, this);
    setBody({{options_, 1}, {buildInUse(this)}});
    setState(kState);
    addLeavingButton("tipoPonto.close", QStringLiteral("&Fechar"))->setDefault(true);
    connect(options_, &StockGrid::picked, this, &TipoPontoWindow::choose);
    stocks_.load();
    showCurrent();
    options_->setFocus();
}

QWidget* TipoPontoWindow::buildInUse(QWidget* parent) {
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Cartão em uso"), panel));
    current_ = look::line(QStringLiteral("tipoPonto.current"), look::TextSize::Title, panel);
    column->addWidget(current_);
    description_ =
        look::paragraph(QStringLiteral("tipoPonto.description"), look::TextSize::Body, panel);
    column->addWidget(description_);
    column->addSpacing(look::kMargin);
    sheets_ = new QWidget(panel);
    auto* sheets = new QHBoxLayout(sheets_);
    look::layOutPart(*sheets);
    central_ = addSheet(*sheets, QStringLiteral("Central"), QStringLiteral("tipoPonto.central"));
    sheets->addStretch();
    lateral_ = addSheet(*sheets, QStringLiteral("Lateral"), QStringLiteral("tipoPonto.lateral"));
    column->addWidget(sheets_);
    column->addStretch();
    QScrollArea* sight = look::scrolled(panel, parent);
    sight->setFixedWidth(kPanelWidth);
    return sight;
}

/// How the card lies on the sheet, with the name of that tray position under it.
QLabel* TipoPontoWindow::addSheet(QBoxLayout& row, const QString& position, const QString& name) {
    auto* column = new QVBoxLayout;
    column->setSpacing(look::kSmallGap);
    auto* sheet = new QLabel(sheets_);
    look::name(*sheet, name, QStringLiteral("Cartão na bandeja: ") + position);
    sheet->setFrameShape(QFrame::StyledPanel);
    column->addWidget(sheet);
    column->addWidget(look::label(position, look::TextSize::Hint, sheets_), 0, Qt::AlignHCenter);
    row.addLayout(column);
    return sheet;
}

void TipoPontoWindow::choose(const CardStock* stock) {
    (void)stocks_.choose(*stock);
    showCurrent();
}

void TipoPontoWindow::showCurrent() {
    const CardStock* stock = stocks_.current();
    look::showText(*current_, toQt(stocks_.label()));
    current_->setAccessibleName(QStringLiteral("Cartão em uso: ") + current_->text());
    options_->choose(stock);
    const bool isCard = stock && stock->offered;
    const QString fault = isCard ? pictures_.fault(*stock) : QString();
    const std::string& strange = stocks_.strangeCode();
    description_->setText(!strange.empty()   ? kNoCard.arg(toQt(strange))
                          : !isCard          ? kNoStock
                          : !fault.isEmpty() ? QStringLiteral("⚠ ") + fault
                                             : pictures_.description(*stock));
    sheets_->setVisible(isCard && fault.isEmpty());
    if (!isCard) return;
    const CardPictures::Scale scale{kSheetPixelsPerMillimetre, devicePixelRatioF()};
    central_->setPixmap(pictures_.sheet(*stock, TrayPosition::Central, scale));
    lateral_->setPixmap(pictures_.sheet(*stock, TrayPosition::Lateral, scale));
}

void TipoPontoWindow::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    if (text.size() == 1 && text.front() >= u'0' && text.front() <= u'9')
        typeDigit(text);
    else
        ScreenWindow::keyPressEvent(event);
}

void TipoPontoWindow::typeDigit(const QString& digit) {
    if (!digits_.isEmpty() && sinceDigit_.elapsed() > kDigitPause) digits_.clear();
    digits_ += digit;
    sinceDigit_.start();
    if (digits_.size() < kCodeDigits) {
        setState(QStringLiteral("Código %1_").arg(digits_));
        return;
    }
    const bool known = options_->click(digits_);
    setState(known ? kState : QStringLiteral("⚠ Nenhum cartão tem o código %1.").arg(digits_));
    digits_.clear();
}

}  // namespace winvrx
