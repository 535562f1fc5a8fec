#include "timecard/desktop/data_mes_corrente_window.h"

#include "foundation/desktop/look.h"
#include "foundation/desktop/qt_text.h"
#include "foundation/text.h"
#include "timecard/desktop/holiday_grid.h"
#include "timecard/desktop/wrapped_check_box.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>

namespace winvrx {

namespace {

const QString kTolerance = QStringLiteral(
    "Art. 58  § 1o Não serão descontadas nem computadas como jornada extraordinária as variações "
    "de horário no registro de ponto não excedentes de 5 minutos, observado o limite máximo de 10 "
    "minutos diários. ");

/// How a number stands on the screen, in the order of kMonthNumberFields.
struct NumberText {
    const char* objectName;
    const char* label;
    const char* suffix;
};
constexpr std::array<NumberText, kMonthNumberFields.size()> kNumberTexts = {{
    {"month.minimumPercent", "Hora Extra Índice Mí&nimo:", "%"},
    {"month.maximumPercent", "Hora Extra Índice Má&ximo:", "%"},
    {"month.nightMinimumPercent", "Hora Extra N&oturna Mínima:", "%"},
    {"month.nightMaximumPercent", "Hora Extra Noturna Máx&ima:", "%"},
    {"month.thresholdHours", "&Limite diário:", "Horas"},
    {"month.closingDay", "", ""},
}};
constexpr std::size_t kThreshold = 4;
constexpr std::size_t kClosingDay = 5;
constexpr int kLongestNumber = 3;
constexpr int kColumnsOfNumber = 3;

QVBoxLayout* columnIn(QWidget* widget) {
    auto* column = new QVBoxLayout(widget);
    look::layOutPart(*column);
    return column;
}

void addGroup(QVBoxLayout& column, const QString& caption, QWidget* parent) {
    if (column.count() > 0) column.addSpacing(look::kGap);
    column.addWidget(look::heading(caption, parent));
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
    connectRules();
    command_.open();
    showMonth();
    month_->setFocus();
}

QWidget* DataMesCorrenteWindow::buildBody() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    row->addWidget(buildMonthColumn(), 2);
    row->addWidget(buildRulesColumn(), 3);
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

QWidget* DataMesCorrenteWindow::buildRulesColumn() {
    auto* widget = new QWidget(this);
    QVBoxLayout* column = columnIn(widget);
    addClosing(*column);
    addOvertime(*column);
    addTotals(*column);
    column->addStretch();
    QLabel* tolerance = look::label(kTolerance, look::TextSize::Hint, widget);
    tolerance->setObjectName(QStringLiteral("month.tolerance"));
    tolerance->setWordWrap(true);
    column->addWidget(tolerance);
    return widget;
}

QRadioButton* DataMesCorrenteWindow::addChoice(const QString& caption, const QString& objectName) {
    auto* choice = new QRadioButton(caption, this);
    choice->setObjectName(objectName);
    choice->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    return choice;
}

void DataMesCorrenteWindow::addClosing(QVBoxLayout& column) {
    addGroup(column, QStringLiteral("Fechamento do ponto (Início)"), this);
    fixedMonth_ = addChoice(QStringLiteral("Mês &Fixo"), QStringLiteral("month.fixedMonth"));
    startDay_ = addChoice(QStringLiteral("Iníciar todo &dia:"), QStringLiteral("month.startDay"));
    auto* group = new QButtonGroup(this);
    group->addButton(fixedMonth_);
    group->addButton(startDay_);
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kGap);
    grid->addWidget(fixedMonth_, 0, 0);
    grid->addWidget(startDay_, 0, 1);
    addNumber(*grid, 0, 2, kClosingDay);
    grid->setColumnStretch(kColumnsOfNumber + 2, 1);
    column.addLayout(grid);
}

void DataMesCorrenteWindow::addNumber(QGridLayout& grid, int row, int column, std::size_t field) {
    const NumberText& text = kNumberTexts[field];
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QString::fromUtf8(text.objectName));
    edit->setAccessibleName(toQt(kMonthNumberFields[field].caption));
    edit->setMaxLength(kLongestNumber);
    edit->setAlignment(Qt::AlignRight);
    edit->setFont(look::fixedFont());
    edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 8);
    QLabel* label = look::label(QString::fromUtf8(text.label), look::TextSize::Body, this);
    label->setBuddy(edit);
    QLabel* hint = look::label(QString(), look::TextSize::Hint, this);
    hint->setObjectName(edit->objectName() + QStringLiteral(".hint"));
    QPalette colors = palette();
    colors.setColor(QPalette::PlaceholderText, look::color(look::Tint::Warning, colors));
    hint->setPalette(colors);
    grid.addWidget(label, row, column);
    grid.addWidget(edit, row, column + 1);
    grid.addWidget(look::label(QString::fromUtf8(text.suffix), look::TextSize::Body, this), row,
                   column + 2);
    grid.addWidget(hint, row + 1, column, 1, kColumnsOfNumber);
    numbers_[field] = {edit, hint};
}

