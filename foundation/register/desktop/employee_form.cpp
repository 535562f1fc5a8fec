#include "foundation/register/desktop/employee_form.h"

#include "foundation/register/employee_checks.h"
#include "foundation/register/empregados.h"
#include "foundation/values/input_checks.h"
#include "foundation/values/money.h"
#include "foundation/widgets/desktop/checked_field.h"
#include "foundation/widgets/desktop/choice_field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/notes_field.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>

#include <array>
#include <stdexcept>

namespace winvrx {

namespace {

enum Tab { kIdentity, kContract, kDocuments, kAddress, kNotes };

using Placement = FieldPlacement<Employee>;

constexpr std::array kPlacements = {
    Placement{&Employee::code, "code", 'C', kIdentity, 0, 2},
    Placement{&Employee::name, "name", 'N', kIdentity, 0, 10},
    Placement{&Employee::function, "function", 'F', kIdentity, 1, 8},
    Placement{&Employee::occupation, "occupation", 'B', kIdentity, 1, 4, FieldCheck::Occupation},
    Placement{&Employee::birthDate, "birthDate", 'M', kIdentity, 2, 4, FieldCheck::Date},
    Placement{&Employee::telephone, "telephone", 'T', kIdentity, 2, 5},
    Placement{&Employee::dependants, "dependants", 'P', kIdentity, 2, 3},
    Placement{&Employee::status, "status", 'Y', kIdentity, 3, 4},
    Placement{&Employee::admission, "admission", 'A', kContract, 0, 4, FieldCheck::Date},
    Placement{&Employee::dismissal, "dismissal", 'D', kContract, 0, 4, FieldCheck::Date},
    Placement{&Employee::salary, "salary", 'L', kContract, 0, 4, FieldCheck::Money},
    Placement{&Employee::bank, "bank", 'B', kContract, 1, 12},
    Placement{&Employee::taxId, "taxId", 'P', kDocuments, 0, 6, FieldCheck::Cpf},
    Placement{&Employee::identityCard, "identityCard", 'R', kDocuments, 0, 6},
    Placement{&Employee::workBooklet, "workBooklet", 'T', kDocuments, 1, 6},
    Placement{&Employee::socialId, "socialId", 'I', kDocuments, 1, 6, FieldCheck::Pis},
    Placement{&Employee::registration, "registration", 'N', kDocuments, 2, 6},
    Placement{&Employee::sheet, "sheet", 'F', kDocuments, 2, 6},
    Placement{&Employee::address, "address", 'N', kAddress, 0, 12},
    Placement{&Employee::district, "district", 'B', kAddress, 1, 6},
    Placement{&Employee::city, "city", 'D', kAddress, 1, 6},
    Placement{&Employee::state, "state", 'U', kAddress, 2, 2},
    Placement{&Employee::postalCode, "postalCode", 'P', kAddress, 2, 4, FieldCheck::PostalCode},
};

constexpr int kLongestStatus = 32;  ///< "Inativo desde 10/02/2024" is no text of the record
constexpr std::string_view kCurrency = "R$ ";

/// An amount is shown with the "R$ " that the record leaves out.
std::size_t typedWidth(const Placement& place) {
    const std::size_t width = fieldHolding(kEmployeeFields, place.member).column.width;
    return place.check == FieldCheck::Money ? width + kCurrency.size() : width;
}

QString objectNameOf(const char* thing) {
    return QStringLiteral("empregados.") + QLatin1String(thing);
}

QString captionOf(std::string Employee::*member, char mnemonic) {
    const QString caption = withMnemonic(fieldHolding(kEmployeeFields, member).caption, mnemonic);
    return isRequired(member) ? caption + QStringLiteral(" *") : caption;
}

/// List texts in the order of `values`, with the place of a stored text by `parse`.
template <typename Values, typename Parse>
ChoiceField* choiceOf(const QString& caption, const char* name, const Values& values, Parse parse,
                      QWidget* parent) {
    std::vector<ChoiceField::Choice> choices;
    for (const auto value : values)
        choices.push_back({std::string(codeOf(value)), std::string(listTextOf(value))});
    const auto find = [parse](std::string_view stored) {
        const auto value = parse(stored);
        return value ? static_cast<int>(*value) : -1;
    };
    return new ChoiceField(caption, objectNameOf(name), choices, find, parent);
}

ChoiceField* restDayChoice(QWidget* parent) {
    std::vector<ChoiceField::Choice> choices = {{"", "não informado"}};
    for (unsigned day = 0; day < 7; ++day)
        choices.push_back({std::string(weekdayShort(std::chrono::weekday(day))),
                           std::string(weekdayName(std::chrono::weekday(day)))});
    const auto find = [choices](std::string_view stored) {
        for (std::size_t i = 0; i < choices.size(); ++i)
            if (choices[i].code == stored) return static_cast<int>(i);
        return -1;
    };
    return new ChoiceField(
        withMnemonic(fieldHolding(kEmployeeFields, &Employee::restDay).caption, 'E'),
        objectNameOf("restDay"), choices, find, parent);
}

}  // namespace

EmployeeForm::EmployeeForm(QWidget* parent) : QTabWidget(parent) {
    look::name(*this, objectNameOf("tabs"), QStringLiteral("Cadastro do funcionário"));
    addPage(QStringLiteral("&1 Identificação"), kIdentity);
    addPage(QStringLiteral("&2 Contrato"), kContract);
    addPage(QStringLiteral("&3 Documentos"), kDocuments);
    addPage(QStringLiteral("&4 Endereço"), kAddress);
    addPage(QStringLiteral("&5 Observações"), kNotes);
    TextField* status = fields_.fieldOf(&Employee::status);
    status->edit()->setMaxLength(kLongestStatus);
    setReadOnly(*status);
}

void EmployeeForm::addPage(const QString& title, int tab) {
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* page = new QWidget(scroll);
    page->setBackgroundRole(QPalette::Base);
    page->setAutoFillBackground(true);
    auto* column = new QVBoxLayout(page);
    look::layOutBody(*column);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kGap);
    fields_.layOut(kPlacements, tab, *grid, [this, page](const Placement& place) {
        TextField* field =
            checkedField(captionOf(place.member, place.mnemonic), objectNameOf(place.name),
                         typedWidth(place), place.check, page);
        connect(field, &TextField::edited, this, &EmployeeForm::edited);
        return field;
    });
    column->addLayout(grid);
    if (tab == kContract) addChoices(page);
    if (tab == kNotes) addNotes(page);
    column->addStretch();
    scroll->setWidget(page);
    addTab(scroll, title);
}

