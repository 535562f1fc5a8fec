#include "foundation/values/csv.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::array kSeparators = {';', ',', '\t'};
constexpr char kQuote = '"';

std::string decoded(std::string_view bytes) {
    if (bytes.find('\0') != std::string_view::npos)
        throw TextFault("CSV file with zero bytes",
                        "O arquivo não é um texto CSV. Na planilha, salve-o como CSV.");
    if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
    return isUtf8(bytes) ? std::string(bytes) : decodeWindows1252(bytes);
}

char separatorOf(std::string_view text) {
    std::array<int, kSeparators.size()> counts{};
    bool quoted = false;
    for (const char c : text) {
        if (c == kQuote) quoted = !quoted;
        if (c == '\n' && !quoted) break;
        for (std::size_t i = 0; i < kSeparators.size(); ++i)
            if (c == kSeparators[i] && !quoted) ++counts[i];
    }
    return kSeparators[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) -
                                                counts.begin())];
}

/// Reads one character after the other.
class Parser {
  public:
    explicit Parser(char separator) : separator_(separator) {}

    void take(char c) {
        if (closing_) {
            closing_ = false;
            if (c == kQuote) {
                cell_ += c;
                return;
            }
            quoted_ = false;
        }
        if (quoted_)
            takeQuoted(c);
        else
            takePlain(c);
    }

    [[nodiscard]] CsvRows finish() {
        if (quoted_ && !closing_)
            throw TextFault("CSV file with an open quote",
                            "O arquivo CSV tem aspas que não foram fechadas.");
        if (!cell_.empty() || !row_.empty()) endRow();
        return std::move(rows_);
    }

  private:
    void takeQuoted(char c) {
        if (c == kQuote)
            closing_ = true;
        else
            cell_ += c;
    }

    void takePlain(char c) {
        if (c == kQuote && cell_.empty())
            quoted_ = true;
        else if (c == separator_)
            endCell();
        else if (c == '\n')
            endRow();
        else if (c != '\r')
            cell_ += c;
    }

    void endCell() {
        row_.emplace_back(trimmed(cell_));
        cell_.clear();
    }

    void endRow() {
        endCell();
        rows_.push_back(std::move(row_));
        row_.clear();
    }

    char separator_;
    bool quoted_ = false;
    bool closing_ = false;  ///< a quote was read within quotes
    std::string cell_;
    std::vector<std::string> row_;
    CsvRows rows_;
};

std::string quotedCell(const std::string& cell) {
    if (cell.find_first_of("\";\r\n\t,") == std::string::npos) return cell;
    std::string text(1, kQuote);
    for (const char c : cell)
        text.append(c == kQuote ? 2 : 1, c);
    return text + kQuote;
}

}  // namespace

CsvRows parseCsv(std::string_view bytes) {
    const std::string text = decoded(bytes);
    Parser parser(separatorOf(text));
    for (const char c : text)
        parser.take(c);
    return parser.finish();
}

std::string csvText(const CsvRows& rows) {
    std::string text(kUtf8Mark);
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text.append(i == 0 ? "" : ";").append(quotedCell(row[i]));
        text.append("\r\n");
    }
    return text;
}

}  // namespace winvrx
