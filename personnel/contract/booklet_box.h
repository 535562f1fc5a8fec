#pragma once

#include "foundation/register/company.h"
#include "personnel/contract/contract.h"
#include "report/report_pages.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The contract box of the employee's work booklet (CTPS). An open booklet shows two pages with two
// boxes each; one contract fills one of them.

namespace winvrx {

inline constexpr std::string_view kBookletLayout = "ctps.rpt";
/// What the calibration of printer and paper is kept under.
inline constexpr std::string_view kBookletPaper = "CTPS";

/// Blanks before each line of a box on the left, and on the right.
inline constexpr std::size_t kLeftIndent = 4;
inline constexpr std::size_t kRightIndent = 66;
/// Characters that a line has before it is squeezed.
inline constexpr std::size_t kBoxWidth = 58;
inline constexpr std::size_t kBoxLines = 20;
/// Blank lines between two boxes of a page.
inline constexpr std::size_t kLinesBetween = 2;

enum class BookletPlace { LeftAbove, LeftBelow, RightAbove, RightBelow };
inline constexpr std::array<std::string_view, 4> kBookletPlaces = {
    "esquerda, quadro de cima", "esquerda, quadro de baixo", "direita, quadro de cima",
    "direita, quadro de baixo"};

/// The kBoxLines lines of a box without their indent. The remuneration, with the amount in words,
/// takes three of them, blank where it needs fewer; so every other line has its place on the page.
/// Requires a salary that parseAmountForWords takes.
[[nodiscard]] std::vector<std::string> boxLines(const Company& company, const Employee& employee,
                                                const Contract& contract);

/// The columns of the booklet's page: a line of the left page, and of the right one.
[[nodiscard]] std::vector<std::string> bookletColumns();
/// The rows of the page with a box in its place.
[[nodiscard]] ReportRows bookletRows(const std::vector<std::string>& box, BookletPlace place);

}  // namespace winvrx
