#include "timecard/desktop/data_mes_corrente_window.h"

#include "foundation/desktop/look.h"
#include "foundation/desktop/qt_text.h"
#include "foundation/text.h"
#include "timecard/desktop/holiday_grid.h"
#include "timecard/desktop/month_rules_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace winvrx {

namespace {

QVBoxLayout* columnIn(QWidget* widget) {
    auto* column = new QVBoxLayout(widget);
    look::layOutPart(*column);
    return column;
}

}  // namespace

DataMesCorrenteWindow::DataMesCorrenteWindow(DataMesCorrente& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("dataMesCorrente"),
                   QStringLiteral("Configurações Horas Extras - Mes de Trabalho"), parent),
      command_(command) {
    setBody(buildBody());
    QToolButton* record = addCommand(QStringLiteral("save"), QStringLiteral("Gravar"),
                                     QKeySequence::Save, QStringLiteral("month.record"));
    connect(record, &QToolButton::clicked, this, &DataMesCorrenteWindow::recordMonth);
    QPushButton* confirm =
        addClosingButton(QStringLiteral("&Confirma"), QStringLiteral("month.confirm"));
    confirm->setDefault(true);
    connect(confirm, &QPushButton::clicked, this, &DataMesCorrenteWindow::confirmMonth);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("month.close"));
    connect(close, &QPushButton::clicked, this, &DataMesCorrenteWindow::reject);
    connectMonth();
    showMonth();
    month_->setFocus();
}

QWidget* DataMesCorrenteWindow::buildBody() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    row->addWidget(buildMonthColumn(), 2);
    rules_ = new MonthRulesPanel(command_, page);
    connect(rules_, &MonthRulesPanel::edited, this, &DataMesCorrenteWindow::showState);
    row->addWidget(rules_, 3);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(page);
    scroll->setFocusPolicy(Qt::NoFocus);
    return scroll;
}

QWidget* DataMesCorrenteWindow::buildMonthColumn() {
    auto* widget = new QWidget(this);
    QVBoxLayout* column = columnIn(widget);
    month_ = new QComboBox(widget);
    month_->setObjectName(QStringLiteral("month.month"));
    month_->setAccessibleName(QStringLiteral("Mês de Trabalho"));
    QLabel* label = look::label(QStringLiteral("&Mês de Trabalho"), look::TextSize::Body, widget);
    label->setBuddy(month_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(label);
    row->addWidget(month_, 1);
    column->addLayout(row);
    reference_ = new QCheckBox(widget);
    reference_->setObjectName(QStringLiteral("month.reference"));
    column->addWidget(reference_);
    column->addSpacing(look::kGap);
    heading_ = look::heading(QString(), widget);
    heading_->setWordWrap(true);
    column->addWidget(heading_);
    grid_ = new HolidayGrid(command_, widget);
    column->addWidget(grid_);
    counts_ = look::label(QString(), look::TextSize::Body, widget);
    counts_->setObjectName(QStringLiteral("month.counts"));
    counts_->setWordWrap(true);
    column->addWidget(counts_);
    column->addWidget(buildHolidayList(), 1);
    return widget;
}

QWidget* DataMesCorrenteWindow::buildHolidayList() {
    auto* widget = new QWidget(this);
    auto* row = new QHBoxLayout(widget);
    look::layOutPart(*row);
    holidays_ = new QListWidget(widget);
    holidays_->setObjectName(QStringLiteral("month.holidays"));
    holidays_->setAccessibleName(QStringLiteral("Feriados"));
    holidays_->setMinimumHeight(holidays_->fontMetrics().height() * 3);
    holidays_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    QLabel* label = look::label(QStringLiteral("F&eriados:"), look::TextSize::Body, widget);
    label->setBuddy(holidays_);
    auto* list = new QVBoxLayout;
    look::layOutPart(*list);
    list->addWidget(label);
    list->addWidget(holidays_, 1);
    row->addLayout(list, 1);
    auto* commands = new QVBoxLayout;
    look::layOutPart(*commands);
    auto* reset = new QPushButton(look::icon(QStringLiteral("clear")), QStringLiteral("&Reset."));
    reset->setObjectName(QStringLiteral("month.reset"));
    auto* restore =
        new QPushButton(look::icon(QStringLiteral("restore")), QStringLiteral("Resta&urar"));
    restore->setObjectName(QStringLiteral("month.restore"));
    recordTicks_ = new QCheckBox(QStringLiteral("&Gravação"), widget);
    recordTicks_->setObjectName(QStringLiteral("month.recordTicks"));
    commands->addSpacing(label->sizeHint().height() + look::kGap);
    for (QPushButton* button : {reset, restore}) {
        button->setAutoDefault(false);
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
        commands->addWidget(button);
    }
    commands->addWidget(recordTicks_);
    commands->addStretch();
    row->addLayout(commands);
    connect(reset, &QPushButton::clicked, this, [this] {
        command_.clearTicks();
        showHolidays();
    });
    connect(restore, &QPushButton::clicked, this, [this] {
        command_.restoreTicks();
        showHolidays();
    });
    return widget;
}

void DataMesCorrenteWindow::connectMonth() {
    connect(month_, &QComboBox::activated, this, [this](int place) {
        (void)command_.chooseMonth(command_.months().at(static_cast<std::size_t>(place)));
        showMonth();
    });
    connect(reference_, &QCheckBox::clicked, this, [this] {
        (void)command_.chooseNextReference();
        showMonth();
    });
    connect(grid_, &HolidayGrid::ticked, this, &DataMesCorrenteWindow::showHolidays);
    connect(recordTicks_, &QCheckBox::toggled, this, [this](bool on) {
        command_.setRecordTicks(on);
        showState();
    });
}

void DataMesCorrenteWindow::showMonths() {
    const auto months = command_.months();
    month_->clear();
    for (const WorkMonth month : months)
        month_->addItem(toQt(monthTitle(month)));
    const auto shown = std::find(months.begin(), months.end(), command_.settings().month);
    month_->setCurrentIndex(static_cast<int>(shown - months.begin()));
}

void DataMesCorrenteWindow::showMonth() {
    showMonths();
    reference_->setText(toQt(command_.referenceCaption()));
    reference_->setAccessibleName(reference_->text());
    reference_->setChecked(command_.refersToPresentMonth());
    heading_->setText(toQt(command_.holidayHeading()));
    setChips({toQt(command_.monthCaption())});
    const QSignalBlocker quiet(recordTicks_);
    recordTicks_->setChecked(command_.settings().recordTicks);
    rules_->refresh();
    showHolidays();
}

void DataMesCorrenteWindow::showHolidays() {
    grid_->refresh();
    holidays_->clear();
    for (const Date date : command_.settings().holidays())
        holidays_->addItem(toQt(dateText(date) + "  " + std::string(weekdayName(weekdayOf(date)))));
    const MonthDayCounts counts = command_.counts();
    counts_->setText(QStringLiteral("Quantidade de Dias Úteis: <b>%1</b><br>"
                                    "Quantidade dias de Reposo DSR: <b>%2</b>")
                         .arg(counts.businessDays)
                         .arg(counts.restDays));
    showState();
}

void DataMesCorrenteWindow::showState() {
    setState(command_.changed() ? QStringLiteral("Alterações não gravadas") : QString());
}

void DataMesCorrenteWindow::recordMonth() {
    if (command_.record()) setState(QStringLiteral("Mês gravado"));
}

void DataMesCorrenteWindow::confirmMonth() {
    if (command_.confirm()) accept();
}

bool DataMesCorrenteWindow::mayClose() {
    return command_.mayLeave();
}

}  // namespace winvrx
