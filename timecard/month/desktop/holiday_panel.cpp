#include "timecard/month/desktop/holiday_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/month/desktop/holiday_grid.h"

#include <QCheckBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kNameCell = 2;

QString withSign(const QString& text) {
    return kOfferSign + QLatin1Char(' ') + text;
}

QPushButton* button(const char* icon, const QString& text, const char* objectName,
                    QWidget* parent) {
    QPushButton* button = look::button(text, QLatin1String(objectName), parent);
    button->setIcon(look::icon(QLatin1String(icon)));
    return button;
}

}  // namespace

HolidayPanel::HolidayPanel(DataMesCorrente& command, QWidget* parent)
    : QWidget(parent), command_(command) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    heading_ = look::heading(QString(), this);
    heading_->setWordWrap(true);
    column->addWidget(heading_);
    notice_ = look::paragraph(QStringLiteral("month.offer"), look::TextSize::Hint, this);
    look::setTint(*notice_, look::Tint::Leave);
    column->addWidget(notice_);
    grid_ = new HolidayGrid(command_, this);
    column->addWidget(grid_);
    counts_ = look::paragraph(QStringLiteral("month.counts"), look::TextSize::Body, this);
    column->addWidget(counts_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(buildList(), 1);
    row->addWidget(buildCommands());
    column->addLayout(row, 1);
    unticked_ = look::paragraph(QStringLiteral("month.unticked"), look::TextSize::Hint, this);
    column->addWidget(unticked_);
    unread_ = look::paragraph(QStringLiteral("month.unread"), look::TextSize::Hint, this);
    look::setTint(*unread_, look::Tint::Warning);
    column->addWidget(unread_);
    connect(grid_, &HolidayGrid::ticked, this, &HolidayPanel::takeNote);
    notice_->setCursor(Qt::PointingHandCursor);
    notice_->installEventFilter(this);
    auto* offer = new QShortcut(Qt::Key_F8, this);
    offer->setContext(Qt::WindowShortcut);
    connect(offer, &QShortcut::activated, this, [this] { give(&DataMesCorrente::tickOffer); });
}

QWidget* HolidayPanel::buildList() {
    const auto [part, column] = look::part(this);
    holidays_ = look::table(QStringLiteral("month.holidays"), QStringLiteral("Feriados"),
                            QStringList(kNameCell + 1), part);
    holidays_->setHeaderHidden(true);
    holidays_->setAlternatingRowColors(false);
    holidays_->setTabKeyNavigation(false);
    holidays_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    holidays_->header()->setSectionResizeMode(kNameCell, QHeaderView::Stretch);
    QLabel* label = look::label(QStringLiteral("F&eriados:"), look::TextSize::Body, part);
    label->setBuddy(holidays_);
    column->addWidget(label);
    column->addWidget(holidays_, 1);
    return part;
}

QWidget* HolidayPanel::buildCommands() {
    const auto [part, column] = look::part(this);
    QPushButton* reset = button("clear", QStringLiteral("&Reset."), "month.reset", part);
    QPushButton* restore = button("restore", QStringLiteral("Resta&urar"), "month.restore", part);
    recordTicks_ = new QCheckBox(QStringLiteral("&Gravação"), part);
    look::name(*recordTicks_, QStringLiteral("month.recordTicks"), QStringLiteral("Gravação"));
    recordTicks_->setToolTip(
        QStringLiteral("Gravar também as marcas dos feriados. Sem isso, ficam as já gravadas."));
    column->addSpacing(part->fontMetrics().height() + look::kGap);
    column->addWidget(reset);
    column->addWidget(restore);
    column->addWidget(recordTicks_);
    column->addStretch();
    connect(reset, &QPushButton::clicked, this, [this] { give(&DataMesCorrente::clearTicks); });
    connect(restore, &QPushButton::clicked, this, [this] { give(&DataMesCorrente::restoreTicks); });
    connect(recordTicks_, &QCheckBox::toggled, this, [this](bool on) {
        command_.setRecordTicks(on);
        emit edited();
    });
    return part;
}

void HolidayPanel::refresh() {
    heading_->setText(toQt(command_.holidayHeading()));
    const QSignalBlocker quiet(recordTicks_);
    recordTicks_->setChecked(command_.settings().recordTicks);
    showHolidays();
    showUnread();
}

void HolidayPanel::showHolidays() {
    const QString notice = toQt(command_.offerNotice());
    look::showText(*notice_, notice.isEmpty() ? notice : withSign(notice));
    grid_->refresh();
    holidays_->clear();
    for (const ListedHoliday& one : command_.holidays()) {
        auto* item = new QTreeWidgetItem(
            holidays_,
            {toQt(dateText(one.date)), toQt(weekdayShort(weekdayOf(one.date))), toQt(one.name)});
        item->setToolTip(kNameCell, toQt(one.name));
    }
    const MonthDayCounts counts = command_.counts();
    counts_->setText(QStringLiteral("Quantidade de Dias Úteis: <b>%1</b> &nbsp; "
                                    "Quantidade dias de Reposo DSR: <b>%2</b>")
                         .arg(counts.businessDays)
                         .arg(counts.restDays));
    showUnticked();
}

void HolidayPanel::showUnticked() {
    QStringList days;
    for (const Holiday& one : command_.untickedHolidays())
        days << toQt(dateText(one.date).substr(0, 5) + " " + one.name);
    look::showText(*unticked_, days.isEmpty()
                                   ? QString()
                                   : withSign(QStringLiteral("Não marcados: ") + days.join(u", ")));
}

void HolidayPanel::showUnread() {
    QStringList lines;
    for (const UnreadLine& line : command_.unreadLines())
        lines << QStringLiteral("linha %1 “%2”").arg(line.number).arg(toQt(line.text));
    look::showUnread(*unread_, lines, QStringLiteral("Não entendida, mantida no registro: "));
}

bool HolidayPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == notice_ && event->type() == QEvent::MouseButtonRelease)
        give(&DataMesCorrente::tickOffer);
    return QWidget::eventFilter(watched, event);
}

void HolidayPanel::give(void (DataMesCorrente::*act)()) {
    (command_.*act)();
    takeNote();
}

void HolidayPanel::takeNote() {
    showHolidays();
    emit edited();
}

}  // namespace winvrx
