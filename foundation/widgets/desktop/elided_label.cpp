#include "foundation/widgets/desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace winvrx {

namespace {

/// What a label asks of its window at the least, and at most, in average letters.
constexpr int kLeastLetters = 48;
constexpr int kMostLetters = 160;
constexpr int kTipLetters = 480;
constexpr int kTipLines = 12;
constexpr int kTipRun = 80;  ///< letters without a blank that stand in one line

QSize narrowed(QSize hint, const QLabel& label, int letters) {
    const int most = letters * label.fontMetrics().averageCharWidth();
    return {std::min(hint.width(), most), hint.height()};
}

}  // namespace

QSize ElidedLabel::sizeHint() const {
    return narrowed(QLabel::sizeHint(), *this, kMostLetters);
}

QSize ElidedLabel::minimumSizeHint() const {
    return narrowed(QLabel::minimumSizeHint(), *this, kLeastLetters);
}

bool ElidedLabel::isCut() const {
    return !wordWrap() && !Qt::mightBeRichText(text()) && QLabel::sizeHint().width() > width();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isCut())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tipOf(text()), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QRect place = contentsRect();
    const int flags = static_cast<int>(alignment()) | (buddy() ? Qt::TextShowMnemonic : 0);
    style()->drawItemText(
        &painter, place, flags, palette(), isEnabled(),
        fontMetrics().elidedText(text().left(kTipLetters), Qt::ElideRight, place.width(), flags),
        foregroundRole());
}

QString tipOf(const QString& text) {
    QString tip;
    int run = 0;
    int lines = 1;
    for (const QChar letter : text) {
        if (tip.size() == kTipLetters || lines > kTipLines) {
            tip = tip.trimmed() + QStringLiteral("…");
            break;
        }
        run = letter.isSpace() ? 0 : run + 1;
        tip += letter;
        if (run == kTipRun) tip += QLatin1Char('\n');
        if (run == kTipRun || letter == QLatin1Char('\n')) ++lines;
        if (run == kTipRun) run = 0;
    }
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

}  // namespace winvrx
