#pragma once

#include "foundation/register/company.h"
#include "report/report_pages.h"
#include "timecard/rotation/rotation_view.h"

#include <string>
#include <string_view>
#include <vector>

// The plan of a group for the wall: as the text "FolhaRevezamento.txt", and as a page of the report
// engine, A4 landscape.

namespace winvrx {

inline constexpr std::string_view kRotationTextName = "FolhaRevezamento.txt";
inline constexpr std::string_view kRotationLayout = "escala.rpt";

/// A group and what its sheet says besides the plan.
struct RotationSheet {
    Company company;
    RotationGroup group;
    RotationView view;  ///< of the group in the month
    WorkMonth month{};
    std::string times;  ///< "Ent:07:00 Saí:19:00"
};

/// "ESCALA DE REVEZAMENTO 5 x 1".
[[nodiscard]] std::string sheetTitle(const RotationGroup& group);

/// A box drawn with "+", "-" and "|": in 5 x 1 a line a day with the relief worker and who is off,
/// in 12 x 36 one with the three teams.
[[nodiscard]] std::vector<std::string> sheetLines(const RotationSheet& sheet);

/// The columns of `Tabela_base` for a page, and its rows, one for each employee of the group.
[[nodiscard]] std::vector<std::string> sheetColumns();
[[nodiscard]] ReportRows sheetRows(const RotationSheet& sheet);

}  // namespace winvrx
