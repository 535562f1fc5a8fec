#include "timecard/card/desktop/half_month_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/card/desktop/punch_grid.h"

#include <QHBoxLayout>
#include <QLabel>

namespace winvrx {

HalfMonthPanel::HalfMonthPanel(CartaoPontoDados& command, HalfMonth half, QWidget* parent)
    : QWidget(parent), command_(command), half_(half) {
    const QString number = half == HalfMonth::First ? QStringLiteral("1") : QStringLiteral("2");
    heading_ = look::line(QStringLiteral("card.heading") + number, look::TextSize::Heading, this);
    marks_ = look::line(QStringLiteral("card.marks") + number, look::TextSize::Body, this);
    look::setTint(*marks_, look::Tint::Warning);
    model_ = new PunchModel(command_, half, this);
    grid_ = new PunchGrid(model_, this);
    look::name(*grid_, QStringLiteral("card.half") + number, toQt(nameOf(half)));
    auto* headings = new QHBoxLayout;
    look::layOutPart(*headings);
    headings->addWidget(heading_);
    headings->addStretch();
    headings->addWidget(marks_);
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->setSpacing(look::kSmallGap);
    column->addLayout(headings);
    column->addWidget(grid_, 1);
}

void HalfMonthPanel::showSheet() {
    const QModelIndex at = grid_->currentIndex();
    model_->refresh();
    grid_->setCurrentIndex(model_->index(at.row(), at.column()));
}

void HalfMonthPanel::showHeading() {
    heading_->setText(toQt(nameOf(half_)) + QStringLiteral("  ·  ") +
                      toQt(command_.days().totalOf(half_)));
    QStringList marks;
    for (const std::string& text : textsOf(command_.marks()))
        marks << QStringLiteral("⚠ ") + toQt(text);
    marks_->setText(marks.join(QStringLiteral("  ·  ")));
}

}  // namespace winvrx