void EmployeeForm::addChoices(QWidget* page) {
    auto* column = static_cast<QVBoxLayout*>(page->layout());
    column->addWidget(look::heading(toQt(kScaleBoxTitle), page));
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGap);
    ChoiceField* shift = choiceOf(withMnemonic(kShiftListTitle, 'U') + QStringLiteral(" *"),
                                  "shift", kShifts, parseShift, page);
    ChoiceField* scale = choiceOf(withMnemonic(kScaleListTitle, 'E') + QStringLiteral(" *"),
                                  "scale", kScales, parseScale, page);
    ChoiceField* restDay = restDayChoice(page);
    for (ChoiceField* field : {shift, scale, restDay})
        row->addWidget(field, 1, Qt::AlignTop);
    column->addLayout(row);
    addChoice(&Employee::shift, shift);
    addChoice(&Employee::scale, scale);
    addChoice(&Employee::restDay, restDay);
    connect(this, &EmployeeForm::edited, this, &EmployeeForm::checkScale);
}

void EmployeeForm::addChoice(std::string Employee::*member, ChoiceField* field) {
    choices_.push_back({member, field});
    connect(field, &ChoiceField::edited, this, &EmployeeForm::edited);
}

void EmployeeForm::addNotes(QWidget* page) {
    const EmployeeField& layout = fieldHolding(kEmployeeFields, &Employee::notes);
    notes_ = new NotesField(withMnemonic(layout.caption, 'O'), objectNameOf("notes"),
                            layout.column.width, page);
    static_cast<QVBoxLayout*>(page->layout())->addWidget(notes_);
    connect(notes_, &NotesField::edited, this, &EmployeeForm::edited);
}

