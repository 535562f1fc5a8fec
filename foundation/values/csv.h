#pragma once

#include <string>
#include <string_view>
#include <vector>

// Tables as spreadsheet programs write and read them: one line a row, cells between separators, a
// cell with a separator, a quote or a line break inside quotes, quotes inside doubled.

namespace winvrx {

using CsvRows = std::vector<std::vector<std::string>>;

/// The rows as UTF-8. The encoding is recognised (UTF-8, with or without its mark, or
/// Windows-1252), and so is the separator: of ";", "," and tab the one that stands most often in
/// the first line. Throws TextFault for bytes that are no text, and for a quote that is never
/// closed.
[[nodiscard]] CsvRows parseCsv(std::string_view bytes);

/// UTF-8 with its mark and ";", as spreadsheet programs here expect.
[[nodiscard]] std::string csvText(const CsvRows& rows);

}  // namespace winvrx
