#include "timecard/card/desktop/application_bar.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>

namespace winvrx {

namespace {

const QString kSameHours = QStringLiteral("Aplicar<Horário de Trabalho> Igual p/todos do Turno");
const QString kSameHoursOf =
    QStringLiteral("Aplicar <Quadro de Horário de Trabalho> e <Ponto> Igual p/todos do ");

}  // namespace

ApplicationBar::ApplicationBar(CartaoPontoDados& command, QWidget* parent)
    : QWidget(parent),
      command_(command),
      fixed_(buildMinutes(QStringLiteral("Minutos &Fixos"), QStringLiteral("card.minutesFixed"),
                          Minutes::Fixed)),
      varied_(buildMinutes(QStringLiteral("Minutos &Variados"),
                           QStringLiteral("card.minutesVaried"), Minutes::Varied)),
      situation_(new QComboBox(this)),
      sameHours_(new QCheckBox(this)) {
    varied_->setToolTip(QStringLiteral(
        "Cada hora muda até 5 minutos de um dia para o outro, até 10 minutos no dia."));
    buildSituation();
    sameHours_->setObjectName(QStringLiteral("card.sameHours"));
    connect(sameHours_, &QCheckBox::toggled, this, &ApplicationBar::showCaption);
    auto* row = new QHBoxLayout(this);
    look::layOutPart(*row);
    row->addWidget(fixed_);
    row->addWidget(varied_);
    row->addSpacing(look::kGap);
    row->addLayout(look::captioned(QStringLiteral("Si&tuação"), situation_));
    row->addStretch();
    row->addWidget(sameHours_);
}

QRadioButton* ApplicationBar::buildMinutes(const QString& text, const QString& objectName,
                                           Minutes minutes) {
    auto* button = new QRadioButton(text, this);
    button->setObjectName(objectName);
    connect(button, &QRadioButton::clicked, this, [this, minutes] {
        (void)command_.chooseMinutes(minutes);
        refresh();
    });
    return button;
}

void ApplicationBar::buildSituation() {
    look::name(*situation_, QStringLiteral("card.situation"),
               QStringLiteral("Situação dos dias sem horário de trabalho"));
    situation_->setToolTip(QStringLiteral(
        "Situação que o ponto aplicado dá aos dias de trabalho que ficam sem horas."));
    situation_->setEditable(true);
    look::name(*situation_->lineEdit(), QStringLiteral("card.situation.text"),
               situation_->accessibleName());
    situation_->addItem(QString());
    for (const Situation& situation : kSituations)
        situation_->addItem(toQt(situation.word));
    situation_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(situation_, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { command_.setSituationToApply(toUtf8(text)); });
}

bool ApplicationBar::sameHours() const {
    return sameHours_->isChecked();
}

void ApplicationBar::showCaption() {
    const QString caption =
        sameHours() ? kSameHoursOf + toQt(codeOf(command_.list().shift())) : kSameHours;
    sameHours_->setAccessibleName(caption);
    // The long caption takes two lines.
    sameHours_->setText(
        QString(caption).replace(QStringLiteral("> e <"), QStringLiteral("> e\n<")));
}

void ApplicationBar::refresh() {
    setEnabled(command_.company().has_value());
    const bool varied = command_.minutes() == Minutes::Varied;
    (varied ? varied_ : fixed_)->setChecked(true);
    showCaption();
}

}  // namespace winvrx
