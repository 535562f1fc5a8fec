#include "foundation/menu/desktop/month_view.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QPainter>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kDaysOfWeek = 7;
constexpr int kRows = 7;  // the weekday names and six weeks

int weekdayIndex(Date date) {
    return static_cast<int>(weekdayOf(date).c_encoding());
}

}  // namespace

MonthView::MonthView(QWidget* parent) : QWidget(parent) {
    look::name(*this, QStringLiteral("menu.month"), QStringLiteral("Calendário do mês"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MonthView::show(const MonthOverview& overview, Date today) {
    overview_ = overview;
    today_ = today;
    QStringList holidays;
    for (const Date date : overview.holidays)
        holidays.append(toQt(dateText(date)));
    setToolTip(holidays.isEmpty() ? QString()
                                  : (overview.recorded ? QStringLiteral("Feriados: ")
                                                       : QStringLiteral("Feriados sugeridos: ")) +
                                        holidays.join(u", "));
    setAccessibleDescription(toolTip());
    update();
}

QSize MonthView::sizeHint() const {
    const int line = fontMetrics().height();
    return {line * 13, (line + look::kGap) * kRows};
}

QRectF MonthView::cell(int row, int column) const {
    const qreal w = width() / static_cast<qreal>(kDaysOfWeek);
    const qreal h = height() / static_cast<qreal>(kRows);
    return {column * w, row * h, w, h};
}

void MonthView::paintDay(QPainter& painter, Date date, const QRectF& area) const {
    const bool holiday = std::find(overview_.holidays.begin(), overview_.holidays.end(), date) !=
                         overview_.holidays.end();
    const bool sunday = weekdayIndex(date) == 0;
    const QPointF center = area.center();
    const qreal radius = std::min(area.width(), area.height()) / 2 - 1;
    if (holiday) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(look::wash(look::Tint::Holiday, palette()));
        painter.drawEllipse(center, radius, radius);
    }
    if (date == today_) {
        painter.setPen(QPen(look::color(look::Tint::Accent, palette()), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(center, radius, radius);
    }
    painter.setPen(holiday  ? look::color(look::Tint::Holiday, palette())
                   : sunday ? look::color(look::Tint::RestDay, palette())
                            : palette().color(QPalette::WindowText));
    QFont dayFont = font();
    dayFont.setBold(holiday || date == today_);
    painter.setFont(dayFont);
    painter.drawText(area, Qt::AlignCenter, QString::number(dayNumber(date)));
}

void MonthView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(look::color(look::Tint::Quiet, palette()));
    for (int column = 0; column < kDaysOfWeek; ++column) {
        const std::chrono::weekday weekday(static_cast<unsigned>(column));
        painter.drawText(cell(0, column), Qt::AlignCenter,
                         toQt(weekdayShort(weekday)).left(1).toUpper());
    }
    if (!overview_.month.ok()) return;
    const Date first = firstDay(overview_.month);
    for (int day = 0; day < daysIn(overview_.month); ++day) {
        const int position = weekdayIndex(first) + day;
        paintDay(painter, plusDays(first, day),
                 cell(1 + position / kDaysOfWeek, position % kDaysOfWeek));
    }
}

}  // namespace winvrx
