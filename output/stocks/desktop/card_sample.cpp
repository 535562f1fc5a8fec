#include "output/stocks/desktop/card_sample.h"

#include "foundation/widgets/desktop/look.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/page_view.h"

#include <QLabel>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace winvrx {

namespace {

constexpr double kSmallestZoom = 0.5;
constexpr double kLargestZoom = 1.5;

}  // namespace

CardSample::CardSample(LayoutSource layouts, QWidget* parent)
    : QScrollArea(parent), layouts_(std::move(layouts)) {
    look::name(*this, QStringLiteral("sample"), QStringLiteral("Amostra do cartão"));
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Mid);
    setFrameShape(QFrame::NoFrame);
}

CardSample::~CardSample() = default;

void CardSample::showCard(const std::string& layoutName, const ReportRows& rows,
                          const Alignment& alignment, bool header) {
    rows_ = pageText(rows);
    header_ = header;
    try {
        layout_ = layouts_(layoutName);
    } catch (const Fault& fault) {
        showProblem(QString::fromStdString(fault.explanation()));
        return;
    }
    align(alignment);
    lookAtTheCard();
}

void CardSample::align(const Alignment& alignment) {
    if (!layout_) return;
    auto painter = std::make_unique<LayoutPainter>(
        *layout_, LayoutPainter::Choice{.header = header_, .stock = true, .alignment = alignment});
    if (page_) {
        page_->paintWith(*painter);
    } else {
        page_ = new PageView(*painter);
        page_->setObjectName(QStringLiteral("sample.page"));
        setWidget(page_);
    }
    painter_ = std::move(painter);
    page_->showPage(rows_, 1);
}

void CardSample::showProblem(const QString& text) {
    layout_.reset();
    page_ = nullptr;
    auto* label = look::label(QStringLiteral("⚠ ") + text, look::TextSize::Body);
    label->setObjectName(QStringLiteral("sample.problem"));
    label->setMargin(look::kMargin);
    setWidget(label);
}

void CardSample::lookAtTheCard() {
    if (!layout_ || !page_) return;
    const QRectF area = cardArea(*layout_);
    const double room = viewport()->width() - 2.0 * look::kMargin;
    const double wanted = room / (area.width() * layoutScale(logicalDpiX()));
    page_->setZoom(std::clamp(wanted, kSmallestZoom, kLargestZoom));
    // The scroll bars learn of the page's new size later.
    QTimer::singleShot(0, this, [this, area] {
        if (!page_) return;
        const double middle = area.center().x() * page_->scale();
        horizontalScrollBar()->setValue(qRound(middle - viewport()->width() / 2.0));
        verticalScrollBar()->setValue(qRound(area.top() * page_->scale()) - look::kMargin);
    });
}

void CardSample::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    lookAtTheCard();
}

}  // namespace winvrx