void EmployeeForm::showEmployee(const Employee& employee, bool isNew, const QString& status) {
    shown_ = employee;
    fields_.show(employee);
    fields_.fieldOf(&Employee::status)->setText(status);
    fields_.fieldOf(&Employee::salary)->setText(toQt(completedMoney(employee.salary)));
    for (const BoundChoice& choice : choices_)
        choice.field->setStored(employee.*choice.member);
    notes_->setText(toQt(employee.notes));
    setReadOnly(*fields_.fieldOf(&Employee::code), !isNew);
    checkScale();
}

Employee EmployeeForm::typed() const {
    Employee employee = shown_;
    fields_.readInto(employee);
    for (const BoundChoice& choice : choices_)
        employee.*choice.member = choice.field->stored();
    employee.notes = trimmed(toUtf8(notes_->text()));
    employee.status = shown_.status;
    if (employee.salary == completedMoney(shown_.salary))
        employee.salary = shown_.salary;
    else if (const auto salary = parseMoney(employee.salary))
        employee.salary = moneyText(*salary);
    return employee;
}

void EmployeeForm::checkScale() {
    const Employee employee = typed();
    const auto shift = parseShift(employee.shift);
    const auto scale = parseScale(employee.scale);
    const bool barred = shift && scale && !allows(*scale, *shift);
    for (const BoundChoice& choice : choices_)
        if (choice.member == &Employee::scale)
            choice.field->setWarning(barred ? QStringLiteral("12x36 somente nos turnos 1 e 3.")
                                            : QString());
}

void EmployeeForm::focusFirst() {
    focus(fields_.fieldOf(&Employee::name)->edit());
}

bool EmployeeForm::focusMissing() {
    const Employee employee = typed();
    for (const auto member : kRequiredEmployeeFields) {
        const bool wrongDate = member == &Employee::admission && !employee.admissionDate();
        if (!(employee.*member).empty() && !wrongDate) continue;
        if (TextField* field = fields_.fieldOf(member)) {
            focus(field->edit());
            return true;
        }
        for (const BoundChoice& choice : choices_)
            if (choice.member == member) focus(choice.field->box());
        return true;
    }
    return false;
}

void EmployeeForm::focus(QWidget* field) {
    for (int tab = 0; tab < count(); ++tab)
        if (widget(tab)->isAncestorOf(field)) setCurrentIndex(tab);
    field->setFocus(Qt::TabFocusReason);
    if (auto* edit = qobject_cast<QLineEdit*>(field)) edit->selectAll();
}

bool EmployeeForm::moveToNextTab() {
    const auto* field = focusWidget();
    const std::array<const QWidget*, 4> last = {
        fields_.fieldOf(&Employee::dependants)->edit(), choices_.back().field->box(),
        fields_.fieldOf(&Employee::sheet)->edit(), fields_.fieldOf(&Employee::postalCode)->edit()};
    const std::array<QWidget*, 4> first = {
        fields_.fieldOf(&Employee::admission)->edit(), fields_.fieldOf(&Employee::taxId)->edit(),
        fields_.fieldOf(&Employee::address)->edit(), notes_->edit()};
    for (std::size_t tab = 0; tab < last.size(); ++tab) {
        if (field != last[tab]) continue;
        focus(first[tab]);
        return true;
    }
    return false;
}

}  // namespace winvrx
