#pragma once

#include "foundation/files/line_file.h"
#include "foundation/files/record_fields.h"
#include "foundation/values/codes.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The texts of the labels that are stuck into the work booklet. A text is one string; it breaks
// into the label's lines after every kLabelLineWidth characters, so that the blanks in it settle
// where each line begins:
//
//     labelLines("01 Admitido em …                          em experiência")
//         {"01 Admitido em …", "em experiência"}

namespace winvrx {

/// One entry of the catalogue. The text is kept blank for blank.
struct LabelText {
    std::string number;  ///< two digits
    std::string title;
    std::string text;

    [[nodiscard]] bool operator==(const LabelText&) const = default;
};

/// A text may have so many lines; no sheet has a label for more than half of them.
inline constexpr std::size_t kMostTextLines = 24;

/// The layout of an entry's line. The text goes from its column to the end of the line.
inline constexpr std::array kLabelFields = {
    RecordField<LabelText>{&LabelText::number, {1, 2}, "Número", true},
    RecordField<LabelText>{&LabelText::title, {4, 36}, "Título", true},
    RecordField<LabelText>{&LabelText::text, {41, 1008}, "Texto", true},
};

template <>
struct RecordLayout<LabelText> : LineLayout<kLabelFields, 1048, 0> {};

/// Unlike other records' the text is not trimmed.
template <>
[[nodiscard]] LabelText decode<LabelText>(std::string_view lineBytes);
/// As of other records; the text is neither padded nor cut. Throws TextFault.
[[nodiscard]] std::string encode(const LabelText& label, std::string existing = {});

using LabelNumber = DigitCode<2>;
[[nodiscard]] inline std::optional<LabelNumber> keyOf(const LabelText& label) {
    return LabelNumber::parse(label.number);
}

using LabelTexts = std::vector<StoredLine<LabelText>>;

/// A text's lines as they are printed, without the blanks at their ends and without empty lines at
/// the end.
using LabelLines = std::vector<std::string>;
[[nodiscard]] LabelLines labelLines(std::string_view text);

/// `line` as lines of at most kLabelLineWidth characters, broken between words where it can be.
[[nodiscard]] LabelLines wrappedLine(std::string_view line);

/// What the operator types and sees: a line of the label a line of the text. storedLabelText()
/// wraps the lines that are too long.
[[nodiscard]] std::string shownLabelText(std::string_view text);
[[nodiscard]] std::string storedLabelText(std::string_view shown);

/// The catalogue that holds where none is on record.
[[nodiscard]] const LabelTexts& defaultLabels();

/// The file of a company's catalogue, `confgctps`.
[[nodiscard]] LineFile<LabelText> labelFile(const Store& store, const CompanyCode& company);

/// The company's catalogue, or the default one where it has none. Throws FileFault.
[[nodiscard]] LabelTexts loadLabels(const Store& store, const CompanyCode& company);

/// Makes `labels` the catalogue, having kept the one before in `confgctpsBB`. Throws FileFault.
void saveLabels(const Store& store, const CompanyCode& company, const LabelTexts& labels);

/// Whether there is a catalogue to go back to. Throws FileFault.
[[nodiscard]] bool hasFormerLabels(const Store& store, const CompanyCode& company);
/// Makes the kept catalogue the catalogue again; there is none to go back to then. Cut short, it
/// can be done again. Throws FileFault.
void restoreFormerLabels(const Store& store, const CompanyCode& company);

}  // namespace winvrx
