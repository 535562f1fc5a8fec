#include "timecard/month/desktop/month_rules_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/wrapped_check_box.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

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
constexpr std::size_t kLongestNumber = 3;
constexpr std::size_t kLongestThreshold = 5;
constexpr int kColumnsOfNumber = 3;

void addGroup(QVBoxLayout& column, const QString& caption, QWidget* parent) {
    if (column.count() > 0) column.addSpacing(look::kGap);
    column.addWidget(look::heading(caption, parent));
}

}  // namespace

MonthRulesPanel::MonthRulesPanel(DataMesCorrente& command, QWidget* parent)
    : QWidget(parent), command_(command) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    addClosing(*column);
    addOvertime(*column);
    addTotals(*column);
    column->addStretch();
    QLabel* shared =
        look::label(QStringLiteral("O mês, os feriados e as regras valem para todas as empresas."),
                    look::TextSize::Hint, this);
    shared->setObjectName(QStringLiteral("month.shared"));
    column->addWidget(shared);
    QLabel* tolerance = look::label(kTolerance, look::TextSize::Hint, this);
    tolerance->setObjectName(QStringLiteral("month.tolerance"));
    tolerance->setWordWrap(true);
    column->addWidget(tolerance);
    connectNumbers();
    connectChoices();
}

QRadioButton* MonthRulesPanel::addChoice(const QString& caption, const QString& objectName) {
    auto* choice = new QRadioButton(caption, this);
    look::name(*choice, objectName, caption);
    return choice;
}

void MonthRulesPanel::addClosing(QVBoxLayout& column) {
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
    period_ = look::line(QStringLiteral("month.period"), look::TextSize::Hint, this);
    grid->addWidget(period_, 0, kColumnsOfNumber + 2);
    grid->setColumnStretch(kColumnsOfNumber + 2, 1);
    column.addLayout(grid);
}

void MonthRulesPanel::addNumber(QGridLayout& grid, int row, int column, std::size_t place) {
    const NumberText& text = kNumberTexts[place];
    auto* field = new Field({.caption = QString::fromUtf8(text.label),
                             .objectName = QString::fromUtf8(text.objectName),
                             .width = place == kThreshold ? kLongestThreshold : kLongestNumber,
                             .kind = kNumberField},
                            this);
    look::name(*field->input(), QString::fromUtf8(text.objectName),
               toQt(kMonthNumberFields[place].caption));
    field->input()->setProperty("lastField", place == kThreshold);
    field->placeIn(grid, row, column, QString::fromUtf8(text.suffix));
    numbers_[place] = field;
}

void MonthRulesPanel::addOvertime(QVBoxLayout& column) {
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
    modeNotice_ = look::paragraph(QStringLiteral("month.modeNotice"), look::TextSize::Hint, this);
    column.addWidget(modeNotice_);
    ownRules_ = look::paragraph(QStringLiteral("month.ownRules"), look::TextSize::Hint, this);
    look::setTint(*ownRules_, look::Tint::Warning);
    column.addWidget(ownRules_);
}

void MonthRulesPanel::addTotals(QVBoxLayout& column) {
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

void MonthRulesPanel::connectNumbers() {
    for (std::size_t field = 0; field < numbers_.size(); ++field)
        connect(numbers_[field], &Field::edited, this, [this, field] {
            command_.type(kMonthNumberFields[field], toUtf8(numbers_[field]->text()));
            if (field == kClosingDay) startDay_->setChecked(true);
            takeNote();
        });
}

void MonthRulesPanel::connectChoices() {
    connect(fixedMonth_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setFixedMonth(on);
        takeNote();
    });
    connect(differentiated_->box(), &QCheckBox::toggled, this, [this](bool on) {
        command_.setDifferentiatedPercent(on);
        takeNote();
    });
    connect(bothLevels_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setMode(on ? OvertimeMode::BothLevels : OvertimeMode::SingleLevel);
        takeNote();
    });
    connect(clockTotals_, &QRadioButton::toggled, this, [this](bool on) {
        command_.setTotalsFormat(on ? TotalsFormat::HoursAndMinutes : TotalsFormat::DecimalHours);
        takeNote();
    });
}

void MonthRulesPanel::refresh() {
    const MonthSettings& settings = command_.settings();
    const QSignalBlocker quiet[] = {QSignalBlocker(fixedMonth_), QSignalBlocker(bothLevels_),
                                    QSignalBlocker(clockTotals_),
                                    QSignalBlocker(differentiated_->box())};
    (settings.fixedMonth ? fixedMonth_ : startDay_)->setChecked(true);
    (settings.overtime.mode == OvertimeMode::BothLevels ? bothLevels_ : singleLevel_)
        ->setChecked(true);
    const bool clock = settings.overtime.totalsFormat == TotalsFormat::HoursAndMinutes;
    (clock ? clockTotals_ : decimalTotals_)->setChecked(true);
    differentiated_->box()->setChecked(settings.overtime.differentiatedPercent);
    for (std::size_t field = 0; field < numbers_.size(); ++field)
        numbers_[field]->setStored(command_.numbers().*kMonthNumberFields[field].typed);
    showTexts();
}

void MonthRulesPanel::takeNote() {
    showTexts();
    emit edited();
}

void MonthRulesPanel::showTexts() {
    differentiated_->setCaption(withMnemonic(command_.differentiatedCaption(), 'P'));
    modeNotice_->setText(toQt(command_.modeNotice()));
    period_->setText(toQt(command_.closingPeriodText()));
    look::showWarning(*ownRules_, toQt(command_.ownRulesNotice()));
    for (std::size_t field = 0; field < numbers_.size(); ++field)
        numbers_[field]->setWarning(toQt(command_.findingOf(kMonthNumberFields[field])));
}

}  // namespace winvrx
