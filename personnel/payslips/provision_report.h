#pragma once

#include "foundation/values/date.h"
#include "report/print_pages.h"

namespace winvrx {

/// "PROVISÃO DE FÉRIAS": what the vacations that are provided for in a month cost, an employee each
/// with his acquisition period, and their total. Shows the sheets, from where they can be printed
/// or saved. Says so where the month has none. True when it was printed or saved.
[[nodiscard]] bool previewProvisions(const PrintDesk& desk, WorkMonth month);

}  // namespace winvrx
