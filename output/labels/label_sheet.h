#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// The sheets of adhesive labels on which labels are printed. Where their labels lie stands in the
// layouts; docs/layout-files.md has the table.

namespace winvrx {

/// A line of a label has so many characters of a fixed pitch, on each of the sheets.
inline constexpr std::size_t kLabelLineWidth = 42;

struct LabelSheet {
    std::string_view name;  ///< by which the operator chooses it
    std::string_view layout;
    std::string_view paper;  ///< its code among the print scales: stock "14" and a letter
    std::size_t columns;
    std::size_t rows;
    std::size_t lines;  ///< of a label

    [[nodiscard]] constexpr std::size_t labels() const { return columns * rows; }
};

inline constexpr std::array kLabelSheets = {
    LabelSheet{"A4250/A4350 - 2 COLUNAS, 5 LINHAS", "etiquet.rpt", "14A", 2, 5, 12},
    LabelSheet{"A4263/A4363 - 2 COLUNAS, 7 LINHAS", "etiquete.rpt", "14B", 2, 7, 8},
    LabelSheet{"CARTA 66,7 x 25,4 - 3 COLUNAS, 10 LINHAS", "etiqueti.rpt", "14C", 3, 10, 8},
};
inline constexpr std::size_t kMostLabelColumns = 3;
inline constexpr std::size_t kMostLabelLines = 12;

/// The sheet that the main window opens the screen with.
inline constexpr std::string_view kMenuLabelSheet = "A4263/A4363 - 2 COLUNAS, 7 LINHAS";

/// The place of a sheet in kLabelSheets; nullopt for a name that none bears.
[[nodiscard]] constexpr std::optional<std::size_t> labelSheetNamed(std::string_view name) {
    for (std::size_t at = 0; at < kLabelSheets.size(); ++at)
        if (kLabelSheets[at].name == name) return at;
    return std::nullopt;
}
static_assert(labelSheetNamed(kMenuLabelSheet));

}  // namespace winvrx
