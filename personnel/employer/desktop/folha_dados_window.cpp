#include "personnel/employer/desktop/folha_dados_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kListCharacters = 40;
constexpr std::size_t kAmountWidth = 14;
constexpr std::size_t kYesNoWidth = 3;
constexpr std::size_t kPercentWidth = 6;  // "100,00"

std::vector<Choice> yesOrNo() {
    return {{"", std::string(kNo)}, {std::string(kYes), std::string(kYes)}};
}

constexpr FieldKind kYesNoField{.choices = yesOrNo};

struct Input {
    std::size_t width;
    FieldKind kind;
};

Input inputFor(FactKind kind) {
    switch (kind) {
        case FactKind::Amount:
            return {kAmountWidth, kMoneyField};
        case FactKind::Percent:
            return {kPercentWidth, kTextField};
        case FactKind::YesNo:
            return {kYesNoWidth, kYesNoField};
        case FactKind::Count:
            break;
    }
    return {1, kNumberField};
}

Field* fieldOf(const PayrollFact& fact, QWidget* parent) {
    const Input input = inputFor(fact.kind);
    auto* field = new Field({.caption = toQt(fact.title),
                             .objectName = QStringLiteral("dados.") + toQt(fact.key),
                             .width = input.width,
                             .kind = input.kind},
                            parent);
    field->setNote(toQt(fact.effect));
    return field;
}

}  // namespace

FolhaDadosWindow::FolhaDadosWindow(FolhaDados& facts, const std::optional<EmployeeCode>& inHand,
                                   QWidget* parent)
    : ScreenWindow(QStringLiteral("folhaDados"), toQt(kFactsTitle), parent), facts_(facts) {
    setBody({{buildEmployees(), 2}, {look::scrolled(buildFacts(), this), 3}});
    buildCommands();
    setSubtitle(QStringLiteral("O que a folha e a rescisão precisam além do cadastro"));
    (void)facts_.load();
    employees_->refresh();
    if (const auto place = inHand ? facts_.list().positionOf(inHand->text()) : std::nullopt)
        employees_->select(*place);
    if (const auto first = employees_->selected())
        choose(*first);
    else
        showEmployee();
    employees_->focusList();
}

QWidget* FolhaDadosWindow::buildEmployees() {
    employees_ =
        new EmployeePicker(facts_.list(), {.screen = QStringLiteral("dados.employees")}, this);
    employees_->setMinimumWidth(employees_->fontMetrics().averageCharWidth() * kListCharacters);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        facts_.list().filterBy(shift);
        employees_->refresh();
        if (const auto one = employees_->selected()) choose(*one);
    });
    connect(employees_, &EmployeePicker::employeeChosen, this, &FolhaDadosWindow::choose);
    connect(employees_, &EmployeePicker::opened, this, [this] {
        if (form_->isEnabled()) fields_.front()->takeFocus();
    });
    return employees_;
}

QWidget* FolhaDadosWindow::buildFacts() {
    form_ = new QWidget(this);
    auto* column = new QVBoxLayout(form_);
    look::layOutPart(*column);
    name_ = look::line(QStringLiteral("dados.name"), look::TextSize::Heading, form_);
    column->addWidget(name_);
    for (const PayrollFact& fact : payrollFactTable()) {
        Field* field = fieldOf(fact, form_);
        column->addWidget(field);
        connect(field, &Field::edited, this,
                [this] { setState(QStringLiteral("Alterações não gravadas")); });
        fields_.push_back(field);
    }
    fields_.back()->input()->setProperty("lastField", true);
    column->addStretch();
    return form_;
}

void FolhaDadosWindow::buildCommands() {
    addCommand({"documents", QStringLiteral("Cálculo da Rescisão"), Qt::Key_F8, "dados.termination",
                [this] {
                    if (facts_.selected()) emit terminationRequested(*facts_.selected());
                }});
    addDefaultButton(
        {"save", QStringLiteral("&Gravar"), QKeySequence::Save, "dados.save", [this] { save(); }});
    addLeavingButton("dados.close");
}

void FolhaDadosWindow::choose(std::size_t position) {
    if (position_ && !facts_.confirmDiscard(typed())) return employees_->select(position_);
    position_ = facts_.select(position) ? std::optional(position) : std::nullopt;
    showEmployee();
}

void FolhaDadosWindow::showEmployee() {
    const auto& one = facts_.selected();
    form_->setEnabled(one.has_value());
    name_->setText(one ? toQt(one->code + " " + one->name)
                       : QStringLiteral("Nenhum funcionário selecionado"));
    const auto texts = one ? facts_.texts() : std::vector<std::string>(fields_.size());
    for (std::size_t place = 0; place < fields_.size(); ++place)
        fields_[place]->setStored(texts[place]);
    setState(one && !facts_.unread().empty()
                 ? QStringLiteral("Linhas do registro que não são entendidas ficam como estão")
                 : QStringLiteral("ENTER leva aos dados do funcionário"));
}

std::vector<std::string> FolhaDadosWindow::typed() const {
    std::vector<std::string> texts;
    for (const Field* field : fields_)
        texts.push_back(field->stored());
    return texts;
}

void FolhaDadosWindow::save() {
    if (facts_.save(typed())) {
        showEmployee();
        setState(QStringLiteral("Gravado"));
        employees_->focusList();
    } else if (facts_.blamed()) {
        fields_[*facts_.blamed()]->takeFocus();
    }
}

bool FolhaDadosWindow::mayClose() {
    return facts_.confirmDiscard(typed());
}

}  // namespace winvrx