void DataMesCorrenteWindow::addOvertime(QVBoxLayout& column) {
    addGroup(column, QStringLiteral("Configurações de Horas Extras:"), this);
    differentiated_ = new WrappedCheckBox(QStringLiteral("month.differentiated"), this);
    column.addWidget(differentiated_);
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kSmallGap);
    grid->setHorizontalSpacing(look::kGap);
    for (std::size_t field = 0; field < kThreshold; ++field) {
        const int place = static_cast<int>(field);
        addNumber(*grid, place / 2 * 2, place % 2 * (kColumnsOfNumber + 1), field);
    }
    addNumber(*grid, 4, 0, kThreshold);
    grid->setColumnMinimumWidth(kColumnsOfNumber, look::kGroupGap);
    grid->setColumnStretch(kColumnsOfNumber * 2 + 1, 1);
    column.addLayout(grid);
    bothLevels_ =
        addChoice(QStringLiteral("Usar as &2 (duas) Opções de Horas Extras Minima e Máxima"),
                  QStringLiteral("month.bothLevels"));
    singleLevel_ =
        addChoice(QStringLiteral("Usar Somente &1 (um) Unico Percentual de Horas Extras para 100%"),
                  QStringLiteral("month.singleLevel"));
    auto* group = new QButtonGroup(this);
    for (QRadioButton* choice : {bothLevels_, singleLevel_}) {
        group->addButton(choice);
        column.addWidget(choice);
    }
    modeNotice_ = look::label(QString(), look::TextSize::Hint, this);
    modeNotice_->setObjectName(QStringLiteral("month.modeNotice"));
    modeNotice_->setWordWrap(true);
    column.addWidget(modeNotice_);
}

void DataMesCorrenteWindow::addTotals(QVBoxLayout& column) {
    addGroup(column, QStringLiteral("Opções de Formatação do Resultado Resumo Horas:"), this);
    clockTotals_ =
        addChoice(QStringLiteral("Formatação &Hora: 09:16"), QStringLiteral("month.clockTotals"));
    decimalTotals_ = addChoice(QStringLiteral("Formatação Decim&al: 8,76"),
                               QStringLiteral("month.decimalTotals"));
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    for (QRadioButton* choice : {clockTotals_, decimalTotals_}) {
        group->addButton(choice);
        row->addWidget(choice);
        row->addSpacing(look::kGroupGap);
    }
    row->addStretch();
    column.addLayout(row);
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

void DataMesCorrenteWindow::connectRules() {
    for (std::size_t field = 0; field < numbers_.size(); ++field)
        connect(numbers_[field].edit, &QLineEdit::textEdited, this,
                [this, field](const QString& text) {
                    command_.type(kMonthNumberFields[field], toUtf8(text));
                    if (field == kClosingDay) startDay_->setChecked(true);
                    showRules();
                });
    connect(fixedMonth_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setFixedMonth(on);
        showRules();
    });
    connect(differentiated_->box(), &QCheckBox::toggled, this, [this](bool on) {
        command_.setDifferentiatedPercent(on);
        showRules();
    });
    connect(bothLevels_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setMode(on ? OvertimeMode::BothLevels : OvertimeMode::SingleLevel);
        showRules();
    });
    connect(clockTotals_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setTotalsFormat(on ? TotalsFormat::HoursAndMinutes : TotalsFormat::DecimalHours);
        showRules();
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
    const MonthSettings& settings = command_.settings();
    // Each choice is shown before any of them reports back what the others still show.
    const QSignalBlocker quiet[] = {QSignalBlocker(recordTicks_), QSignalBlocker(fixedMonth_),
                                    QSignalBlocker(bothLevels_), QSignalBlocker(clockTotals_),
                                    QSignalBlocker(differentiated_->box())};
    recordTicks_->setChecked(settings.recordTicks);
    (settings.fixedMonth ? fixedMonth_ : startDay_)->setChecked(true);
    (settings.mode == OvertimeMode::BothLevels ? bothLevels_ : singleLevel_)->setChecked(true);
    const bool clock = settings.totalsFormat == TotalsFormat::HoursAndMinutes;
    (clock ? clockTotals_ : decimalTotals_)->setChecked(true);
    differentiated_->box()->setChecked(settings.differentiatedPercent);
    for (std::size_t field = 0; field < numbers_.size(); ++field)
        numbers_[field].edit->setText(toQt(command_.numbers().*kMonthNumberFields[field].typed));
    showHolidays();
    showRules();
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

void DataMesCorrenteWindow::showRules() {
    differentiated_->setCaption(toQt(command_.differentiatedCaption()));
    modeNotice_->setText(toQt(command_.modeNotice()));
    for (std::size_t field = 0; field < numbers_.size(); ++field) {
        const std::string finding = command_.findingOf(kMonthNumberFields[field]);
        numbers_[field].hint->setText(finding.empty() ? QString()
                                                      : QStringLiteral("⚠ ") + toQt(finding));
    }
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
