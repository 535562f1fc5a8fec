#pragma once

#include "foundation/register/merge_fields.h"
#include "timecard/schedule/standard_schedule.h"

namespace winvrx {

/// "horario", "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00", a pair without times left out, and
/// "refeicao", "12:00 às 13:00", empty unless the day has both a morning exit and an afternoon
/// entry.
void putSchedule(MergeWords& words, const DaySchedule& schedule);

}  // namespace winvrx
