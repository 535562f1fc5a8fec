#include "timecard/card/cell_block.h"

#include "foundation/values/text.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr char kQuote = '"';
constexpr std::string_view kParting = "\t\r\n";
constexpr std::string_view kNoSeconds = ":00";

/// Takes one cell off the front of `rest`, up to the tab or line break that ends it.
std::string takeCell(std::string_view& rest) {
    std::string cell;
    if (rest.starts_with(kQuote) && rest.find(kQuote, 1) != std::string_view::npos) {
        rest.remove_prefix(1);
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(kQuote), rest.size());
            cell += rest.substr(0, end);
            rest.remove_prefix(std::min(end + 1, rest.size()));
            if (!rest.starts_with(kQuote)) break;
            cell += kQuote;
            rest.remove_prefix(1);
        }
    }
    const std::size_t end = std::min(rest.find_first_of(kParting), rest.size());
    cell += rest.substr(0, end);
    rest.remove_prefix(end);
    return cell;
}

void takeLineBreak(std::string_view& rest) {
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : 1);
}

std::string quoted(const std::string& cell) {
    const bool plain =
        cell.find_first_of(kParting) == std::string::npos && cell.find(kQuote) == std::string::npos;
    if (plain) return cell;
    std::string text(1, kQuote);
    for (const char c : cell)
        text += c == kQuote ? std::string(2, kQuote) : std::string(1, c);
    return text + kQuote;
}

/// "08:00:00", as spreadsheets write a time, without its seconds.
std::string withoutSeconds(const std::string& text) {
    const std::string_view typed = trimmed(text);
    const std::string_view time =
        typed.substr(0, typed.size() - std::min<std::size_t>(typed.size(), 3));
    const bool hasSeconds = std::count(typed.begin(), typed.end(), ':') == 2;
    return hasSeconds && typed.ends_with(kNoSeconds) && parseTypedTime(time) ? std::string(time)
                                                                             : text;
}

std::string placeFinding(const CardSheet& sheet, int day, std::size_t firstCell,
                         const CellBlock& block) {
    const int days = static_cast<int>(sheet.lines().size());
    const int rows = static_cast<int>(block.size());
    if (day - 1 + rows > days)
        return "O bloco tem " + std::to_string(rows) + " linhas; a partir do dia " +
               padded(day, 2) + " o mês tem " + std::to_string(days - day + 1) + ".";
    for (const auto& row : block)
        if (firstCell + row.size() > kPunchCells.size())
            return "O bloco tem " + std::to_string(row.size()) +
                   " colunas; a partir desta célula cabem " +
                   std::to_string(kPunchCells.size() - firstCell) + ".";
    return {};
}

}  // namespace

CellBlock parseCellBlock(std::string_view text) {
    CellBlock block;
    while (!text.empty()) {
        auto& row = block.emplace_back();
        row.push_back(takeCell(text));
        while (text.starts_with('\t')) {
            text.remove_prefix(1);
            row.push_back(takeCell(text));
        }
        if (!text.empty()) takeLineBreak(text);
    }
    return block;
}

std::string textOf(const CellBlock& block) {
    std::string text;
    for (std::size_t row = 0; row < block.size(); ++row) {
        if (row > 0) text += '\n';
        for (std::size_t i = 0; i < block[row].size(); ++i)
            text += (i == 0 ? "" : "\t") + quoted(block[row][i]);
    }
    return text;
}

std::string paste(CardSheet& sheet, int day, PunchCell cell, const CellBlock& block) {
    const auto first = static_cast<std::size_t>(cell);
    if (std::string finding = placeFinding(sheet, day, first, block); !finding.empty())
        return finding;
    std::vector<TypedCell> cells;
    for (std::size_t row = 0; row < block.size(); ++row)
        for (std::size_t i = 0; i < block[row].size(); ++i) {
            const PunchCell place = kPunchCells[first + i];
            const std::string& text = block[row][i];
            cells.push_back(
                {day + static_cast<int>(row), place, isTime(place) ? withoutSeconds(text) : text});
        }
    sheet.type(cells);
    return {};
}

}  // namespace winvrx
