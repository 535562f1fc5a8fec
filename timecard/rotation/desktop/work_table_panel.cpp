#include "timecard/rotation/desktop/work_table_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/schedule/typed_time.h"

#include <QGridLayout>
#include <QLabel>

namespace winvrx {

namespace {

const QString kTitle = QStringLiteral("Manutenção do Quadro de Horário de  Trabalho:");
constexpr std::array<const char*, kRowTimes> kTimeNames = {"Manhã Entrada", "Manhã Saída",
                                                           "Tarde Entrada", "Tarde Saída"};
constexpr int kTimeLetters = 12;

}  // namespace

WorkTablePanel::WorkTablePanel(WorkTableEdit& edit, QWidget* parent)
    : QWidget(parent),
      edit_(edit),
      whose_(look::line(QStringLiteral("workTable.whose"), look::TextSize::Body, this)),
      weekly_(look::line(QStringLiteral("workTable.weekly"), look::TextSize::Heading, this)),
      finding_(look::paragraph(QStringLiteral("workTable.finding"), look::TextSize::Body, this)) {
    look::setTint(*finding_, look::Tint::Warning);
    auto* column = new QVBoxLayout(this);
    look::layOutBody(*column);
    column->addWidget(look::heading(kTitle, this));
    column->addWidget(whose_);
    column->addSpacing(look::kGap);
    column->addLayout(buildTimes());
    column->addSpacing(look::kGap);
    column->addWidget(weekly_);
    column->addWidget(finding_);
    column->addStretch();
}

QGridLayout* WorkTablePanel::buildTimes() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kMargin);
    grid->setVerticalSpacing(look::kGap);
    for (std::size_t cell = 0; cell < kRowTimes; ++cell)
        grid->addWidget(
            look::label(QString::fromUtf8(kTimeNames[cell]), look::TextSize::Hint, this), 0,
            static_cast<int>(cell) + 1);
    for (std::size_t row = 0; row < kTableRows; ++row) {
        const int line = static_cast<int>(row) + 1;
        grid->addWidget(look::label(toQt(kTableRowNames[row]), look::TextSize::Body, this), line,
                        0);
        for (std::size_t cell = 0; cell < kRowTimes; ++cell) {
            times_[row][cell] = buildTime(row, cell);
            grid->addWidget(times_[row][cell]->bareInput(), line, static_cast<int>(cell) + 1);
        }
    }
    grid->setColumnStretch(static_cast<int>(kRowTimes) + 1, 1);
    return grid;
}

Field* WorkTablePanel::buildTime(std::size_t row, std::size_t cell) {
    auto* field =
        new Field({.caption = toQt(kTableRowNames[row]) + QStringLiteral(", ") +
                              QString::fromUtf8(kTimeNames[cell]),
                   .objectName = QStringLiteral("workTable.time%1.%2").arg(row + 1).arg(cell + 1),
                   .width = kTimeWidth,
                   .kind = kTimeField},
                  this);
    field->input()->setFixedWidth(kTimeLetters * fontMetrics().averageCharWidth());
    connect(field, &Field::edited, this, [this, row, cell, field] {
        edit_.typeTime(row, cell, toUtf8(field->text()));
        showTotals();
        emit edited();
    });
    return field;
}

void WorkTablePanel::takeFocus() {
    times_.front().front()->takeFocus();
}

void WorkTablePanel::refresh() {
    const WorkTable& table = edit_.table();
    whose_->setText(QStringLiteral("Turno: ") + toQt(codeOf(table.shift)) +
                    QStringLiteral("  ·  Escala: ") + toQt(codeOf(table.scale)));
    for (std::size_t row = 0; row < kTableRows; ++row)
        for (std::size_t cell = 0; cell < kRowTimes; ++cell)
            times_[row][cell]->setStored(table.rows[row][cell]);
    showTotals();
}

void WorkTablePanel::showTotals() {
    weekly_->setText(toQt(edit_.weeklyCaption()));
    look::showWarning(*finding_, toQt(edit_.finding()));
}

}  // namespace winvrx
