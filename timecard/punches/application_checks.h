#pragma once

#include "foundation/desk/operator.h"
#include "foundation/register/employee.h"

#include <optional>
#include <string>

namespace winvrx {

/// What the checks of "Aplicar Ponto" ask of the employee selected.
struct ApplicationCase {
    const Employee& employee;
    WorkMonth month;
    bool applied = false;  ///< the month has a punch record
    bool edited = false;   ///< cells were changed and not recorded
    bool inGroup = false;  ///< of a rotation
    bool lacksSituation = false;
    bool onLeave = false;
    bool inactive = false;  ///< before the month
};

/// Tells or asks one thing after the other until the operator has confirmed or something ends the
/// command; true when the punches may be applied. Throws Fault for an admission date that is none.
[[nodiscard]] bool confirmApplication(Operator& person, const ApplicationCase& asked);

/// What the checks of "Aplicar Ponto p/Todos" ask of the list and of the employee selected in it.
struct ListApplicationCase {
    const Employee* selected = nullptr;
    WorkMonth month;
    bool onLeave = false;        ///< the employee selected
    bool sameHours = false;      ///< his schedule is to become everyone's
    bool listed = true;          ///< the employee selected is one of those to be filled
    bool lacksSchedule = false;  ///< the employee selected
    bool mixed = false;          ///< the list has more than one shift or scale
    bool everyShift = false;     ///< the list is not filtered by shift
    std::string description;     ///< of the list: "Turno: Unico"
    std::size_t employees = 0;
    std::size_t applied = 0;  ///< of them have a punch record of the month
    bool edited = false;      ///< cells were changed and not recorded
};
[[nodiscard]] bool confirmListApplication(Operator& person, const ListApplicationCase& asked);

/// nullopt when the record has none. Throws Fault when what stands there is no date.
[[nodiscard]] std::optional<Date> requireAdmission(const Employee& employee);

/// Rotation scale, without being in a group of one.
[[nodiscard]] bool lacksGroup(const Employee& employee, bool inGroup);

}  // namespace winvrx
