#include "foundation/register/desktop/employee_form.h"

#include "foundation/register/empregados.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>

#include <array>

namespace winvrx {

namespace {

enum Group { kIdentity, kContract, kScale, kDocuments, kAddress, kNotes };

/// List texts in the order of `values`.
template <typename Values>
std::vector<Choice> choicesOf(const Values& values) {
    std::vector<Choice> choices;
    for (const auto value : values)
        choices.push_back({std::string(codeOf(value)), std::string(listTextOf(value))});
    return choices;
}

/// The code that a stored text means; a text that means none comes back as it is.
template <typename Parse>
std::string meantCode(std::string_view stored, Parse parse) {
    const auto value = parse(stored);
    return std::string(value ? codeOf(*value) : stored);
}

std::vector<Choice> restDays() {
    std::vector<Choice> choices = {{"", "não informado"}};
    for (unsigned day = 0; day < 7; ++day)
        choices.push_back({std::string(weekdayShort(std::chrono::weekday(day))),
                           std::string(weekdayName(std::chrono::weekday(day)))});
    return choices;
}

constexpr FieldKind kShiftField{
    .completed = [](std::string_view stored) { return meantCode(stored, parseShift); },
    .choices = [] { return choicesOf(kShifts); }};
constexpr FieldKind kScaleField{
    .completed = [](std::string_view stored) { return meantCode(stored, parseScale); },
    .choices = [] { return choicesOf(kScales); }};
constexpr FieldKind kRestDayField{.choices = restDays};

using Placement = FieldPlacement<Employee>;

constexpr std::array kPlacements = {
    Placement{&Employee::code, "code", 'C', kIdentity, 0, 2, kEmployeeCodeField},
    Placement{&Employee::name, "name", 'N', kIdentity, 0, 10},
    Placement{&Employee::function, "function", 'F', kIdentity, 1, 8},
    Placement{&Employee::occupation, "occupation", 'B', kIdentity, 1, 4, kOccupationField},
    Placement{&Employee::birthDate, "birthDate", 'M', kIdentity, 2, 4, kBirthDateField},
    Placement{&Employee::telephone, "telephone", 'T', kIdentity, 2, 5},
    Placement{&Employee::dependants, "dependants", 'P', kIdentity, 2, 3},
    Placement{&Employee::status, "status", 'Y', kIdentity, 3, 12},
    Placement{&Employee::admission, "admission", 'A', kContract, 0, 4, kContractDateField},
    Placement{&Employee::dismissal, "dismissal", 'D', kContract, 0, 4, kContractDateField},
    Placement{&Employee::salary, "salary", 'L', kContract, 0, 4, kMoneyField},
    Placement{&Employee::bank, "bank", 'B', kContract, 1, 12},
    Placement{&Employee::shift, "shift", 'U', kScale, 0, 4, kShiftField, kShiftListTitle},
    Placement{&Employee::scale, "scale", 'E', kScale, 0, 4, kScaleField, kScaleListTitle},
    Placement{&Employee::restDay, "restDay", 'E', kScale, 0, 4, kRestDayField},
    Placement{&Employee::taxId, "taxId", 'P', kDocuments, 0, 6, kCpfField},
    Placement{&Employee::identityCard, "identityCard", 'R', kDocuments, 0, 6},
    Placement{&Employee::workBooklet, "workBooklet", 'T', kDocuments, 1, 6},
    Placement{&Employee::socialId, "socialId", 'I', kDocuments, 1, 6, kPisField},
    Placement{&Employee::registration, "registration", 'N', kDocuments, 2, 6},
    Placement{&Employee::sheet, "sheet", 'F', kDocuments, 2, 6},
    Placement{&Employee::address, "address", 'N', kAddress, 0, 12},
    Placement{&Employee::district, "district", 'B', kAddress, 1, 6},
    Placement{&Employee::city, "city", 'D', kAddress, 1, 6},
    Placement{&Employee::state, "state", 'U', kAddress, 2, 2},
    Placement{&Employee::postalCode, "postalCode", 'P', kAddress, 2, 4, kPostalCodeField},
    Placement{&Employee::notes, "notes", 'O', kNotes, 0, 12, kNotesField},
};

static_assert(kPlacements.size() == kEmployeeFields.size());

}  // namespace

EmployeeForm::EmployeeForm(Empregados& employees, QWidget* window)
    : RecordForm(employees, QStringLiteral("empregados"), window), employees_(employees) {
    auto* pages = new QTabWidget(window);
    look::name(*pages, QStringLiteral("empregados.tabs"),
               QStringLiteral("Cadastro do funcionário"));
    addGroup(kPlacements, kIdentity, addPage(*pages, QStringLiteral("&1 Identificação")));
    QVBoxLayout& contract = addPage(*pages, QStringLiteral("&2 Contrato"));
    addGroup(kPlacements, kContract, contract);
    contract.addWidget(look::heading(toQt(kScaleBoxTitle), contract.parentWidget()));
    addGroup(kPlacements, kScale, contract);
    addGroup(kPlacements, kDocuments, addPage(*pages, QStringLiteral("&3 Documentos")));
    addGroup(kPlacements, kAddress, addPage(*pages, QStringLiteral("&4 Endereço")));
    addGroup(kPlacements, kNotes, addPage(*pages, QStringLiteral("&5 Observações")));
    field(&Employee::status)->setReadOnly(true);
    setWidget(pages);
}

QVBoxLayout& EmployeeForm::addPage(QTabWidget& pages, const QString& title) {
    const auto [page, column] = look::body(&pages);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    column->setAlignment(Qt::AlignTop);
    pages.addTab(look::scrolled(page, &pages), title);
    return *column;
}

void EmployeeForm::show(std::optional<std::size_t> position) {
    RecordForm::show(position);
    const Employee employee = typed();
    QString status;
    if (employee.employeeCode() && position) {
        const EmployeeMarks marks = employees_.marks(employee);
        const auto said = textsOf(marks);
        status = toQt(said.empty() ? activityOf(employee, marks) : said.front());
    }
    field(&Employee::status)->showInstead(status);
    field(&Employee::status)
        ->setWarning(position ? toQt(employees_.contradictionIn(employee)) : QString());
    // The code of a recorded employee stands in file names.
    field(&Employee::code)->setReadOnly(position.has_value());
}

void EmployeeForm::focusFirst() {
    focus(field(&Employee::name));
}

}  // namespace winvrx
