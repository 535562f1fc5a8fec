#include "personnel/leaves/desktop/year_days.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <array>

namespace winvrx {

namespace {

constexpr int kDaysOfRow = 31;
constexpr int kMonths = 12;
constexpr std::array kTintsOfTypes = {
    look::Tint::Quiet,   look::Tint::Absence, look::Tint::Accent,
    look::Tint::Warning, look::Tint::RestDay, look::Tint::Quiet,
    look::Tint::Good,    look::Tint::Leave,   look::Tint::Holiday};

int cellWidth(const QFontMetrics& metrics) {
    return metrics.horizontalAdvance(QStringLiteral("00")) - 2;
}

/// A row of digits needs less than one of letters.
int cellHeight(const QFontMetrics& metrics) {
    return metrics.tightBoundingRect(QStringLiteral("8")).height() + look::kSmallGap;
}

}  // namespace

QString numberOf(const Leave& leave) {
    QString number = toQt(leave.type).left(3);
    while (number.size() > 1 && number.startsWith(QLatin1Char('0')))
        number.remove(0, 1);
    return number;
}

look::Tint tintOf(const Leave& leave) {
    const auto number = static_cast<std::size_t>(numberOf(leave).toUInt());
    return number < kTintsOfTypes.size() ? kTintsOfTypes.at(number) : look::Tint::Quiet;
}

YearDays::YearDays(QWidget* parent) : QWidget(parent) {
    setFont(look::font(look::TextSize::Hint));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void YearDays::show(const LeaveCalendar& calendar, std::chrono::year year) {
    calendar_ = &calendar;
    year_ = year;
    update();
}

int YearDays::monthWidth() const {
    return fontMetrics().horizontalAdvance(QStringLiteral("mmm  "));
}

QSize YearDays::sizeHint() const {
    return {monthWidth() + kDaysOfRow * cellWidth(fontMetrics()) + 1,
            (kMonths + 1) * cellHeight(fontMetrics()) + 1};
}

QRect YearDays::cellOf(Date date) const {
    const int width = cellWidth(fontMetrics());
    const int height = cellHeight(fontMetrics());
    return {monthWidth() + (dayNumber(date) - 1) * width,
            static_cast<int>(unsigned{date.month()}) * height, width, height};
}

std::optional<Date> YearDays::dateAt(QPoint place) const {
    for (int month = 1; month <= kMonths; ++month) {
        const WorkMonth one{year_, std::chrono::month(static_cast<unsigned>(month))};
        for (Date date = firstDay(one); monthOf(date) == one; date = plusDays(date, 1))
            if (cellOf(date).contains(place)) return date;
    }
    return std::nullopt;
}

const DatedLeave* YearDays::leaveOn(Date date) const {
    if (const DatedLeave* away = calendar_->leaveOn(date)) return away;
    for (const DatedLeave& one : calendar_->leaves())
        if (one.period.contains(date)) return &one;
    return nullptr;
}

void YearDays::paintDay(QPainter& painter, Date date) const {
    const QRect cell = cellOf(date);
    const auto weekday = weekdayOf(date);
    if (weekday == std::chrono::Sunday)
        painter.fillRect(cell, look::wash(look::Tint::RestDay, palette()));
    const Standing standing = calendar_->standingOn(date);
    if (const DatedLeave* one = leaveOn(date)) {
        const look::Tint tint = tintOf(one->leave);
        const bool away = standing == Standing::OnLeave;
        painter.fillRect(cell, away ? look::color(tint, palette()) : look::wash(tint, palette()));
        painter.setPen(away ? palette().color(QPalette::Base) : look::color(tint, palette()));
        painter.drawText(cell, Qt::AlignCenter, numberOf(one->leave));
    } else if (!isWithinContract(standing)) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(cell.bottomLeft(), cell.topRight());
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(cell);
}

void YearDays::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const int height = cellHeight(fontMetrics());
    painter.setPen(look::color(look::Tint::Quiet, palette()));
    for (const unsigned day : {1U, 5U, 10U, 15U, 20U, 25U, 30U}) {
        const QRect cell = cellOf(Date{year_, std::chrono::January, std::chrono::day(day)});
        painter.drawText(cell.adjusted(-2, -height, 2, -height), Qt::AlignCenter,
                         QString::number(day));
    }
    for (int month = 1; month <= kMonths; ++month) {
        const WorkMonth one{year_, std::chrono::month(static_cast<unsigned>(month))};
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRect(look::kSmallGap, month * height, monthWidth(), height),
                         Qt::AlignVCenter | Qt::TextDontClip, toQt(monthName(one.month())).left(3));
        if (!calendar_) continue;
        for (Date date = firstDay(one); monthOf(date) == one; date = plusDays(date, 1))
            paintDay(painter, date);
    }
}

bool YearDays::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !calendar_) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto date = dateAt(help->pos());
    const DatedLeave* one = date ? leaveOn(*date) : nullptr;
    QString text = date ? toQt(dateText(*date)) : QString();
    if (one) text += QStringLiteral(": ") + toQt(wordOf(one->leave));
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

}  // namespace winvrx
