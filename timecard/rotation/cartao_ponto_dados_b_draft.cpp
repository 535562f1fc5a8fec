// The group being edited, before it is recorded.
#include "foundation/register/company_register.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kNoGroup = refusal(kGroupTitle, "Selecione um GRUPO na lista!");
const Message kNeedsShift = refusal("CRIAR NOVO GRUPO", "Mude para um Turno Específico.");
const Message kNeedsRotation =
    refusal("CRIAR NOVO GRUPO", "Escolha a escala do grupo: 5 x 1 ou 12 x 36.");
const Message kNoNumberLeft = refusal("CRIAR NOVO GRUPO", "O mês já tem 999 grupos.");

}  // namespace

std::vector<RotationGroup> CartaoPontoDadosB::otherGroups() const {
    std::vector<RotationGroup> others = month_.groups();
    std::erase_if(others, [this](const RotationGroup& group) { return isEdited(group); });
    return others;
}

std::vector<RotationGroup> CartaoPontoDadosB::shownGroups() const {
    std::vector<RotationGroup> shown = otherGroups();
    if (draft_) shown.push_back(*draft_);
    std::ranges::sort(shown, {}, &RotationGroup::number);
    std::erase_if(shown, [this](const RotationGroup& group) {
        return !passes(list_.shift(), group.shift) ||
               (scale() != Scale::Normal && group.scale != scale());
    });
    return shown;
}

bool CartaoPontoDadosB::groupChanged() const {
    if (!draft_) return false;
    if (const auto recorded = month_.recorded(draft_->number)) return *recorded != *draft_;
    return !draft_->members().empty();
}

std::string CartaoPontoDadosB::groupFinding() const {
    const Refusal refused = draft_ ? recordingRefusal(*draft_, settings_.month) : std::nullopt;
    return refused ? refused->text : std::string();
}

bool CartaoPontoDadosB::selectGroup(int number) {
    if (draft_ && draft_->number == number) return true;
    const RotationGroup* group = month_.find(number);
    if (!group || (groupChanged() && !at_.person.agrees(discardTyped()))) return false;
    draft_ = *group;
    return true;
}

bool CartaoPontoDadosB::newGroup() {
    if (!company_) return at_.person.refuse(noCompany(at_));
    if (scale() == Scale::Normal) return at_.person.refuse(kNeedsRotation);
    const auto shift = parseShift(codeOf(list_.shift()));
    if (!shift) return at_.person.refuse(kNeedsShift);
    if (groupChanged() && !at_.person.agrees(discardTyped())) return false;
    int number = 1;
    while (month_.find(number))
        ++number;
    if (number > kHighestGroup) return at_.person.refuse(kNoNumberLeft);
    draft_ = RotationGroup{.number = number,
                           .shift = *shift,
                           .scale = scale(),
                           .firstDayOff = firstDay(settings_.month)};
    return true;
}

bool CartaoPontoDadosB::requireGroup() {
    return draft_ || at_.person.refuse(kNoGroup);
}

bool CartaoPontoDadosB::addMembers(const std::function<Refusal(RotationGroup&)>& adding) {
    if (!requireGroup()) return false;
    RotationGroup group = *draft_;
    if (const Refusal refused = adding(group)) return at_.person.refuse(*refused);
    for (const EmployeeCode& code : group.members())
        if (const std::string reason = month_.strayReason(code, group); !reason.empty())
            return at_.person.refuse(
                refusal(kGroupTitle, nameOf(month_.names(), code) + " " + reason + "."));
    draft_ = std::move(group);
    return true;
}

bool CartaoPontoDadosB::add(const std::vector<std::size_t>& positions) {
    if (positions.empty()) return at_.person.refuse(noEmployeeSelected());
    std::vector<Employee> employees;
    for (const std::size_t position : positions)
        employees.push_back(list_.employees().at(position));
    return addMembers(
        [&](RotationGroup& group) { return addToList(group, employees, otherGroups()); });
}

bool CartaoPontoDadosB::addReliefWorker(std::size_t position) {
    const Employee& employee = list_.employees().at(position);
    return addMembers([&](RotationGroup& group) {
        return addRelief(group, employee, otherGroups(), settings_.month);
    });
}

}  // namespace winvrx
