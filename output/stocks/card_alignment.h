#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "output/stocks/card_stock.h"
#include "report/print_scale.h"
#include "report/report_engine.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Where the print comes to lie on each stock: the record `Config`, in the data folder itself and so
// the same for all companies, and what the alignment screen keeps beside it.

namespace winvrx {

inline constexpr std::string_view kAlignmentName = "Config";

/// Twips, 1/1440 inch.
inline constexpr int kDefaultOffset = 10;
inline constexpr int kGreatestOffset = 1500;

/// What the alignment screen keeps for as long as the program runs.
struct AlignmentMemory {
    int lines = 0;  ///< the line offset, 1 to 10; 0 until the operator chooses one
};

/// One entry of the alignment list; each within 0 … kGreatestOffset.
struct Offsets {
    int vertical = kDefaultOffset;
    int horizontal = kDefaultOffset;

    [[nodiscard]] bool operator==(const Offsets&) const = default;
};

/// The entries are the stocks that the card print knows, in its order.
inline constexpr std::size_t kAlignmentEntries = kPrintOrder.size();

/// nullopt for a stock that the card print does not know.
[[nodiscard]] std::optional<std::size_t> alignmentEntryOf(std::string_view stockCode);

/// An offset that is missing or is no number means the default; others are brought into bounds.
[[nodiscard]] Offsets decodeOffsets(std::string_view lineBytes);
/// "10         10", built upon `existing`: an offset that says the same keeps its bytes.
[[nodiscard]] std::string encode(const Offsets& offsets, std::string_view existing = {});

/// The offsets of each entry; an entry that the file does not reach takes the first one's, so that
/// a file of one line holds for all stocks. Throws FileFault.
[[nodiscard]] std::vector<Offsets> loadOffsets(const Store& store);
/// Writes every entry; the others, and lines past the last entry, stay as they are. Throws
/// FileFault.
void saveOffsets(const Store& store, std::size_t entry, const Offsets& offsets);
/// Every entry is the default afterwards. Throws FileFault.
void removeOffsets(const Store& store);

/// How a print of this stock on this printer is moved: the stock's entry of the alignment list, the
/// line offset and the printer's scale. Throws FileFault.
[[nodiscard]] Alignment loadAlignment(const Store& store, const PrintScaleKey& key,
                                      const AlignmentMemory& memory);

}  // namespace winvrx
