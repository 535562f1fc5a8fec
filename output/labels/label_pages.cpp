#include "output/labels/label_pages.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

constexpr std::size_t kFrame = kMostLabelColumns * kMostLabelLines;

constexpr std::size_t columnOf(std::size_t label, std::size_t line) {
    return label * kMostLabelLines + line;
}

ReportRows blankSheet(const LabelSheet& sheet) {
    return {sheet.rows, ReportRow(kFrame + 1)};
}

void put(ReportRows& rows, const LabelSheet& sheet, std::size_t place, LabelLines lines) {
    ReportRow& row = rows[place / sheet.columns];
    for (std::size_t line = 0; line < std::min(lines.size(), sheet.lines); ++line)
        row[columnOf(place % sheet.columns, line)] = std::move(lines[line]);
}

}  // namespace

const std::vector<std::string>& labelColumns() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> made;
        for (std::size_t label = 1; label <= kMostLabelColumns; ++label)
            for (std::size_t line = 1; line <= kMostLabelLines; ++line)
                made.push_back("e" + std::to_string(label) + "_" + std::to_string(line));
        made.emplace_back("moldura");
        return made;
    }();
    return names;
}

ReportPages labelPages(LabelRun run) {
    const std::size_t sheets = run.sheets();
    return {sheets, [run = std::move(run)](std::size_t page) {
                ReportRows rows = blankSheet(run.sheet);
                const std::size_t before = page * run.sheet.labels();
                const std::size_t end = run.first + run.labels * run.copies;
                for (std::size_t place = 0; place < run.sheet.labels(); ++place) {
                    const std::size_t at = before + place;
                    if (at >= run.first && at < end)
                        put(rows, run.sheet, place, run.linesOf((at - run.first) / run.copies));
                }
                return rows;
            }};
}

ReportRows labelFrames(const LabelSheet& sheet) {
    ReportRows rows = blankSheet(sheet);
    for (std::size_t place = 0; place < sheet.labels(); ++place)
        put(rows, sheet, place, {std::to_string(place + 1)});
    for (ReportRow& row : rows)
        row[kFrame] = "1000";
    return rows;
}

}  // namespace winvrx
