#include "personnel/contract/desktop/contract_form.h"

#include "foundation/register/desktop/record_form.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/contract/amount_in_words.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

enum Group { kTerms, kWork, kBooklet };

constexpr FieldKind kKindField{.choices = choicesIn<kContractKinds>};
constexpr FieldKind kPlaceField{.choices = choicesIn<kBookletPlaces>};

using Placement = FieldPlacement<Contract>;

constexpr std::array kPlacements = {
    Placement{&Contract::kind, "kind", 'T', kTerms, 0, 4, kKindField},
    Placement{&Contract::begins, "begins", 'N', kTerms, 0, 2, kContractDateField},
    Placement{&Contract::signedOn, "signedOn", 'D', kTerms, 0, 2, kContractDateField},
    Placement{&Contract::trialDays, "trialDays", 'X', kTerms, 0, 2},
    Placement{&Contract::extensionDays, "extensionDays", 'P', kTerms, 0, 2},
    Placement{&Contract::ends, "ends", 'M', kTerms, 1, 3, kContractDateField},
    Placement{&Contract::reason, "reason", 'V', kTerms, 1, 9},
    Placement{&Contract::workplace, "workplace", 'L', kWork, 0, 12},
    Placement{&Contract::schedule, "schedule", 'H', kWork, 1, 12},
    Placement{&Contract::salary, "salary", 'R', kWork, 2, 3, kMoneyField},
    Placement{&Contract::establishment, "establishment", 'E', kBooklet, 0, 4},
    Placement{&Contract::registration, "registration", 'I', kBooklet, 0, 2},
    Placement{&Contract::sheet, "sheet", 'F', kBooklet, 0, 2},
};
static_assert(kPlacements.size() == kContractFields.size());

constexpr int kPlaceColumn = 8;
constexpr int kWordsColumn = 3;

QString endsText(const Contract& contract) {
    const auto first = contract.trialEnd();
    if (!first) return {};
    QString text = QStringLiteral("Experiência até ") + toQt(dateText(*first));
    if (const auto extended = contract.extendedEnd())
        text += QStringLiteral("; com a prorrogação, até ") + toQt(dateText(*extended));
    return text + QLatin1Char('.');
}

QString wordsOf(const std::string& salary) {
    const auto amount = parseAmountForWords(salary);
    return amount ? QStringLiteral("R$ ") + toQt(amountInWords(*amount)) : QString();
}

}  // namespace

ContractForm::ContractForm(Date today, QWidget* parent) : QWidget(parent), today_(today) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    QGridLayout* terms = addGrid(*column, nullptr);
    addFields(*terms, kTerms);
    trial_ = look::line(QStringLiteral("contrato.trial"), look::TextSize::Hint, this);
    column->addWidget(trial_);
    QGridLayout* work = addGrid(*column, "Trabalho e remuneração");
    addFields(*work, kWork);
    words_ = look::paragraph(QStringLiteral("contrato.words"), look::TextSize::Body, this);
    work->addWidget(words_, 2, kWordsColumn, 1, kGridColumns - kWordsColumn, Qt::AlignVCenter);
    QGridLayout* booklet = addGrid(*column, "Carteira de trabalho");
    addFields(*booklet, kBooklet);
    addPlace(*booklet);
    column->addStretch();
    field(&Contract::sheet).input()->setProperty("lastField", true);
}

QGridLayout* ContractForm::addGrid(QVBoxLayout& column, const char* title) {
    if (title) column.addWidget(look::heading(QString::fromUtf8(title), this));
    QGridLayout* grid = look::fieldGrid(kGridColumns);
    column.addLayout(grid);
    return grid;
}

void ContractForm::addFields(QGridLayout& grid, int group) {
    placeGroup(kPlacements, group, grid, [this](const Placement& place) {
        Field* made = newField(place, QStringLiteral("contrato"), today_, this);
        fields_.push_back({place.member, made});
        connect(made, &Field::edited, this, &ContractForm::follow);
        connect(made, &Field::finished, this, &ContractForm::finished);
        return made;
    });
}

void ContractForm::addPlace(QGridLayout& grid) {
    place_ = new Field({.caption = QStringLiteral("Pá&gina da carteira"),
                        .objectName = QStringLiteral("contrato.place"),
                        .width = 0,
                        .kind = kPlaceField},
                       this);
    place_->setStored(std::string(kBookletPlaces.front()));
    grid.addWidget(place_, 0, kPlaceColumn, 1, kGridColumns - kPlaceColumn, Qt::AlignTop);
}

Field& ContractForm::field(std::string Contract::*member) const {
    return *std::ranges::find(fields_, member, &Placed::member)->field;
}

void ContractForm::showContract(const Contract& contract, const Employee& employee) {
    shown_ = contract;
    for (const Placed& placed : fields_) {
        placed.field->setStored(contract.*placed.member);
        placed.field->setFinding({});
    }
    const auto fromRegister = [this](std::string Contract::*member, const std::string& text) {
        field(member).setReadOnly(!text.empty());
        if (!text.empty()) field(member).showInstead(toQt(text));
        field(member).setNote(text.empty() ? QString() : QStringLiteral("Do cadastro"));
    };
    fromRegister(&Contract::registration, employee.registration);
    fromRegister(&Contract::sheet, employee.sheet);
    showParts(contract);
}

Contract ContractForm::typed() const {
    Contract contract = shown_;
    for (const Placed& placed : fields_)
        contract.*placed.member = placed.field->stored();
    return contract;
}

bool ContractForm::isChanged() const {
    return typed() != shown_;
}

BookletPlace ContractForm::place() const {
    const auto found = std::ranges::find(kBookletPlaces, place_->stored());
    return found == kBookletPlaces.end()
               ? BookletPlace::LeftAbove
               : static_cast<BookletPlace>(found - kBookletPlaces.begin());
}

void ContractForm::follow() {
    showParts(typed());
    emit edited();
}

/// Only what the kind of contract has.
void ContractForm::showParts(const Contract& contract) {
    const bool fixed = contract.kindOf() == ContractKind::FixedTerm;
    field(&Contract::trialDays).setVisible(contract.hasTrial());
    field(&Contract::extensionDays).setVisible(contract.hasTrial());
    field(&Contract::ends).setVisible(fixed);
    field(&Contract::reason).setVisible(fixed);
    look::showText(*trial_, endsText(contract));
    words_->setText(wordsOf(contract.salary));
}

void ContractForm::showFindings(const Findings<Contract>& findings) {
    for (const Placed& placed : fields_)
        placed.field->setFinding(textFor(placed.member, findings));
}

void ContractForm::focus(std::string Contract::*member) {
    field(member).takeFocus();
}

void ContractForm::focusFirst() {
    focus(&Contract::kind);
}

}  // namespace winvrx
