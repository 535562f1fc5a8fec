#include "foundation/desk/text_report.h"

#include "foundation/desk/command.h"
#include "foundation/desk/text_editor.h"
#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <stdexcept>

namespace winvrx {

namespace {

constexpr std::size_t kAccents = 8;  // a line of more takes its room when it comes to it

void appendCell(std::string& line, const TextColumn& column, std::string_view text) {
    if (column.side == TextColumn::Side::Left) return appendFitted(line, text, column.width);
    const std::string_view cut = firstCharacters(text, column.width);
    line.append(column.width - characterCount(cut), ' ').append(cut);
}

}  // namespace

TextReport::TextReport(std::vector<TextColumn> columns) : columns_(std::move(columns)) {
    for (const TextColumn& column : columns_)
        width_ += column.width + 1;
}

void TextReport::addHeading(std::string_view heading) {
    lines_.push_back(fitted(heading, width_ - 1) + "|");
}

void TextReport::addRule(char end) {
    std::string rule;
    for (const TextColumn& column : columns_)
        rule += std::string(column.width, '-') + '+';
    rule.back() = end;
    lines_.push_back(std::move(rule));
}

void TextReport::addTitles() {
    std::vector<std::string> titles;
    for (const TextColumn& column : columns_)
        titles.push_back(column.title);
    addRow(titles);
}

void TextReport::addRow(const std::vector<std::string>& cells) {
    if (cells.size() != columns_.size()) throw std::logic_error("a cell for each column");
    std::string& line = lines_.emplace_back();
    line.reserve(width_ + kAccents);
    for (std::size_t at = 0; at < cells.size(); ++at) {
        appendCell(line, columns_[at], cells[at]);
        line += '|';
    }
}

bool showReports(const Workplace& at, TextEditor& editor, const std::vector<ReportFile>& reports) {
    {
        const auto hold = holdFolder(at);
        for (const ReportFile& report : reports)
            RecordFile(at.files, report.path).rewriteValues(report.lines);
    }
    return std::ranges::all_of(reports,
                               [&](const ReportFile& report) { return editor.open(report.path); });
}

}  // namespace winvrx
