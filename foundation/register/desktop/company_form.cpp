#include "foundation/register/desktop/company_form.h"

#include "foundation/widgets/desktop/checked_field.h"
#include "foundation/widgets/desktop/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace winvrx {

namespace {

enum Group { kCompany, kOwner, kUnion };

using Placement = FieldPlacement<Company>;

constexpr std::array kPlacements = {
    Placement{&Company::code, "code", 'K', kCompany, 0, 1},
    Placement{&Company::name, "name", 'E', kCompany, 0, 8},
    Placement{&Company::taxId, "taxId", 'C', kCompany, 0, 3, FieldCheck::CnpjOrCpf},
    Placement{&Company::address, "address", 'N', kCompany, 1, 6},
    Placement{&Company::district, "district", 'B', kCompany, 1, 4},
    Placement{&Company::recordDate, "recordDate", 'K', kCompany, 1, 2},
    Placement{&Company::city, "city", 'D', kCompany, 2, 4},
    Placement{&Company::state, "state", 'U', kCompany, 2, 1},
    Placement{&Company::postalCode, "postalCode", 'P', kCompany, 2, 2},
    Placement{&Company::telephone, "telephone", 'T', kCompany, 2, 2},
    Placement{&Company::stateRegistration, "stateRegistration", 'I', kCompany, 2, 3},
    Placement{&Company::owner, "owner", 'O', kOwner, 0, 6},
    Placement{&Company::ownerNationality, "ownerNationality", 'L', kOwner, 0, 3},
    Placement{&Company::ownerMaritalStatus, "ownerMaritalStatus", 'V', kOwner, 0, 3},
    Placement{&Company::ownerProfession, "ownerProfession", 'F', kOwner, 1, 6},
    Placement{&Company::ownerIdentityCard, "ownerIdentityCard", 'R', kOwner, 1, 3},
    Placement{&Company::ownerTaxId, "ownerTaxId", 'C', kOwner, 1, 3, FieldCheck::Cpf},
    Placement{&Company::ownerAddress, "ownerAddress", 'M', kOwner, 2, 4},
    Placement{&Company::ownerDistrict, "ownerDistrict", 'B', kOwner, 2, 3},
    Placement{&Company::ownerPostalCode, "ownerPostalCode", 'P', kOwner, 2, 2},
    Placement{&Company::ownerCity, "ownerCity", 'D', kOwner, 2, 2},
    Placement{&Company::ownerState, "ownerState", 'A', kOwner, 2, 1},
    Placement{&Company::unionName, "unionName", 'N', kUnion, 0, 8},
    Placement{&Company::unionTaxId, "unionTaxId", 'J', kUnion, 0, 4, FieldCheck::Cnpj},
};

static_assert(kPlacements.size() == kCompanyFields.size());

TextField* fieldFor(const Placement& place, QWidget* parent) {
    const CompanyField& layout = fieldHolding(kCompanyFields, place.member);
    TextField* field = checkedField(withMnemonic(layout.caption, place.mnemonic),
                                    QStringLiteral("empresa.") + QLatin1String(place.name),
                                    layout.column.width, place.check, parent);
    if (place.member == &Company::code || place.member == &Company::recordDate) setReadOnly(*field);
    return field;
}

}  // namespace

CompanyForm::CompanyForm(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    auto* panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("empresa.form"));
    look::setRole(*panel, "panel");
    auto* column = new QVBoxLayout(panel);
    look::layOutBody(*column);
    addGroup(*column, QStringLiteral("Cadastro:"), kCompany);
    addGroup(*column, QStringLiteral("Proprietário"), kOwner);
    addGroup(*column, QStringLiteral("Sindicato"), kUnion);
    column->addStretch();
    setWidget(panel);
    fields_.fieldOf(&Company::unionTaxId)->edit()->setProperty("lastField", true);
}

void CompanyForm::addGroup(QVBoxLayout& column, const QString& heading, int group) {
    column.addWidget(look::label(heading, look::TextSize::Heading, this));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kGap);
    grid->setVerticalSpacing(look::kSmallGap / 2);
    fields_.layOut(kPlacements, group, *grid, [this](const Placement& place) {
        TextField* field = fieldFor(place, this);
        connect(field, &TextField::edited, this, &CompanyForm::edited);
        return field;
    });
    column.addLayout(grid);
}

void CompanyForm::showCompany(const Company& company) {
    shown_ = company;
    fields_.show(company);
    ensureVisible(0, 0);
}

Company CompanyForm::typed() const {
    Company company = shown_;
    fields_.readInto(company);
    return company;
}

void CompanyForm::focusFirst() {
    QLineEdit* first = fields_.fieldOf(&Company::name)->edit();
    first->setFocus(Qt::TabFocusReason);
    first->selectAll();
}

}  // namespace winvrx
