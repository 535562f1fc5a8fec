#include "foundation/desk/document_template.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace winvrx {

namespace {

constexpr int kTitlePoints = 14;
constexpr int kTextPoints = 11;
constexpr int kSmallestPoints = 6;
constexpr int kLargestPoints = 40;
constexpr int kUnderTitle = 6;  // millimetres
constexpr int kUnderHeading = 1;
constexpr int kUnderText = 3;
constexpr int kSignatureMargin = 8;
/// Tenths of a millimetre that an underscore of eleven points is wide.
constexpr int kUnderscore = 22;

Fault senseless(const std::string& sentence) {
    return {"template: " + sentence, sentence};
}

/// Those of "a | b"; a bar within braces divides nothing.
std::vector<std::string_view> cellsOf(std::string_view text) {
    std::vector<std::string_view> cells;
    std::size_t begin = 0;
    bool inWord = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '{' || text[at] == '}') inWord = text[at] == '{';
        if (text[at] != '|' || inWord) continue;
        cells.push_back(trimmed(text.substr(begin, at - begin)));
        begin = at + 1;
    }
    cells.push_back(trimmed(text.substr(begin)));
    return cells;
}

constexpr std::string_view kBreak = " // ";

std::string withLineBreaks(std::string text) {
    for (std::size_t at = text.find(kBreak); at != std::string::npos; at = text.find(kBreak, at))
        text.replace(at, kBreak.size(), "\n");
    return text;
}

class Composer {
  public:
    Composer(std::string title, const DocumentWords& words) : words_(words) {
        document_.title = std::move(title);
    }

    void take(std::string_view line);
    [[nodiscard]] Document finished();

  private:
    [[nodiscard]] bool isShown() const { return std::ranges::count(conditions_, false) == 0; }
    [[nodiscard]] bool takeCondition(std::string_view line);
    [[nodiscard]] bool takeTableLine(std::string_view line);
    [[nodiscard]] bool takeMarked(std::string_view line);
    void beginTable(std::string_view columns, bool gridLines);
    void addRow(std::string_view cells, const DocumentWords& words, bool bold);
    void addRows(std::string_view listAndCells);
    void addSignatures(std::string_view texts);
    void add(std::string_view text, Paragraph look);
    void put(std::variant<Paragraph, DocumentTable> block);
    void endParagraph();
    void endTable();

    const DocumentWords& words_;
    Document document_;
    std::string paragraph_;
    DocumentTable table_;
    bool inTable_ = false;
    std::vector<bool> conditions_;
    int points_ = kTextPoints;
    bool startsPage_ = false;
};

void Composer::take(std::string_view line) {
    if (line.starts_with(';')) return;
    if (line.starts_with('|'))
        endParagraph();
    else
        endTable();
    if (takeTableLine(line)) return;
    const bool isText = !line.empty() && !takeCondition(line) && !takeMarked(line);
    if (isText)
        paragraph_.append(paragraph_.empty() ? "" : " ").append(line);
    else if (line.empty())
        endParagraph();
}

Document Composer::finished() {
    endParagraph();
    endTable();
    if (!conditions_.empty()) throw senseless("Falta a linha \"?.\", que fecha a condição.");
    return std::move(document_);
}

bool Composer::takeCondition(std::string_view line) {
    if (!line.starts_with('?')) return false;
    endParagraph();
    line.remove_prefix(1);
    if (line == ".") {
        if (conditions_.empty()) throw senseless("A linha \"?.\" não fecha nenhuma condição.");
        conditions_.pop_back();
        return true;
    }
    const bool wantsEmpty = line.starts_with('!');
    if (wantsEmpty) line.remove_prefix(1);
    conditions_.push_back(words_.words.at(trimmed(line)).empty() == wantsEmpty);
    return true;
}

bool Composer::takeMarked(std::string_view line) {
    const auto take = [&](std::string_view mark) {
        if (!line.starts_with(mark)) return false;
        endParagraph();
        line = trimmed(line.substr(mark.size()));
        return true;
    };
    if (take("---"))
        startsPage_ = isShown() || startsPage_;
    else if (take("@ ")) {
        const auto points = parseWholeNumber(line, kSmallestPoints, kLargestPoints);
        if (!points) throw senseless("\"@\" pede um tamanho de letra de 6 a 40.");
        if (isShown()) points_ = *points;
    } else if (take("= "))
        add(line, {{}, Paragraph::Side::Center, true, kTitlePoints, false, kUnderTitle});
    else if (take("== "))
        add(line, {{}, Paragraph::Side::Left, true, points_, false, kUnderHeading});
    else if (take("^ "))
        add(line, {{}, Paragraph::Side::Center, false, points_, false, kUnderText});
    else if (take("> "))
        add(line, {{}, Paragraph::Side::Right, false, points_, false, kUnderText});
    else if (take("_ "))
        addSignatures(line);
    else
        return false;
    return true;
}

