#include "personnel/leaves/desktop/leave_form_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/leave_types.h"
#include "timecard/schedule/typed_time.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <array>
#include <string>
#include <string_view>

namespace winvrx {

namespace {

template <std::string_view (*Meant)(std::string_view)>
std::string choiceOf(std::string_view stored) {
    return std::string(Meant(stored));
}

constexpr FieldKind kTypeField{.completed = choiceOf<leaveTypeOf>,
                               .choices = choicesIn<kLeaveTypes>};
constexpr FieldKind kTerminationField{.completed = choiceOf<terminationTextOf>,
                                      .choices = choicesIn<kTerminationTypes>};
constexpr FieldKind kNoticeField{.completed = choiceOf<noticeTextOf>,
                                 .choices = choicesIn<kNoticeTypes>};

constexpr std::size_t kDateWidth = 10;

struct Shown {
    LeaveInput input;
    const char* name;
    const char* caption;
    std::size_t width;
    FieldKind kind = kContractDateField;
};

/// In the order in which they are typed.
constexpr std::array kShown = {
    Shown{LeaveInput::Type, "type", "&Tipo de Afastamento", 30, kTypeField},
    Shown{LeaveInput::FirstDay, "firstDay", "&Primeiro dia", kDateWidth},
    Shown{LeaveInput::Days, "days", "&Dias", 4, kNumberField},
    Shown{LeaveInput::LastDay, "lastDay", "&Último dia", kDateWidth},
    Shown{LeaveInput::Hours, "hours", "&Horas", 2, kNumberField},
    Shown{LeaveInput::TerminationType, "terminationType", "Tipo de &Rescisão", 55,
          kTerminationField},
    Shown{LeaveInput::NoticeType, "noticeType", "Tipo de A&viso", 20, kNoticeField},
    Shown{LeaveInput::NoticeGiven, "noticeGiven", "Aviso comunicado em", kDateWidth},
    Shown{LeaveInput::NoticeBegins, "noticeBegins", "Início do aviso", kDateWidth},
    Shown{LeaveInput::NoticeEnds, "noticeEnds", "Fim do aviso", kDateWidth},
    Shown{LeaveInput::LastDayWorked, "lastDayWorked", "Último dia trabalhado", kDateWidth},
    Shown{LeaveInput::PaymentDue, "paymentDue", "Prazo do pagamento", kDateWidth},
    Shown{LeaveInput::Homologation, "homologation", "Hora da homologação", 5, kTimeField},
    Shown{LeaveInput::Dismissal, "dismissal", "Data de De&missão", kDateWidth},
};
constexpr std::size_t kInFirstRow = 5;

bool isNumber(std::size_t place) {
    return kShown[place].kind.shape == FieldKind::Shape::Number;
}

}  // namespace

LeaveFormPanel::LeaveFormPanel(Afastamento& command, QWidget* parent)
    : QWidget(parent), command_(command) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->setSpacing(look::kSmallGap / 2);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    buildLeave(*row);
    column->addLayout(row);
    period_ = look::line(QStringLiteral("leaves.period"), look::TextSize::Hint, this);
    look::setTint(*period_, look::Tint::Warning);
    column->addWidget(period_);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kGap);
    grid->setVerticalSpacing(look::kSmallGap / 4);
    grid->setColumnStretch(2, 1);
    buildTermination(*grid);
    column->addLayout(grid);
}

Field* LeaveFormPanel::make(std::size_t place, QWidget* parent) {
    const Shown& shown = kShown[place];
    auto* field = new Field({.caption = QString::fromUtf8(shown.caption),
                             .objectName = QStringLiteral("leaves.") + QLatin1String(shown.name),
                             .width = shown.width,
                             .kind = shown.kind,
                             .today = command_.today()},
                            parent);
    const LeaveInput input = shown.input;
    fields_[input] = field;
    connect(field, &Field::edited, this, [this, input] { take(input); });
    connect(field, &Field::finished, this, [this, input] { finish(input); });
    return field;
}

void LeaveFormPanel::buildLeave(QHBoxLayout& row) {
    for (std::size_t place = 0; place < kInFirstRow; ++place)
        row.addWidget(make(place, this), place == 0 ? 3 : isNumber(place) ? 0 : 2, Qt::AlignTop);
}

void LeaveFormPanel::buildTermination(QGridLayout& grid) {
    for (std::size_t place = kInFirstRow; place < kShown.size(); ++place)
        make(place, this)
            ->placeInRow(grid, static_cast<int>(place - kInFirstRow),
                         kShown[place].input == LeaveInput::TerminationType);
    fields_[LeaveInput::Dismissal]->input()->setProperty("lastField", true);
}

/// The field in hand stays as it is typed; the others follow.
void LeaveFormPanel::take(LeaveInput input) {
    command_.form().type(input, fields_[input]->stored());
    for (const Shown& shown : kShown) {
        if (shown.input == input) continue;
        showField(shown.input);
        showNotes(shown.input);
    }
    showParts();
    emit edited();
}

void LeaveFormPanel::finish(LeaveInput input) {
    if (input <= LeaveInput::Hours) command_.lookForPunches();
    // What was emptied has been worked out again.
    showField(input);
    showNotes(input);
    showNotes(LeaveInput::FirstDay);
}

void LeaveFormPanel::showField(LeaveInput input) {
    const std::string& text = command_.form().text(input);
    if (fields_[input]->stored() != text) fields_[input]->setStored(text);
}

void LeaveFormPanel::showNotes(LeaveInput input) {
    const LeaveForm& form = command_.form();
    QString note = toQt(form.rule(input));
    if (form.isTypedOver(input)) note = QStringLiteral("✎ Digitado no lugar de ") + note;
    Field& field = *fields_[input];
    // In the first row the rules have no room; they stand in the tip.
    field.input()->setToolTip(note);
    field.setNote(input == LeaveInput::LastDay && !form.isTypedOver(input) ? QString() : note);
    const QString finding = toQt(command_.finding(input));
    if (input != LeaveInput::FirstDay) return field.setFinding(finding);
    look::showWarning(*period_, finding);
}

void LeaveFormPanel::showParts() {
    const bool ends = command_.form().isTermination();
    for (std::size_t place = kInFirstRow; place < kShown.size(); ++place)
        fields_[kShown[place].input]->setPlacedVisible(ends);
    Field& dismissal = *fields_[LeaveInput::Dismissal];
    dismissal.setPlacedVisible(ends || command_.isInactive());
    dismissal.setReadOnly(command_.isInactive());
    fields_[LeaveInput::Hours]->input()->setProperty("lastField", !ends);
}

void LeaveFormPanel::refresh() {
    for (const Shown& shown : kShown)
        fields_[shown.input]->setStored(command_.form().text(shown.input));
    follow();
}

void LeaveFormPanel::follow() {
    for (const Shown& shown : kShown) {
        showField(shown.input);
        showNotes(shown.input);
    }
    showParts();
}

void LeaveFormPanel::focus(LeaveInput input) {
    fields_[input]->takeFocus();
}

}  // namespace winvrx
