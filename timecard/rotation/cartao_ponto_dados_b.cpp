#include "timecard/rotation/cartao_ponto_dados_b.h"

#include "foundation/files/folder_names.h"
#include "foundation/register/company_register.h"
#include "timecard/hours/hours_format.h"
#include "timecard/month/selected_month.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::chrono::months kOneMonth{1};
constexpr std::string_view kWeekly = " HORAS SEMANAIS";
const std::string kTableTitle = "Quadro de Horário de  Trabalho";
const std::string kGroupTitle = "Escala de Revezamento";

const Message kNoMonth = refusal("Aviso", "Informe um Mês de Trabalho!!");
const Message kScaleBarsShift = refusal("Aviso", "Dado Incorreto!",
                                        "A escala 12x36 é permitida somente nos turnos 1 e 3. "
                                        "Escolha primeiro um desses turnos.");
const Message kTableOfEveryShift =
    failure(kTableTitle,
            "ERRO!! Não é Possível Gravar na Opção de Turno 'TODOS'! Mude para um Turno "
            "Específico.");
const Message kConfirmTable =
    question("ALTERAÇÃO", "Confirma Gravar o Quadro de Horário de Trabalho?");
const Message kInNoGroup =
    refusal(kGroupTitle,
            "Este Funcionário NÃO ESTÁ Na Lista em um dos GRUPOS! Para alterar OPÇÃO DE ESCALA "
            "adicione-o na lista.");

constexpr std::string_view kAddToGroup = "S/GRUPO! ADICIONE NO GRUPO";
constexpr std::string_view kCreateGroup = "S/GRUPO! CRIAR NOVO GRUPO.";

std::optional<Shift> shiftOf(ShiftFilter filter) {
    return parseShift(codeOf(filter));
}

/// The first shift that the scale allows where the filter names none.
Shift tableShiftOf(ShiftFilter filter, Scale scale) {
    const Shift first = allows(scale, Shift::Unico) ? Shift::Unico : Shift::Um;
    return shiftOf(filter).value_or(first);
}

bool hasRoomFor(const RotationGroup& group, const Employee& employee) {
    return group.shift == employee.shiftOr() && group.scale == employee.scaleOr() &&
           group.listed() < mostPlacesOf(group.shift);
}

}  // namespace

CartaoPontoDadosB::CartaoPontoDadosB(const Workplace& at, const RotationDesk& desk)
    : at_(at), desk_(desk), list_(at.session.shiftFilter) {
    settings_.month = monthOf(at_.clock.today());
    table_ = recordedTable_ = standardTable(tableShiftOf(list_.shift(), Scale::Normal), {});
}

bool CartaoPontoDadosB::open() {
    return attempt(at_, incorrectData(), [this] {
        if (!at_.session.company) {
            at_.person.tell(noCompany(at_));
            return false;
        }
        const auto selected = loadSelectedMonth(at_.store());
        if (!selected) {
            at_.person.tell(kNoMonth);
            return false;
        }
        load(*at_.session.company, loadMonthSettings(at_.store(), selected->month));
        return true;
    });
}

void CartaoPontoDadosB::load(const CompanyCode& company, const MonthSettings& settings) {
    const auto lines = EmployeeRegister(at_.store(), company).load();
    const auto found = findCompany(at_.store(), company);
    const FolderNames names = namesIn(at_.store());
    auto marks = EmployeeList::leaveMarks(at_.store(), company, names, settings.month);
    for (const EmployeeCode& code : desk_.payroll.closedIn(company, settings.month, names))
        marks[code].closed = true;
    std::map<EmployeeCode, Employee> people;
    std::map<EmployeeCode, LeaveCalendar> leaves;
    for (const EmployeeLine& line : lines) {
        if (!line.key() || line.record.scaleOr() == Scale::Normal) continue;
        if (!people.emplace(*line.key(), line.record).second) continue;
        const auto admission = line.record.admissionDate();
        const EmployeeMarks mark = EmployeeList::marksOf(marks, *line.key());
        const bool recorded = !mark.unreadable && (mark.onLeave || mark.inactiveSince);
        leaves.emplace(*line.key(),
                       recorded ? loadLeaveCalendar(at_.store(), {company, *line.key()}, admission)
                                : LeaveCalendar({}, admission));
    }
    if (company_ != company || settings_.month != settings.month) draft_.reset();
    company_ = company;
    heading_ = found.value_or(Company());
    settings_ = settings;
    people_ = std::move(people);
    leaves_ = std::move(leaves);
    list_.fill(lines, std::move(marks));
    list_.filterBy(table_.scale);
    loadGroups(names);
    loadTable(list_.shift(), table_.scale);
}

void CartaoPontoDadosB::loadGroups(const FolderNames& names) {
    lines_ = groupFile(at_.store(), *company_, settings_.month).load();
    before_ = groupsIn(groupFile(at_.store(), *company_, settings_.month - kOneMonth).load());
    continuableFrom_.reset();
    if (lines_.empty())
        for (const std::string& name :
             beginningWith(names, company_->text() + std::string(kGroupStem)))
            if (const auto month = monthOfGroupFile(name, *company_);
                month && *month < settings_.month)
                continuableFrom_ = std::max(continuableFrom_.value_or(*month), *month);
    notes_.clear();
    groups_.clear();
    for (const RotationGroup& group : groupsIn(lines_))
        groups_.push_back(withoutStrays(group));
    std::ranges::sort(groups_, {}, &RotationGroup::number);
    if (const std::size_t unread = lines_.size() - groups_.size(); unread > 0)
        notes_.push_back(std::to_string(unread) +
                         " linha(s) do arquivo de grupos não foram entendidas e ficam como estão.");
    if (draft_ && !recordedGroup(draft_->number)) draft_.reset();
    if (draft_) draft_ = *recordedGroup(draft_->number);
}

