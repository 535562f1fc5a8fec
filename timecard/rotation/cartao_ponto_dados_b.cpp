#include "timecard/rotation/cartao_ponto_dados_b.h"

#include "foundation/files/folder_names.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_queries.h"
#include "timecard/hours/hours_format.h"
#include "timecard/month/selected_month.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kWeekly = " HORAS SEMANAIS";
const std::string kTableTitle = "Quadro de Horário de  Trabalho";
const std::string kGroupTitle = "Escala de Revezamento";

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
    list_.filterBy(table_.scale);
    keepDraft();
    loadTable(list_.shift(), table_.scale);
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
    return std::string(room ? kAddToGroup : kCreateGroup);
}

bool CartaoPontoDadosB::selectGroupOf(std::size_t position) {
    const RotationGroup* group = groupOfMember(list_.employees().at(position));
    if (!group) at_.person.tell(kInNoGroup);
    return group && selectGroup(group->number);
}

RotationView CartaoPontoDadosB::view() const {
    return draft_ ? viewOf(*draft_, settings_, month_.names(), month_.absence(), month_.before())
                  : RotationView();
}

bool CartaoPontoDadosB::confirmLeaving() {
    return !changed() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
