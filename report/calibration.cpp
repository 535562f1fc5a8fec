#include "report/calibration.h"

namespace winvrx {

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

}  // namespace winvrx
