#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "report/report_engine.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The record `EscalaImpressao`: a printer may print everything a little too large, too small or too
// far to one side, and differently on each paper. A line of the record says for one printer and one
// paper by how much its print is to be scaled and moved to make up for that.

namespace winvrx {

inline constexpr std::string_view kPrintScaleName = "EscalaImpressao";

inline constexpr int kWholeScale = 10000;  ///< 100 %, in hundredths of a percent
inline constexpr int kSmallestScale = 9000;
inline constexpr int kLargestScale = 11000;
inline constexpr int kLargestScaleOffset = 5000;  ///< hundredths of a millimetre, either way

/// The printer and the paper that a line is for.
struct PrintScaleKey {
    std::string printer;  ///< its name, also where it is the system's default printer
    std::string paper;    ///< what is printed on, a code of its subject's: of a card its stock's

    [[nodiscard]] bool operator==(const PrintScaleKey&) const = default;
};

struct PrintScaleLine {
    PrintScaleKey key;
    PrintScale scale;

    [[nodiscard]] bool operator==(const PrintScaleLine&) const = default;
};

/// One figure of a line: where it stands, and its bounds. Reader and writer both go by this table.
struct PrintScaleField {
    int PrintScale::*member;
    Column column;
    int least;
    int greatest;
};

inline constexpr Column kScalePrinter{1, 60};
inline constexpr Column kScalePaper{61, 3};
inline constexpr std::array kPrintScaleFields = {
    PrintScaleField{&PrintScale::horizontalScale, {64, 8}, kSmallestScale, kLargestScale},
    PrintScaleField{&PrintScale::verticalScale, {72, 8}, kSmallestScale, kLargestScale},
    PrintScaleField{
        &PrintScale::horizontalOffset, {80, 8}, -kLargestScaleOffset, kLargestScaleOffset},
    PrintScaleField{
        &PrintScale::verticalOffset, {88, 8}, -kLargestScaleOffset, kLargestScaleOffset},
};
inline constexpr std::size_t kPrintScaleWidth = 95;
static_assert(kScalePrinter.end() == kScalePaper.start);
static_assert(kScalePaper.end() == kPrintScaleFields.front().column.start);
static_assert(kPrintScaleFields.back().column.end() == kPrintScaleWidth + 1);

/// "100,25", "-1,5", "100": hundredths; nullopt for anything else and beyond a million.
[[nodiscard]] std::optional<int> parseHundredths(std::string_view text);
/// "100,25".
[[nodiscard]] std::string hundredthsText(int hundredths);

/// True when every figure is within its bounds.
[[nodiscard]] bool isUsable(const PrintScale& scale);

/// nullopt for a line without a printer, or with a figure that is none or out of its bounds.
[[nodiscard]] std::optional<PrintScaleLine> decodePrintScale(std::string_view lineBytes);
/// `existing` is the line that is replaced: bytes past the columns, and figures that have not
/// changed, stay as they are there. Throws TextFault when the printer's name cannot be stored.
[[nodiscard]] std::string encode(const PrintScaleLine& line, std::string existing = {});

/// The scale on record; 100 % and no offset where the file has no line for the key. Throws
/// FileFault.
[[nodiscard]] PrintScale loadPrintScale(const Store& store, const PrintScaleKey& key);
/// Writes the key's line; all others stay as they are, understood or not. Throws FileFault and
/// TextFault.
void savePrintScale(const Store& store, const PrintScaleLine& line);

}  // namespace winvrx
