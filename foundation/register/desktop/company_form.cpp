#include "foundation/register/desktop/company_form.h"

#include "foundation/widgets/desktop/look.h"

#include <QFrame>
#include <QLabel>
#include <QScrollArea>

#include <array>

namespace winvrx {

namespace {

enum Group { kCompany, kOwner, kUnion };

using Placement = FieldPlacement<Company>;

constexpr std::array kPlacements = {
    Placement{&Company::code, "code", 'K', kCompany, 0, 1},
    Placement{&Company::name, "name", 'E', kCompany, 0, 8},
    Placement{&Company::taxId, "taxId", 'C', kCompany, 0, 3, kCnpjOrCpfField},
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
    Placement{&Company::ownerTaxId, "ownerTaxId", 'C', kOwner, 1, 3, kCpfField},
    Placement{&Company::ownerAddress, "ownerAddress", 'M', kOwner, 2, 4},
    Placement{&Company::ownerDistrict, "ownerDistrict", 'B', kOwner, 2, 3},
    Placement{&Company::ownerPostalCode, "ownerPostalCode", 'P', kOwner, 2, 2},
    Placement{&Company::ownerCity, "ownerCity", 'D', kOwner, 2, 2},
    Placement{&Company::ownerState, "ownerState", 'A', kOwner, 2, 1},
    Placement{&Company::unionName, "unionName", 'N', kUnion, 0, 8},
    Placement{&Company::unionTaxId, "unionTaxId", 'J', kUnion, 0, 4, kCnpjField},
};

static_assert(kPlacements.size() == kCompanyFields.size());

constexpr std::array<const char*, 3> kHeadings = {"Cadastro:", "Proprietário", "Sindicato"};

}  // namespace

CompanyForm::CompanyForm(ListCommands<Company>& companies, QWidget* window)
    : RecordForm(companies, QStringLiteral("empresa"), window) {
    auto* panel = new QFrame(window);
    panel->setObjectName(QStringLiteral("empresa.form"));
    look::setRole(*panel, "panel");
    auto* column = new QVBoxLayout(panel);
    look::layOutBody(*column);
    for (const Group group : {kCompany, kOwner, kUnion}) {
        const QString heading = QString::fromUtf8(kHeadings[group]);
        column->addWidget(look::label(heading, look::TextSize::Heading, panel));
        addGroup(kPlacements, group, *column);
    }
    column->addStretch();
    for (const Member filledIn : {&Company::code, &Company::recordDate})
        field(filledIn)->setReadOnly(true);
    // Captions that the company bears too: who hears them does not see the heading.
    for (const Member owners :
         {&Company::ownerDistrict, &Company::ownerPostalCode, &Company::ownerCity}) {
        QWidget* input = field(owners)->input();
        input->setAccessibleName(input->accessibleName() + QStringLiteral(" do proprietário"));
    }
    setWidget(look::scrolled(panel, window));
}

}  // namespace winvrx
