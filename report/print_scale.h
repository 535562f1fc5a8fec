#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "report/print_settings.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// How true to measure each printer prints on each stock: `EscalaImpressao`, one line for a printer
// and a stock, and how the scale follows from two distances measured on the calibration sheet.

namespace winvrx {

inline constexpr std::string_view kPrintScaleName = "EscalaImpressao";

inline constexpr int kWholeScale = 10000;  ///< 100 %, in hundredths of a percent
inline constexpr int kSmallestScale = 9000;
inline constexpr int kLargestScale = 11000;
inline constexpr int kLargestScaleOffset = 5000;  ///< hundredths of a millimetre, either way

/// Whose scale a line holds.
struct PrintScaleKey {
    std::string printer;  ///< the printer's own name, the default one's too
    std::string stock;    ///< two-digit code

    [[nodiscard]] bool operator==(const PrintScaleKey&) const = default;
};

struct PrintScaleLine {
    PrintScaleKey key;
    PrintScale scale;

    [[nodiscard]] bool operator==(const PrintScaleLine&) const = default;
};

/// A figure of a line. The layout's one place.
struct PrintScaleField {
    int PrintScale::*member;
    Column column;
    int least;
    int greatest;
};

inline constexpr Column kScalePrinter{1, 60};
inline constexpr Column kScaleStock{61, 3};
inline constexpr std::array kPrintScaleFields = {
    PrintScaleField{&PrintScale::horizontalScale, {64, 8}, kSmallestScale, kLargestScale},
    PrintScaleField{&PrintScale::verticalScale, {72, 8}, kSmallestScale, kLargestScale},
    PrintScaleField{
        &PrintScale::horizontalOffset, {80, 8}, -kLargestScaleOffset, kLargestScaleOffset},
    PrintScaleField{
        &PrintScale::verticalOffset, {88, 8}, -kLargestScaleOffset, kLargestScaleOffset},
};
inline constexpr std::size_t kPrintScaleWidth = 95;
static_assert(kScalePrinter.end() == kScaleStock.start);
static_assert(kScaleStock.end() == kPrintScaleFields.front().column.start);
static_assert(kPrintScaleFields.back().column.end() == kPrintScaleWidth + 1);

/// "100,25", "-1,5", "100": hundredths; nullopt for anything else and beyond a million.
[[nodiscard]] std::optional<int> parseHundredths(std::string_view text);
/// "100,25".
[[nodiscard]] std::string hundredthsText(int hundredths);

/// True when every figure is within its bounds.
[[nodiscard]] bool isUsable(const PrintScale& scale);

/// nullopt for a line without a printer, or with a figure that is none or out of its bounds.
[[nodiscard]] std::optional<PrintScaleLine> decodePrintScale(std::string_view lineBytes);
/// Built upon `existing`: what no column covers, and a figure that says the same, is kept. Throws
/// TextFault when the printer's name cannot be stored.
[[nodiscard]] std::string encode(const PrintScaleLine& line, std::string existing = {});

/// True to measure where the file has no line for it. Throws FileFault.
[[nodiscard]] PrintScale loadPrintScale(const Store& store, const PrintScaleKey& key);
/// Other lines stay as they are, understood or not. Throws FileFault and TextFault.
void savePrintScale(const Store& store, const PrintScaleLine& line);

/// How a print of this stock on this printer is moved: the stock's entry of the alignment list, the
/// line offset and the printer's scale. Throws FileFault.
[[nodiscard]] Alignment loadAlignment(const Store& store, const PrintScaleKey& key,
                                      const AlignmentMemory& memory);

/// Two marks of the calibration sheet in one direction: where they belong, and where they were
/// found, measured from the same edge of the paper. Hundredths of a millimetre.
struct MeasuredMarks {
    int nearBelongs = 0;
    int farBelongs = 0;
    int nearFound = 0;
    int farFound = 0;
};

/// Scale and offset of one direction.
struct AxisScale {
    int scale = kWholeScale;
    int offset = 0;

    [[nodiscard]] bool operator==(const AxisScale&) const = default;
};

/// What puts the marks where they belong, when they were printed true to measure; nullopt for
/// distances that no printer gives. Requires nearBelongs < farBelongs.
[[nodiscard]] std::optional<AxisScale> correctionFor(const MeasuredMarks& marks);

}  // namespace winvrx
