#pragma once

#include "foundation/desk/text_editor.h"
#include "report/print_pages.h"

#include <string_view>

namespace winvrx {

inline constexpr std::string_view kAbsenceLayout = "ausencias.rpt";

/// How many absences stand on one sheet.
inline constexpr std::size_t kAbsencesOnASheet = 31;

/// Shows the absences of the selected company's month on a sheet, a row for each leave with the
/// month's days, from where they can be printed or saved. True when that was done; otherwise the
/// operator has been told why, or that nobody is away.
[[nodiscard]] bool previewAbsences(const PrintDesk& desk, WorkMonth month);

/// The same as text, in the desktop's editor.
[[nodiscard]] bool showAbsences(const Workplace& at, TextEditor& editor, WorkMonth month);

}  // namespace winvrx
