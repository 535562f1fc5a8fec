#pragma once

#include "report/print_scale.h"

#include <array>
#include <optional>
#include <string_view>

// The calibration sheet: an A4 sheet with rulers and three crosses, printed untouched by any
// offset or scale. What the operator measures on it tells how the printer errs.

namespace winvrx {

inline constexpr std::string_view kCalibrationLayout = "calibracao.rpt";

/// Where the crosses belong, hundredths of a millimetre from the sheet's left and upper edge: A
/// near both edges, B to the right of it, C below it.
inline constexpr int kCrossNear = 3000;
inline constexpr int kCrossRight = 18000;
inline constexpr int kCrossDown = 26000;

/// What was measured, from the edges of the paper; hundredths of a millimetre.
struct MeasuredSheet {
    int leftToA = kCrossNear;
    int leftToB = kCrossRight;
    int topToA = kCrossNear;
    int topToC = kCrossDown;
};

/// The distances in the order in which they are asked for.
inline constexpr std::array kMeasuredDistances = {&MeasuredSheet::leftToA, &MeasuredSheet::leftToB,
                                                  &MeasuredSheet::topToA, &MeasuredSheet::topToC};

/// nullopt for distances that no printer gives.
[[nodiscard]] std::optional<PrintScale> scaleFrom(const MeasuredSheet& sheet);

}  // namespace winvrx
