#include "foundation/desk/text_report.h"

#include "foundation/desk/command.h"
#include "foundation/desk/text_editor.h"
#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <stdexcept>

namespace winvrx {

namespace {

std::string fittedIn(const TextColumn& column, std::string_view text) {
    if (column.side == TextColumn::Side::Left) return fitted(text, column.width);
    const std::string_view cut = firstCharacters(text, column.width);
    return std::string(column.width - characterCount(cut), ' ').append(cut);
}

}  // namespace

void TextReport::addHeading(std::string_view heading) {
    std::size_t width = 0;
    for (const TextColumn& column : columns_)
        width += column.width + 1;
    lines_.push_back(fitted(heading, width - 1) + "|");
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
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at)
        line += fittedIn(columns_[at], cells[at]) + "|";
    lines_.push_back(std::move(line));
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
