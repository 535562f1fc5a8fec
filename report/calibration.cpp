#include "report/calibration.h"

#include "report/print_scale.h"

#include <cstdint>
#include <cstdlib>

namespace winvrx {

namespace {

/// Half away from zero.
std::int64_t dividedRounded(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t half = divisor / 2;
    return (dividend + (dividend < 0 ? -half : half)) / divisor;
}

}  // namespace

std::optional<PrintScale> scaleFrom(const MeasuredSheet& sheet) {
    const auto across = correctionFor({.nearBelongs = kCrossNear,
                                       .farBelongs = kCrossRight,
                                       .nearFound = sheet.leftToA,
                                       .farFound = sheet.leftToB});
    const auto down = correctionFor({.nearBelongs = kCrossNear,
                                     .farBelongs = kCrossDown,
                                     .nearFound = sheet.topToA,
                                     .farFound = sheet.topToC});
    if (!across || !down) return std::nullopt;
    return PrintScale{.horizontalScale = across->scale,
                      .verticalScale = down->scale,
                      .horizontalOffset = across->offset,
                      .verticalOffset = down->offset};
}

std::optional<AxisScale> correctionFor(const MeasuredMarks& marks) {
    const std::int64_t belongs = marks.farBelongs - marks.nearBelongs;
    const std::int64_t found = std::int64_t{marks.farFound} - marks.nearFound;
    if (found <= 0) return std::nullopt;
    const std::int64_t scale = dividedRounded(belongs * kWholeScale, found);
    const std::int64_t offset =
        dividedRounded(marks.nearBelongs * found - std::int64_t{marks.nearFound} * belongs, found);
    if (scale < kSmallestScale || scale > kLargestScale || std::abs(offset) > kLargestScaleOffset)
        return std::nullopt;
    return AxisScale{static_cast<int>(scale), static_cast<int>(offset)};
}

}  // namespace winvrx
