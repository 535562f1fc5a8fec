#include "timecard/month/desktop/holiday_grid.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kDaysOfWeek = 7;

QLabel* weekdayLabel(int column, QWidget* parent) {
    const std::chrono::weekday weekday{static_cast<unsigned>(column)};
    return look::label(toQt(weekdayShort(weekday)), look::TextSize::Hint, parent);
}

}  // namespace

HolidayGrid::HolidayGrid(DataMesCorrente& command, QWidget* parent)
    : QWidget(parent), command_(command) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(look::kGap);
    for (int column = 0; column < kDaysOfWeek; ++column) {
        grid->addWidget(weekdayLabel(column, this), 0, column);
        grid->setColumnStretch(column, 1);
    }
    for (std::size_t cell = 0; cell < kHolidayCells; ++cell) {
        cells_[cell] = buildCell(cell);
        const int place = static_cast<int>(cell);
        grid->addWidget(cells_[cell], 1 + place / kDaysOfWeek, place % kDaysOfWeek);
    }
}

QCheckBox* HolidayGrid::buildCell(std::size_t cell) {
    auto* box = new QCheckBox(this);
    box->setObjectName(QStringLiteral("month.day%1").arg(cell + 1));
    QSizePolicy policy = box->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    box->setSizePolicy(policy);
    box->installEventFilter(this);
    connect(box, &QCheckBox::toggled, this, [this, cell](bool on) { take(cell, on); });
    return box;
}

void HolidayGrid::refresh() {
    for (std::size_t cell = 0; cell < kHolidayCells; ++cell) {
        const QSignalBlocker quiet(cells_[cell]);
        const auto date = command_.dateOfCell(cell);
        cells_[cell]->setVisible(date.has_value());
        if (date) showDay(*cells_[cell], *date);
    }
    const auto* stop = std::find_if(cells_.begin(), cells_.end(), [](const QCheckBox* box) {
        return box->focusPolicy() == Qt::StrongFocus && !box->isHidden();
    });
    if (stop == cells_.end()) setTabStop(holidayCellOf(firstDay(command_.settings().month)));
}

void HolidayGrid::showDay(QCheckBox& box, Date date) {
    const bool holiday = command_.settings().isHoliday(date);
    const QString name = toQt(command_.nameOf(date));
    const bool offered = !holiday && !name.isEmpty();
    box.setChecked(holiday);
    box.setText(QString::number(dayNumber(date)) +
                (offered ? QStringLiteral(" ") + kOfferSign : QString()));
    box.setToolTip(name);
    QStringList spoken = {toQt(dateText(date)), toQt(weekdayName(weekdayOf(date)))};
    if (!name.isEmpty()) spoken << name;
    if (offered) spoken << QStringLiteral("sugestão");
    box.setAccessibleName(spoken.join(u", "));
    QPalette colors = palette();
    if (holiday || isRestDay(command_.settings(), date))
        colors.setColor(QPalette::WindowText,
                        look::color(holiday ? look::Tint::Holiday : look::Tint::RestDay, colors));
    QFont font = look::font(look::TextSize::Body);
    font.setBold(holiday);
    box.setPalette(colors);
    box.setFont(font);
}

void HolidayGrid::setTabStop(std::size_t cell) {
    for (QCheckBox* box : cells_)
        box->setFocusPolicy(box == cells_[cell] ? Qt::StrongFocus : Qt::ClickFocus);
}

void HolidayGrid::take(std::size_t cell, bool holiday) {
    if (const auto date = command_.dateOfCell(cell)) command_.tick(*date, holiday);
    emit ticked();
}

bool HolidayGrid::moveFrom(std::size_t cell, int key) {
    int step = 0;
    if (key == Qt::Key_Left) step = -1;
    if (key == Qt::Key_Right) step = 1;
    if (key == Qt::Key_Up) step = -kDaysOfWeek;
    if (key == Qt::Key_Down) step = kDaysOfWeek;
    const int target = static_cast<int>(cell) + step;
    if (step == 0) return false;
    if (target >= 0 && target < static_cast<int>(kHolidayCells) &&
        command_.dateOfCell(static_cast<std::size_t>(target)))
        cells_[static_cast<std::size_t>(target)]->setFocus(Qt::TabFocusReason);
    return true;
}

void HolidayGrid::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // Queued: the days take off their colours only after this.
    if (event->type() == QEvent::StyleChange && cells_.back())
        QMetaObject::invokeMethod(this, &HolidayGrid::refresh, Qt::QueuedConnection);
}

bool HolidayGrid::eventFilter(QObject* watched, QEvent* event) {
    const auto* found = std::find(cells_.begin(), cells_.end(), watched);
    if (found == cells_.end()) return QWidget::eventFilter(watched, event);
    const auto cell = static_cast<std::size_t>(found - cells_.begin());
    if (event->type() == QEvent::FocusIn) setTabStop(cell);
    if (event->type() == QEvent::KeyPress && moveFrom(cell, static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QWidget::eventFilter(watched, event);
}

}  // namespace winvrx
