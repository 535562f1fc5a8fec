#pragma once

#include "foundation/desk/message.h"
#include "foundation/register/employee.h"
#include "timecard/rotation/rotation_group.h"

#include <optional>
#include <vector>

// What is done to a group before it is recorded. A function that finds a hindrance gives the
// message and leaves the group as it was.

namespace winvrx {

using Refusal = std::optional<Message>;

/// "Adicionar =>": each takes the first vacant place. `others` are the month's other groups.
[[nodiscard]] Refusal addToList(RotationGroup& group, const std::vector<Employee>& employees,
                                const std::vector<RotationGroup>& others);
/// "Adicionar Funcionários Folguista", with the first day off that is free.
[[nodiscard]] Refusal addRelief(RotationGroup& group, const Employee& employee,
                                const std::vector<RotationGroup>& others, WorkMonth month);

/// "Mover p/ Cima", "Mover p/ Baixo" and dragging: the employee at `from` goes to `to`, and those
/// between move up or down. False when there is no such place.
[[nodiscard]] bool movePlace(RotationGroup& group, std::size_t from, std::size_t to);

/// What keeps the group from being recorded.
[[nodiscard]] Refusal recordingRefusal(const RotationGroup& group, WorkMonth month);

}  // namespace winvrx
