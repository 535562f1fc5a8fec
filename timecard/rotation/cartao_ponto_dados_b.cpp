#include "timecard/rotation/cartao_ponto_dados_b.h"

#include "foundation/files/folder_names.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_queries.h"
#include "timecard/month/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kScaleBarsShift = refusal("Aviso", "Dado Incorreto!",
                                        "A escala 12x36 é permitida somente nos turnos 1 e 3. "
                                        "Escolha primeiro um desses turnos.");
const Message kInNoGroup =
    refusal(kGroupTitle,
            "Este Funcionário NÃO ESTÁ Na Lista em um dos GRUPOS! Para alterar OPÇÃO DE ESCALA "
            "adicione-o na lista.");

bool hasRoomFor(const RotationGroup& group, const Employee& employee) {
    return group.shift == employee.shiftOr() && group.scale == employee.scaleOr() &&
           group.listed() < mostPlacesOf(group.shift);
}

}  // namespace

CartaoPontoDadosB::CartaoPontoDadosB(const Workplace& at, const RotationDesk& desk)
    : at_(at), desk_(desk), list_(at.session.shiftFilter), workTable_(at_, list_.shift()) {
    settings_.month = monthOf(at_.clock.today());
}

bool CartaoPontoDadosB::open() {
    return attempt(at_, incorrectData(), [this] {
        const auto month = requireSelectedMonth(at_);
        if (!month) return false;
        load(*at_.session.company, loadMonthSettings(at_.store(), *month));
        return true;
    });
}

void CartaoPontoDadosB::load(const CompanyCode& company, const MonthSettings& settings) {
    const auto lines = EmployeeRegister(at_.store(), company).load();
    const auto found = findCompany(at_.store(), company);
    const FolderNames names = namesIn(at_.store());
    auto marks = monthMarks(at_.store(), company, settings.month, names, desk_.payroll);
    RotationPeople people;
    for (const EmployeeLine& line : lines) {
        if (!line.key() || line.record.scaleOr() == Scale::Normal) continue;
        const auto admission = line.record.admissionDate();
        const EmployeeMarks mark = EmployeeList::marksOf(marks, *line.key());
        const bool recorded = !mark.unreadable && (mark.onLeave || mark.inactiveSince);
        const EmployeeKey key{company, *line.key()};
        people.emplace(
            key.employee,
            RotationPerson{line.record, recorded ? loadLeaveCalendar(at_.store(), key, admission)
                                                 : LeaveCalendar({}, admission)});
    }
    MonthGroups month(company, settings.month, std::move(people));
    month.read(at_.store(), names);
    if (company_ != company || settings_.month != settings.month) draft_.reset();
    company_ = company;
    heading_ = found.value_or(Company());
    settings_ = settings;
    month_ = std::move(month);
    list_.fill(lines, std::move(marks));
    list_.filterBy(scale());
    keepDraft();
    workTable_.show(company_, list_.shift(), scale());
}

void CartaoPontoDadosB::keepDraft() {
    if (!draft_) return;
    const RotationGroup* shown = month_.find(draft_->number);
    draft_ = shown ? std::optional(*shown) : std::nullopt;
}

void CartaoPontoDadosB::showGroups() {
    month_.read(at_.store(), namesIn(at_.store()));
    keepDraft();
}

bool CartaoPontoDadosB::narrow(ShiftFilter shift, Scale scale) {
    const auto one = parseShift(codeOf(shift));
    if (one && !allows(scale, *one)) return at_.person.refuse(kScaleBarsShift);
    if (workTable_.changed() && !at_.person.agrees(discardTyped())) return false;
    return attempt(at_, incorrectData(), [&] {
        workTable_.show(company_, shift, scale);
        list_.filterBy(shift);
        list_.filterBy(scale);
    });
}

const RotationGroup* CartaoPontoDadosB::groupOfMember(const Employee& employee) const {
    const EmployeeCode code = employee.employeeCode().value();
    if (draft_ && draft_->contains(code)) return &*draft_;
    for (const RotationGroup& group : month_.groups())
        if (!isEdited(group) && group.contains(code)) return &group;
    return nullptr;
}

std::string CartaoPontoDadosB::captionOf(std::size_t position) const {
    const Employee& employee = list_.employees().at(position);
    if (employee.scaleOr() == Scale::Normal) return {};
    if (const RotationGroup* group = groupOfMember(employee)) return groupName(group->number);
    const bool room = (draft_ && hasRoomFor(*draft_, employee)) ||
                      std::ranges::any_of(month_.groups(), [&](const RotationGroup& group) {
                          return !isEdited(group) && hasRoomFor(group, employee);
                      });
    return room ? "S/GRUPO! ADICIONE NO GRUPO" : "S/GRUPO! CRIAR NOVO GRUPO.";
}

bool CartaoPontoDadosB::selectGroupOf(std::size_t position) {
    const RotationGroup* group = groupOfMember(list_.employees().at(position));
    return group ? selectGroup(group->number) : at_.person.refuse(kInNoGroup);
}

RotationView CartaoPontoDadosB::view() const {
    return draft_ ? viewOf(*draft_, settings_, month_.names(), month_.absence(), month_.before())
                  : RotationView();
}

}  // namespace winvrx
