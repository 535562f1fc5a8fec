#include "timecard/rotation/group_draft.h"

#include "timecard/rotation/rotation_checks.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kWrongShift =
    refusal(kGroupTitle,
            "Turno do Grupo não Confere com Item Selecionado! Para INCLUIR Altere o Turno do "
            "Funcionário Selecionado.");
const Message kWrongScale =
    refusal(kGroupTitle,
            "Escala do Grupo não Confere com Item Selecionado! Para INCLUIR Altere o Escala do "
            "Funcionário Selecionado.");
const Message kMostInUm = refusal(
    kGroupTitle,
    "LISTA MÁXIMA de 3 Funcionários pora o Turno UM ! Para SUBSTITUIR remova um ITEM da lista.");
const Message kMostInTres = refusal(
    kGroupTitle,
    "LISTA MÁXIMA de 3 Funcionários pora o Turno TRES ! Para SUBSTITUIR remova um ITEM da lista.");
const Message kMostInList = refusal(kGroupTitle, "Lista Máxima de 6 Funcionários");
const Message kNoReliefIn12x36 =
    refusal(kGroupTitle, "Escala do Grupo não Confere com Item Selecionado!",
            "Na escala 12 x 36 as equipes se alternam e não há folguista.");
const Message kTwoReliefWorkers =
    refusal(kGroupTitle, "O grupo já tem folguista.",
            "Remova-o para substituí-lo. Um segundo folguista é para uma lista de seis.");
const Message kNobodyListed = refusal(kGroupTitle, "Adicione funcionários à lista do grupo.");
const Message kOutsideMonth =
    failure(kGroupTitle,
            "ERRO!! Não é Possível Gravar o GRUPO! Data do Mês de Início da Folga não confere com "
            "o Mês de Copetência!");
const Message kNoReliefDate =
    refusal(kGroupTitle, "Informe a DATA da Primeira folga do FOLGUISTA!");

Message alreadyListed(const Employee& employee, int number) {
    return refusal(kGroupTitle, "Já está na Lista",
                   employee.code + " " + employee.name + " está em " + groupName(number) + ".");
}

Message mostInGroup(Shift shift) {
    if (shift == Shift::Um) return kMostInUm;
    if (shift == Shift::Tres) return kMostInTres;
    return refusal(kGroupTitle,
                   "LISTA MÁXIMA de " + std::to_string(mostPlacesOf(shift)) +
                       " Funcionários por GRUPO! Para SUBSTITUIR remova um ITEM da lista "
                       "de FOLGA.");
}

Refusal memberRefusal(const RotationGroup& group, const Employee& employee,
                      const std::vector<RotationGroup>& others) {
    const EmployeeCode code = employee.employeeCode().value();
    if (group.contains(code)) return alreadyListed(employee, group.number);
    for (const RotationGroup& other : others)
        if (other.contains(code)) return alreadyListed(employee, other.number);
    if (employee.shiftOr() != group.shift) return kWrongShift;
    if (employee.scaleOr() != group.scale) return kWrongScale;
    return std::nullopt;
}

void putInList(RotationGroup& group, const EmployeeCode& employee) {
    const auto vacant = std::ranges::find(group.places, std::optional<EmployeeCode>());
    if (vacant == group.places.end())
        group.places.emplace_back(employee);
    else
        *vacant = employee;
}

std::optional<Date> dayIn(WorkMonth month, int day) {
    const Date date = month / day;
    return date.ok() ? std::optional(date) : std::nullopt;
}

bool isIn(WorkMonth month, const std::optional<Date>& date) {
    return date && monthOf(*date) == month;
}

}  // namespace

Refusal addToList(RotationGroup& group, const std::vector<Employee>& employees,
                  const std::vector<RotationGroup>& others) {
    RotationGroup changed = group;
    for (const Employee& employee : employees) {
        if (const Refusal refused = memberRefusal(changed, employee, others)) return refused;
        if (changed.listed() >= mostPlacesOf(group.shift)) {
            const bool tooMany = group.listed() + employees.size() > kMostPlaces;
            return employees.size() > 1 && tooMany ? kMostInList : mostInGroup(group.shift);
        }
        putInList(changed, employee.employeeCode().value());
    }
    group = std::move(changed);
    return std::nullopt;
}

Refusal addRelief(RotationGroup& group, const Employee& employee,
                  const std::vector<RotationGroup>& others, WorkMonth month) {
    if (group.scale == Scale::TwelveByThirtySix) return kNoReliefIn12x36;
    if (const Refusal refused = memberRefusal(group, employee, others)) return refused;
    const std::size_t most = group.listed() == kMostPlaces ? kMostReliefWorkers : 1;
    if (group.relief.size() >= most) return kTwoReliefWorkers;
    group.relief.push_back({employee.employeeCode().value()});
    // The first of two had no day until there was a second.
    for (std::size_t which = 0; which < group.relief.size(); ++which)
        if (const auto free = freeForRelief(group, which, month);
            !group.relief[which].firstDayOff && !free.empty())
            group.relief[which].firstDayOff = free.front();
    return std::nullopt;
}

Refusal recordingRefusal(const RotationGroup& group, WorkMonth month) {
    if (group.listed() == 0) return kNobodyListed;
    if (!isIn(month, group.firstDayOff)) return kOutsideMonth;
    if (const auto finding = reliefCountFinding(group)) return refusal(kGroupTitle, *finding);
    for (const ReliefWorker& one : group.relief) {
        if (!one.firstDayOff) return kNoReliefDate;
        if (!isIn(month, one.firstDayOff)) return kOutsideMonth;
    }
    if (const auto finding = reliefFinding(group, month)) return refusal(kGroupTitle, *finding);
    return std::nullopt;
}

void GroupDraft::removePlace(std::size_t place) {
    if (group_ && place < group_->places.size() && group_->places[place])
        group_->remove(EmployeeCode(*group_->places[place]));
}

void GroupDraft::removeReliefWorker(std::size_t which) {
    if (group_ && which < group_->relief.size())
        group_->relief.erase(group_->relief.begin() + static_cast<std::ptrdiff_t>(which));
}

bool GroupDraft::move(std::size_t from, std::size_t to) {
    if (!group_ || from >= group_->places.size() || to >= group_->places.size()) return false;
    auto& places = group_->places;
    const auto at = [&](std::size_t place) {
        return places.begin() + static_cast<std::ptrdiff_t>(place);
    };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
    group_->dropVacantEnd();
    return true;
}

void GroupDraft::setFirstDayOff(int day) {
    if (group_) group_->firstDayOff = dayIn(month_, day);
}

void GroupDraft::setReliefDayOff(std::size_t which, int day) {
    if (group_ && which < group_->relief.size())
        group_->relief[which].firstDayOff = dayIn(month_, day);
}

std::vector<Date> GroupDraft::daysForRelief(std::size_t which) const {
    return group_ ? freeForRelief(*group_, which, month_) : std::vector<Date>();
}

}  // namespace winvrx
