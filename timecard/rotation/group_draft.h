#pragma once

#include "foundation/desk/message.h"
#include "foundation/register/employee.h"
#include "timecard/rotation/rotation_group.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

// What is done to a group before it is recorded. A function that finds a hindrance gives the
// message and leaves the group as it was.

namespace winvrx {

using Refusal = std::optional<Message>;

/// The title of what is told and asked of groups.
inline constexpr std::string_view kGroupTitle = "Escala de Revezamento";

/// "Adicionar =>": each takes the first vacant place. `others` are the month's other groups.
[[nodiscard]] Refusal addToList(RotationGroup& group, const std::vector<Employee>& employees,
                                const std::vector<RotationGroup>& others);
/// "Adicionar Funcionários Folguista", with the first day off that is free.
[[nodiscard]] Refusal addRelief(RotationGroup& group, const Employee& employee,
                                const std::vector<RotationGroup>& others, WorkMonth month);

/// What keeps the group from being recorded.
[[nodiscard]] Refusal recordingRefusal(const RotationGroup& group, WorkMonth month);

/// What the operator does to the group being edited; nothing while there is none.
class GroupDraft {
  public:
    /// Of `month`. The group outlives the object.
    GroupDraft(std::optional<RotationGroup>& group, WorkMonth month)
        : group_(group), month_(month) {}

    /// "<= Remover": a place of the list, or a relief worker.
    void removePlace(std::size_t place);
    void removeReliefWorker(std::size_t which);
    /// "Mover p/ Cima", "Mover p/ Baixo" and dragging: the employee at `from` goes to `to`, and
    /// those between move up or down. False when there is no such place.
    [[nodiscard]] bool move(std::size_t from, std::size_t to);
    /// "Primeira folga da Lista no  mês dia:"; a day that the month lacks is no date.
    void setFirstDayOff(int day);
    void setReliefDayOff(std::size_t which, int day);
    /// The days of the month on which relief worker `which` may be off first.
    [[nodiscard]] std::vector<Date> daysForRelief(std::size_t which) const;

  private:
    std::optional<RotationGroup>& group_;
    WorkMonth month_;
};

}  // namespace winvrx
