// The parts of the time-card window and where they stand.
#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/card/desktop/application_bar.h"
#include "timecard/card/desktop/cartao_ponto_dados_window.h"
#include "timecard/card/desktop/half_month_panel.h"
#include "timecard/card/desktop/punch_grid.h"
#include "timecard/card/desktop/schedule_panel.h"
#include "timecard/hours/desktop/hours_summary_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace winvrx {

QWidget* CartaoPontoDadosWindow::buildSide() {
    const auto [side, column] = look::part(this);
    side_ = side;
    employees_ = new EmployeePicker(
        command_.list(),
        {.screen = QStringLiteral("card"), .shifts = kAllShiftFilters, .scales = true}, side_);
    column->addWidget(employees_, 1);
    hours_ = new HoursSummaryPanel(this);
    connect(hours_, &HoursSummaryPanel::percentTyped, this,
            [this](HourCategory category, const QString& typed) {
                (void)command_.changePercent(category, toUtf8(typed));
                showState();
            });
    column->addWidget(hours_);
    QPushButton* summary =
        newButton({"preview", QStringLiteral("Resumo Folha de Ponto"), Qt::CTRL | Qt::Key_R,
                   "card.summary", [this] { leaveFor(&CartaoPontoDadosWindow::summaryRequested); }},
                  side_);
    summary->setToolTip(QKeySequence(Qt::CTRL | Qt::Key_R).toString(QKeySequence::NativeText));
    column->addWidget(summary);
    QRadioButton* enter = buildEntryMode(QStringLiteral("Usar Tecla &ENTER"),
                                         QStringLiteral("card.useEnter"), Qt::Key_Return);
    enter->setChecked(true);
    auto* modes = new QHBoxLayout;
    modes->addWidget(enter);
    modes->addWidget(buildEntryMode(QStringLiteral("Usar Tecla T&ABE"),
                                    QStringLiteral("card.useTab"), Qt::Key_Tab));
    column->addLayout(modes);
    return side_;
}

QRadioButton* CartaoPontoDadosWindow::buildEntryMode(const QString& text, const QString& objectName,
                                                     Qt::Key key) {
    auto* button = new QRadioButton(text, this);
    button->setObjectName(objectName);
    connect(button, &QRadioButton::toggled, this, [this, key](bool on) {
        for (const HalfMonthPanel* panel : halves_)
            if (on && panel) panel->grid().setNextCellKey(key);
    });
    return button;
}

QWidget* CartaoPontoDadosWindow::buildCard() {
    const auto [widget, column] = look::part(this);
    schedule_ = new SchedulePanel(command_, widget);
    connect(schedule_, &SchedulePanel::edited, this, &CartaoPontoDadosWindow::showState);
    connect(schedule_, &SchedulePanel::saveRequested, this, [this] {
        (void)command_.saveSchedule();
        schedule_->refresh();
        showState();
    });
    column->addWidget(schedule_);
    application_ = new ApplicationBar(command_, widget);
    column->addWidget(application_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    for (const HalfMonth one : {HalfMonth::First, HalfMonth::Second}) {
        halves_[static_cast<std::size_t>(one)] = new HalfMonthPanel(command_, one, widget);
        row->addWidget(&half(one), 1);
        connectGrid(one);
    }
    column->addLayout(row, 1);
    unread_ = look::paragraph(QStringLiteral("card.unread"), look::TextSize::Hint, this);
    column->addWidget(unread_);
    return widget;
}

}  // namespace winvrx
