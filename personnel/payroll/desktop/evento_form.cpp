#include "personnel/payroll/desktop/evento_form.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/wrapped_check_box.h"
#include "personnel/payroll/eventos.h"

#include <QCheckBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

struct PayrollQuestion {
    PayrollKind payroll;
    const char* name;
    const char* text;
};
constexpr std::array kQuestions = {PayrollQuestion{PayrollKind::Month, "eventos.month",
                                                   "Este evento entra na folha mensal (salário)?"},
                                   PayrollQuestion{PayrollKind::Vacation, "eventos.vacation",
                                                   "Este evento entra no pagamento de férias?"},
                                   PayrollQuestion{PayrollKind::Thirteenth, "eventos.thirteenth",
                                                   "Este evento entra no 13º salário?"}};

constexpr int kHighestReference = 999;

constexpr const char* kNote =
    "A referência é a quantidade ou o percentual do evento: 220 horas no salário base, 050 na hora "
    "extra de 50%, 006 no vale transporte, 000 onde não há. Todo crédito novo entra nas bases de "
    "INSS, IRRF e FGTS. O valor de um evento que o sistema não calcula é digitado na folha.";

/// What a new event begins with: a credit of the month's payroll.
PayrollEvent freshEvent() {
    return {.code = {}, .name = {}, .kind = "1", .reference = "000", .flags = "01111000"};
}

}  // namespace

EventoForm::EventoForm(Eventos& events, QWidget* window) : RecordEditor(window), events_(events) {
    auto* form = new QWidget(window);
    auto* column = new QVBoxLayout(form);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Evento"), form));
    const auto field = [&](const char* caption, const char* name,
                           std::string PayrollEvent::*member) {
        auto* made = new Field({.caption = QString::fromUtf8(caption),
                                .objectName = QLatin1String(name),
                                .width = fieldHolding(kPayrollEventFields, member).column.width},
                               form);
        add(made);
        column->addWidget(made);
        return made;
    };
    name_ = field("&Nome do evento *", "eventos.name", &PayrollEvent::name);
    reference_ = field("Re&ferência", "eventos.reference", &PayrollEvent::reference);
    auto* number = qobject_cast<QLineEdit*>(reference_->input());
    number->setValidator(new QIntValidator(0, kHighestReference, number));
    kind_ = new QCheckBox(form);
    look::name(*kind_, QStringLiteral("eventos.kind"), QStringLiteral("Tipo do evento"));
    connect(kind_, &QCheckBox::toggled, this, [this] {
        showKind();
        emit edited();
    });
    column->addWidget(kind_);
    column->addSpacing(look::kGap);
    addPayrolls(*column);
    QLabel* note = look::label(QString::fromUtf8(kNote), look::TextSize::Hint, form);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addStretch();
    setWidget(look::scrolled(form, window));
}

void EventoForm::addPayrolls(QVBoxLayout& column) {
    for (std::size_t at = 0; at < kQuestions.size(); ++at) {
        const PayrollQuestion& asked = kQuestions[at];
        auto* box = new WrappedCheckBox(QLatin1String(asked.name), column.parentWidget());
        box->setCaption(QString::fromUtf8(asked.text));
        connect(box->box(), &QCheckBox::toggled, this, &EventoForm::edited);
        column.addWidget(box);
        payrolls_[at] = {asked.payroll, box};
    }
}

void EventoForm::showKind() {
    kind_->setText(toQt(kind_->isChecked() ? kEarningCaption : kDeductionCaption));
}

void EventoForm::show(std::optional<std::size_t> position) {
    shown_ = position ? events_.lines().at(*position).record : freshEvent();
    name_->setStored(shown_.name);
    reference_->setStored(shown_.reference);
    kind_->setChecked(shown_.isEarning());
    showKind();
    for (const auto& [payroll, box] : payrolls_) {
        box->box()->setChecked(shown_.belongsTo(payroll));
        box->setEnabled(!position);
    }
}

NewEvent EventoForm::typedNew() const {
    PayrollEvent typed;
    typed.reference = reference_->stored();
    NewEvent said{name_->stored(), kind_->isChecked(), typed.referenceNumber(), {}};
    for (const auto& [payroll, box] : payrolls_)
        if (box->box()->isChecked()) said.payrolls.push_back(payroll);
    return said;
}

bool EventoForm::save(std::optional<std::size_t> position) {
    const NewEvent said = typedNew();
    PayrollEvent changed = shown_;
    changed.name = said.name;
    changed.kind = said.isEarning ? "1" : "0";
    changed.reference = reference_->stored();
    if (position ? events_.change(*position, changed) : events_.includeNew(said)) return true;
    if (said.name.empty()) focus(name_);
    return false;
}

bool EventoForm::isDirty() const {
    return RecordEditor::isDirty() || kind_->isChecked() != shown_.isEarning() ||
           std::ranges::any_of(payrolls_, [this](const auto& one) {
               return one.second->box()->isChecked() != shown_.belongsTo(one.first);
           });
}

}  // namespace winvrx
