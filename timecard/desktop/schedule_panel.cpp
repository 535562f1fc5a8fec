#include "timecard/desktop/schedule_panel.h"

#include "foundation/desktop/look.h"
#include "foundation/desktop/qt_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace winvrx {

namespace {

constexpr int kTimesOfRow = 4;
constexpr int kLongestTime = 5;
constexpr std::array<const char*, kTimesOfRow> kTimeNames = {"Manhã Entrada", "Manhã Saída",
                                                             "Tarde Entrada", "Tarde Saída"};

}  // namespace

SchedulePanel::SchedulePanel(CartaoPontoDados& command, QWidget* parent)
    : QFrame(parent), command_(command) {
    look::setRole(*this, "panel");
    name_ = look::heading(QString(), this);
    name_->setObjectName(QStringLiteral("schedule.name"));
    facts_ = look::label(QString(), look::TextSize::Hint, this);
    facts_->setWordWrap(true);
    weekly_ = look::label(QString(), look::TextSize::Body, this);
    weekly_->setObjectName(QStringLiteral("schedule.weekly"));
    monthly_ = look::label(QString(), look::TextSize::Body, this);
    monthly_->setObjectName(QStringLiteral("schedule.monthly"));
    hint_ = look::label(QString(), look::TextSize::Hint, this);
    hint_->setObjectName(QStringLiteral("schedule.hint"));
    look::setTint(*hint_, look::Tint::Warning);
    save_ = new QPushButton(look::icon(QStringLiteral("save")), QStringLiteral("Gravar &Horário"));
    save_->setObjectName(QStringLiteral("schedule.save"));
    save_->setAccessibleName(QStringLiteral("Gravar Horário"));
    save_->setAutoDefault(false);
    connect(save_, &QPushButton::clicked, this, &SchedulePanel::saveRequested);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(look::kSmallGap);
    for (QLabel* label : {name_, facts_, weekly_, monthly_})
        texts->addWidget(label);
    auto* entry = new QVBoxLayout;
    entry->setSpacing(look::kSmallGap);
    entry->addLayout(buildTimes());
    auto* below = new QHBoxLayout;
    below->addWidget(hint_, 1);
    below->addWidget(save_);
    entry->addLayout(below);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(look::kMargin, look::kGap, look::kMargin, look::kGap);
    row->setSpacing(look::kGroupGap);
    row->addLayout(texts, 1);
    row->addLayout(entry);
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
        grid->addWidget(times_[position], 1 + place / kTimesOfRow, 1 + place % kTimesOfRow);
    }
    QLabel* weekday = look::label(QStringLiteral("Segunda a se&xta"), look::TextSize::Body, this);
    weekday->setBuddy(times_[0]);
    grid->addWidget(weekday, 1, 0);
    saturday_ = look::label(QString(), look::TextSize::Body, this);
    saturday_->setObjectName(QStringLiteral("schedule.saturday"));
    saturday_->setBuddy(times_[kFirstSaturdayTime]);
    grid->addWidget(saturday_, 2, 0);
    return grid;
}

QLineEdit* SchedulePanel::buildTime(std::size_t position) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QStringLiteral("schedule.time%1").arg(position + 1));
    const QString day = position < kFirstSaturdayTime ? QStringLiteral("Segunda a sexta, ")
                                                      : QStringLiteral("Sábado, ");
    edit->setAccessibleName(day + QString::fromUtf8(kTimeNames[position % kTimesOfRow]));
    edit->setMaxLength(kLongestTime);
    edit->setFont(look::fixedFont());
    edit->setAlignment(Qt::AlignCenter);
    edit->setPlaceholderText(QStringLiteral("--:--"));
    edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 11);
    connect(edit, &QLineEdit::textEdited, this, [this, position] { take(position); });
    connect(edit, &QLineEdit::editingFinished, this, [this, position] {
        times_[position]->setText(toQt(command_.schedule().text(position)));
    });
    return edit;
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
    for (std::size_t position = 0; position < kScheduleTimes; ++position)
        times_[position]->setText(toQt(command_.schedule().text(position)));
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
    hint_->setText(finding.isEmpty() ? finding : QStringLiteral("⚠ ") + finding);
}

}  // namespace winvrx