std::string CartaoPontoDadosB::strayReason(const EmployeeCode& code,
                                           const RotationGroup& group) const {
    const auto person = people_.find(code);
    if (person == people_.end()) return "não está no cadastro com escala de revezamento";
    const Employee& employee = person->second;
    if (employee.status == kDeletedStatus) return "está excluído";
    const auto end = leaves_.at(code).contractEnd();
    if (end && *end < firstDay(settings_.month)) return "está inativo";
    if (employee.shiftOr() != group.shift) return "está em outro turno";
    if (employee.scaleOr() != group.scale) return "está em outra escala";
    return {};
}

RotationGroup CartaoPontoDadosB::withoutStrays(RotationGroup group) {
    for (const EmployeeCode& code : group.members()) {
        const std::string reason = strayReason(code, group);
        if (reason.empty()) continue;
        notes_.push_back(groupName(group.number) + ": " + nameOf(names(), code) + " " + reason +
                         " e não fica no grupo.");
        group.remove(code);
    }
    return group;
}

void CartaoPontoDadosB::loadTable(ShiftFilter shift, Scale scale) {
    const Shift of = tableShiftOf(shift, scale);
    recordedTable_ =
        company_ ? winvrx::loadTable(at_.store(), *company_, of, scale) : standardTable(of, scale);
    table_ = recordedTable_;
}

bool CartaoPontoDadosB::narrow(ShiftFilter shift, Scale scale) {
    const auto one = shiftOf(shift);
    if (one && !allows(scale, *one)) {
        at_.person.tell(kScaleBarsShift);
        return false;
    }
    if (tableChanged() && !at_.person.agrees(discardTyped())) return false;
    return attempt(at_, incorrectData(), [&] {
        loadTable(shift, scale);
        list_.filterBy(shift);
        list_.filterBy(scale);
    });
}

bool CartaoPontoDadosB::filterBy(ShiftFilter shift) {
    return narrow(shift, table_.scale);
}

bool CartaoPontoDadosB::filterBy(Scale scale) {
    return narrow(list_.shift(), scale);
}

void CartaoPontoDadosB::typeTime(std::size_t row, std::size_t cell, std::string_view text) {
    table_.rows.at(row).at(cell) = completedTime(text);
}

std::string CartaoPontoDadosB::weeklyCaption() const {
    return decimalHours(weeklyHours(table_), Decimals::One).append(kWeekly);
}

void CartaoPontoDadosB::restoreTable() {
    table_ = standardTable(table_.shift, table_.scale);
}

bool CartaoPontoDadosB::saveTable() {
    if (!company_ || !shiftOf(list_.shift())) {
        at_.person.tell(company_ ? kTableOfEveryShift : noCompany(at_));
        return false;
    }
    if (const auto finding = findingIn(table_)) {
        at_.person.tell(refusal(kTableTitle, "Dado Incorreto!", *finding));
        return false;
    }
    if (!at_.person.agrees(kConfirmTable)) return false;
    return attemptWriting(at_, incorrectData(), [this] {
        const WorkTable stored =
            winvrx::loadTable(at_.store(), *company_, table_.shift, table_.scale);
        if (stored != recordedTable_) throw changedElsewhere("work table", "O quadro foi alterado");
        winvrx::saveTable(at_.store(), *company_, table_);
        recordedTable_ = table_;
    });
}

MemberNames CartaoPontoDadosB::names() const {
    MemberNames names;
    for (const auto& [code, employee] : people_)
        names.emplace(code, employee.code + " " + employee.name);
    return names;
}

Absence CartaoPontoDadosB::absence() const {
    return [this](const EmployeeCode& code, Date date) {
        const auto leaves = leaves_.find(code);
        return leaves != leaves_.end() && leaves->second.standingOn(date) != Standing::Employed;
    };
}

const RotationGroup* CartaoPontoDadosB::groupOfMember(const Employee& employee) const {
    const EmployeeCode code = employee.employeeCode().value();
    if (draft_ && draft_->contains(code)) return &*draft_;
    const auto group = std::ranges::find_if(
        groups_, [&](const RotationGroup& one) { return !isEdited(one) && one.contains(code); });
    return group == groups_.end() ? nullptr : &*group;
}

std::string CartaoPontoDadosB::captionOf(std::size_t position) const {
    const Employee& employee = list_.employees().at(position);
    if (employee.scaleOr() == Scale::Normal) return {};
    if (const RotationGroup* group = groupOfMember(employee)) return groupName(group->number);
    const bool room = (draft_ && hasRoomFor(*draft_, employee)) ||
                      std::ranges::any_of(groups_, [&](const RotationGroup& group) {
                          return !isEdited(group) && hasRoomFor(group, employee);
                      });
    return std::string(room ? kAddToGroup : kCreateGroup);
}

bool CartaoPontoDadosB::selectGroupOf(std::size_t position) {
    const RotationGroup* group = groupOfMember(list_.employees().at(position));
    if (!group) at_.person.tell(kInNoGroup);
    return group && selectGroup(group->number);
}

RotationView CartaoPontoDadosB::view() const {
    return draft_ ? viewOf(*draft_, settings_, names(), absence(), before_) : RotationView();
}

bool CartaoPontoDadosB::confirmLeaving() {
    return !changed() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
