#include "timecard/card/desktop/schedule_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/schedule/typed_time.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace winvrx {

namespace {

constexpr int kTimesOfRow = 4;
constexpr std::size_t kLongestTime = 5;
constexpr std::array<const char*, kTimesOfRow> kTimeNames = {"Manhã Entrada", "Manhã Saída",
                                                             "Tarde Entrada", "Tarde Saída"};

}  // namespace

SchedulePanel::SchedulePanel(CartaoPontoDados& command, QWidget* parent)
    : QFrame(parent), command_(command) {
    look::setRole(*this, "panel");
    buildTexts();
    auto* hours = new QHBoxLayout;
    hours->setSpacing(look::kGap);
    hours->addWidget(weekly_);
    hours->addWidget(monthly_);
    hours->addStretch();
    auto* texts = new QVBoxLayout;
    texts->setSpacing(look::kSmallGap);
    texts->addWidget(name_);
    texts->addWidget(facts_);
    texts->addLayout(hours);
    texts->addWidget(hint_);
    texts->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(look::kMargin, look::kGap, look::kMargin, look::kGap);
    row->setSpacing(look::kMargin);
    row->addLayout(texts, 1);
    row->addLayout(buildTimes());
}

void SchedulePanel::buildTexts() {
    name_ = look::paragraph(QStringLiteral("schedule.name"), look::TextSize::Heading, this);
    facts_ = look::label(QString(), look::TextSize::Hint, this);
    facts_->setWordWrap(true);
    weekly_ = look::line(QStringLiteral("schedule.weekly"), look::TextSize::Hint, this);
    monthly_ = look::line(QStringLiteral("schedule.monthly"), look::TextSize::Hint, this);
    hint_ = look::line(QStringLiteral("schedule.hint"), look::TextSize::Hint, this);
    look::setTint(*hint_, look::Tint::Warning);
}

void SchedulePanel::buildSave() {
    second_ = new QCheckBox(QStringLiteral("Se&gundo horário"), this);
    second_->setObjectName(QStringLiteral("schedule.second"));
    second_->setToolTip(QStringLiteral("Marca guardada com o horário; não muda o cálculo."));
    connect(second_, &QCheckBox::toggled, this, [this](bool on) {
        command_.schedule().setSecondFlag(on);
        emit edited();
    });
    save_ = new QPushButton(look::icon(QStringLiteral("save")), QStringLiteral("Gravar &Horário"));
    look::name(*save_, QStringLiteral("schedule.save"), QStringLiteral("Gravar Horário"));
    save_->setAutoDefault(false);
    connect(save_, &QPushButton::clicked, this, &SchedulePanel::saveRequested);
}

QGridLayout* SchedulePanel::buildTimes() {
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kSmallGap);
    grid->setHorizontalSpacing(look::kGap);
    for (int column = 0; column < kTimesOfRow; ++column)
        grid->addWidget(look::label(QString::fromUtf8(kTimeNames[static_cast<std::size_t>(column)]),
                                    look::TextSize::Hint, this),
                        0, column + 1);
    for (std::size_t position = 0; position < kScheduleTimes; ++position) {
        times_[position] = buildTime(position);
        const int place = static_cast<int>(position);
        grid->addWidget(times_[position]->bareInput(), 1 + place / kTimesOfRow,
                        1 + place % kTimesOfRow);
    }
    QLabel* weekday = look::label(QStringLiteral("Segunda a se&xta"), look::TextSize::Body, this);
    weekday->setBuddy(times_[0]->input());
    grid->addWidget(weekday, 1, 0);
    saturday_ = look::line(QStringLiteral("schedule.saturday"), look::TextSize::Body, this);
    saturday_->setBuddy(times_[kFirstSaturdayTime]->input());
    grid->addWidget(saturday_, 2, 0);
    buildSave();
    grid->addWidget(save_, 1, kTimesOfRow + 1);
    grid->addWidget(second_, 2, kTimesOfRow + 1);
    return grid;
}

Field* SchedulePanel::buildTime(std::size_t position) {
    const QString day = position < kFirstSaturdayTime ? QStringLiteral("Segunda a sexta, ")
                                                      : QStringLiteral("Sábado, ");
    auto* field = new Field({.caption = day + QString::fromUtf8(kTimeNames[position % kTimesOfRow]),
                             .objectName = QStringLiteral("schedule.time%1").arg(position + 1),
                             .width = kLongestTime,
                             .kind = kTimeField},
                            this);
    connect(field, &Field::edited, this, [this, position] { take(position); });
    return field;
}

void SchedulePanel::take(std::size_t position) {
    command_.schedule().type(position, toUtf8(times_[position]->text()));
    showTotals();
    emit edited();
}

QString SchedulePanel::employeeFacts() const {
    const Employee& one = *command_.selected();
    QStringList facts{
        QStringLiteral("Turno: ") + toQt(codeOf(one.shiftOr())),
        QStringLiteral("Escala: ") + toQt(codeOf(one.scaleOr())),
        QStringLiteral("Desc.Sem.: ") + toQt(one.restDay.empty() ? "dom" : one.restDay)};
    if (!one.admission.empty()) facts << QStringLiteral("Admissão: ") + toQt(one.admission);
    return facts.join(QStringLiteral("  ·  "));
}

void SchedulePanel::refresh() {
    const Employee* one = command_.selected();
    setEnabled(one != nullptr);
    name_->setText(one ? toQt(one->code + " " + one->name)
                       : QStringLiteral("Escolha um funcionário na lista"));
    facts_->setText(one ? employeeFacts() : QString());
    second_->setChecked(command_.schedule().secondFlag());
    for (std::size_t position = 0; position < kScheduleTimes; ++position)
        times_[position]->setStored(command_.schedule().text(position));
    saturday_->setText(toQt(command_.saturdayCaption())
                           .replace(QStringLiteral("Sábado"), QStringLiteral("Sá&bado")));
    showTotals();
}

void SchedulePanel::showTotals() {
    weekly_->setText(toQt(command_.weeklyCaption()));
    monthly_->setText(toQt(command_.monthlyCaption()));
    QString finding;
    for (std::size_t position = 0; position < kScheduleTimes && finding.isEmpty(); ++position)
        finding = toQt(command_.schedule().findingAt(position));
    look::showWarning(*hint_, finding);
}

}  // namespace winvrx
