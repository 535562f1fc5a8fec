#include "personnel/leaves/desktop/year_strip.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/leaves/desktop/year_days.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <map>

namespace winvrx {

YearStrip::YearStrip(QWidget* parent)
    : QWidget(parent),
      title_(look::heading(QString(), this)),
      days_(new YearDays(this)),
      legend_(look::label(QString(), look::TextSize::Hint, this)) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->setSpacing(look::kSmallGap / 2);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    title_->setObjectName(QStringLiteral("leaves.year"));
    row->addWidget(title_, 1);
    for (const auto& [name, spoken, by] :
         {std::tuple("left", "Ano anterior", -1), std::tuple("right", "Ano seguinte", 1)}) {
        auto* button = new QToolButton(this);
        look::name(*button, QStringLiteral("leaves.year.") + QLatin1String(name),
                   QString::fromUtf8(spoken));
        button->setIcon(look::icon(QLatin1String(name)));
        button->setAutoRaise(true);
        button->setFixedHeight(title_->fontMetrics().height());
        button->setToolTip(QString::fromUtf8(spoken));
        connect(button, &QToolButton::clicked, this, [this, years = by] { turn(years); });
        row->addWidget(button);
    }
    column->addLayout(row);
    column->addWidget(days_);
    legend_->setObjectName(QStringLiteral("leaves.legend"));
    legend_->setTextFormat(Qt::RichText);
    legend_->setWordWrap(true);
    column->addWidget(legend_);
    column->addStretch();
}

void YearStrip::show(LeaveCalendar calendar, std::optional<std::chrono::year> year) {
    calendar_ = std::move(calendar);
    if (year) year_ = *year;
    refresh();
}

/// The legend holds its colours.
void YearStrip::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) refresh();
}

void YearStrip::turn(int years) {
    year_ += std::chrono::years(years);
    refresh();
}

void YearStrip::refresh() {
    title_->setText(QStringLiteral("Afastamentos de %1").arg(int{year_}));
    days_->show(calendar_, year_);
    const LeavePeriod year{Date{year_, std::chrono::January, std::chrono::day{1}},
                           Date{year_, std::chrono::December, std::chrono::day{31}}};
    std::map<QString, QString> words;
    for (const DatedLeave& one : calendar_.leaves()) {
        if (!one.period.overlaps(year)) continue;
        words[numberOf(one.leave)] =
            QStringLiteral("<span style=\"color:%1\">■</span> %2 %3")
                .arg(look::color(tintOf(one.leave), palette()).name(), numberOf(one.leave),
                     toQt(wordOf(one.leave)).toHtmlEscaped());
    }
    QStringList texts;
    for (const auto& [number, text] : words)
        texts << text;
    legend_->setText(texts.isEmpty() ? QStringLiteral("Nenhum afastamento neste ano.")
                                     : texts.join(QStringLiteral(" &nbsp; ")));
    setAccessibleDescription(title_->text());
}

}  // namespace winvrx