bool Composer::takeTableLine(std::string_view line) {
    if (!line.starts_with('|')) return false;
    const char kind = line.size() > 1 ? line[1] : ' ';
    const bool hasKind = kind == ':' || kind == '.' || kind == '!' || kind == '*';
    const std::string_view rest = line.substr(hasKind ? 2 : 1);
    if (kind == ':' || kind == '.')
        beginTable(rest, kind == ':');
    else if (!inTable_)
        throw senseless("Falta a linha \"|:\" com a largura das colunas antes da tabela.");
    else if (kind == '*')
        addRows(rest);
    else
        addRow(rest, words_, kind == '!');
    return true;
}

void Composer::beginTable(std::string_view columns, bool gridLines) {
    endTable();
    columns = trimmed(columns);
    while (!columns.empty()) {
        const std::size_t blank = columns.find(' ');
        const auto width = parseWholeNumber(columns.substr(0, blank), 1, kTextWidth);
        if (!width) throw senseless("As larguras das colunas são números, em milímetros.");
        table_.columnWidths.push_back(*width);
        columns = blank == std::string_view::npos ? "" : trimmed(columns.substr(blank));
    }
    const auto& widths = table_.columnWidths;
    if (widths.empty() || std::accumulate(widths.begin(), widths.end(), 0) > kTextWidth)
        throw senseless("As colunas somam no máximo " + std::to_string(kTextWidth) +
                        " milímetros.");
    table_.gridLines = gridLines;
    inTable_ = true;
}

void Composer::addRow(std::string_view cells, const DocumentWords& words, bool bold) {
    std::vector<Paragraph> row;
    for (const std::string_view cell : cellsOf(cells))
        row.push_back(
            {withLineBreaks(filledText(cell, words)), Paragraph::Side::Left, bold, points_});
    if (row.size() != table_.columnWidths.size())
        throw senseless("A linha da tabela tem " + std::to_string(row.size()) + " de " +
                        std::to_string(table_.columnWidths.size()) + " colunas.");
    table_.rows.push_back(std::move(row));
}

void Composer::addRows(std::string_view listAndCells) {
    const std::size_t bar = listAndCells.find('|');
    const auto list = words_.lists.find(trimmed(listAndCells.substr(0, bar)));
    if (bar == std::string_view::npos || list == words_.lists.end())
        throw UnknownWord(trimmed(listAndCells.substr(0, bar)));
    for (const MergeWords& entry : list->second)
        addRow(listAndCells.substr(bar + 1), {entry, words_.agreement}, false);
}

void Composer::addSignatures(std::string_view texts) {
    const auto cells = cellsOf(texts);
    const int width = kTextWidth / static_cast<int>(cells.size());
    const int letters = (std::min(width, kTextWidth / 2) - kSignatureMargin) * 10 / kUnderscore;
    DocumentTable table{std::vector<int>(cells.size(), width), {{}}, false};
    for (const std::string_view cell : cells)
        table.rows[0].push_back({"\n\n" + std::string(static_cast<std::size_t>(letters), '_') +
                                     "\n" + withLineBreaks(filledText(cell, words_)),
                                 Paragraph::Side::Center, false, points_});
    put(std::move(table));
}

void Composer::add(std::string_view text, Paragraph look) {
    look.text = withLineBreaks(filledText(text, words_));
    look.startsPage = startsPage_;
    if (isShown()) startsPage_ = false;
    put(std::move(look));
}

void Composer::put(std::variant<Paragraph, DocumentTable> block) {
    if (isShown()) document_.blocks.push_back(std::move(block));
}

void Composer::endParagraph() {
    if (paragraph_.empty()) return;
    // A justified line would be stretched to its break.
    const bool hasBreaks = paragraph_.find(kBreak) != std::string::npos;
    const auto side = hasBreaks ? Paragraph::Side::Left : Paragraph::Side::Justified;
    add(std::exchange(paragraph_, {}), {{}, side, false, points_, false, kUnderText});
}

void Composer::endTable() {
    if (!std::exchange(inTable_, false)) return;
    DocumentTable table = std::exchange(table_, {});
    if (table.rows.empty()) return;
    put(std::move(table));
    put(Paragraph{.points = kSmallestPoints});
}

}  // namespace

DocumentTemplate loadTemplate(const FileSystem& files,
                              const std::vector<std::filesystem::path>& folders,
                              const std::string& name) {
    for (const auto& folder : folders)
        if (auto bytes = files.read(folder / name)) {
            static constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
            if (bytes->starts_with(kByteOrderMark)) bytes->erase(0, kByteOrderMark.size());
            return {name, isUtf8(*bytes) ? *std::move(bytes) : decodeWindows1252(*bytes)};
        }
    throw Fault("template missing: " + name, "O modelo \"" + name + "\" não foi encontrado.");
}

Document composed(const DocumentTemplate& source, std::string title, const DocumentWords& words) {
    Composer composer(std::move(title), words);
    int number = 0;
    try {
        for (const std::string& line : splitLines(source.text)) {
            ++number;
            composer.take(trimmed(line));
        }
        return composer.finished();
    } catch (const Fault& fault) {
        const std::string place = source.name + ", linha " + std::to_string(number);
        throw Fault(place + ": " + fault.what(), "No modelo " + place + ": " + fault.explanation());
    }
}

}  // namespace winvrx
