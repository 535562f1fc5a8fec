#include "report/desktop/layout.h"

#include "foundation/values/desktop/qt_text.h"

#include <algorithm>

namespace winvrx {

namespace {

void collect(const LayoutText& text, std::vector<std::size_t>& columns) {
    for (const LayoutText::Piece& piece : text.pieces)
        if (piece.column) columns.push_back(*piece.column);
    columns.insert(columns.end(), text.unless.begin(), text.unless.end());
    columns.insert(columns.end(), text.when.begin(), text.when.end());
}

void collect(const LayoutRect& rect, std::vector<std::size_t>& columns) {
    if (rect.share) columns.push_back(*rect.share);
    if (rect.barcode) columns.push_back(*rect.barcode);
}

void makeUnique(std::vector<std::size_t>& columns) {
    std::sort(columns.begin(), columns.end());
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
}

bool isOfFirstRow(const LayoutSection& section) {
    return section.rows == 0 && section.first == 0;
}

}  // namespace

PageText pageText(const ReportRows& rows) {
    PageText text(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const std::string& value : rows[i])
            text[i].push_back(toQt(value));
    return text;
}

QRectF cardArea(const Layout& layout) {
    QRectF area;
    for (const LayoutSection& section : layout.sections)
        if (section.block == LayoutBlock::Stock && section.rows == 0)
            for (const LayoutMark& mark : section.marks)
                if (const auto* rect = std::get_if<LayoutRect>(&mark)) area |= rect->area;
    return area.isEmpty() ? QRectF(QPointF(), layout.page * kLayoutUnitsPerMillimetre) : area;
}

DrawnColumns drawnColumns(const Layout& layout) {
    DrawnColumns columns;
    for (const LayoutSection& section : layout.sections)
        for (const LayoutMark& mark : section.marks) {
            auto& into = isOfFirstRow(section) ? columns.once : columns.inRows;
            if (const auto* text = std::get_if<LayoutText>(&mark))
                collect(*text, into);
            else if (const auto* rect = std::get_if<LayoutRect>(&mark))
                collect(*rect, into);
        }
    makeUnique(columns.once);
    makeUnique(columns.inRows);
    return columns;
}

LayoutFault::LayoutFault(const std::string& file, const std::string& cause)
    : Fault(file + ": " + cause, "O layout " + file + " não pôde ser aberto: " + cause + ".") {}

LayoutFault::LayoutFault(const std::string& file, long long line, const std::string& cause)
    : Fault(file + ":" + std::to_string(line) + ": " + cause,
            "O layout " + file + " tem um erro na linha " + std::to_string(line) + ": " + cause +
                ".") {}

}  // namespace winvrx
