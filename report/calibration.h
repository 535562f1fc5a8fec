#pragma once

#include "report/report_engine.h"

#include <array>
#include <optional>
#include <string_view>

// The calibration sheet: an A4 sheet with rulers and three crosses, printed untouched by any
// offset or scale. What the operator measures on it tells how the printer errs.

namespace winvrx {

inline constexpr std::string_view kCalibrationLayout = "calibracao.rpt";
/// The sheet's one column: the printer's name.
inline constexpr std::string_view kCalibrationColumn = "nome";

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

/// The scale that brings the crosses to where they belong; nullopt for distances that no printer
/// gives.
[[nodiscard]] std::optional<PrintScale> scaleFrom(const MeasuredSheet& sheet);

/// Two crosses in one direction: where they belong, and where they were found, measured from the
/// same edge of the paper. Hundredths of a millimetre.
struct MeasuredMarks {
    int nearBelongs = 0;
    int farBelongs = 0;
    int nearFound = 0;
    int farFound = 0;
};

/// Scale and offset of one direction, as in PrintScale.
struct AxisScale {
    int scale = 10000;
    int offset = 0;

    [[nodiscard]] bool operator==(const AxisScale&) const = default;
};

/// The scale and offset of one direction; nullopt for distances that no printer gives. Requires
/// nearBelongs < farBelongs, and marks printed without any scale or offset.
[[nodiscard]] std::optional<AxisScale> correctionFor(const MeasuredMarks& marks);

}  // namespace winvrx
