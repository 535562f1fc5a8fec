#include "report/desktop/layout.h"

#include "foundation/values/desktop/qt_text.h"

#include <algorithm>

namespace winvrx {

namespace {

void collect(const LayoutMark& mark, std::vector<std::size_t>& columns) {
    columns.insert(columns.end(), mark.unless.begin(), mark.unless.end());
    columns.insert(columns.end(), mark.when.begin(), mark.when.end());
    const auto add = [&columns](const std::optional<std::size_t>& column) {
        if (column) columns.push_back(*column);
    };
    if (const auto* text = std::get_if<LayoutText>(&mark.shape)) {
        for (const LayoutText::Piece& piece : text->pieces)
            add(piece.column);
    } else if (const auto* rect = std::get_if<LayoutRect>(&mark.shape)) {
        add(rect->share);
        add(rect->barcode);
    }
}

void makeUnique(std::vector<std::size_t>& columns) {
    std::sort(columns.begin(), columns.end());
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
}

bool isOfFirstRow(const LayoutSection& section) {
    return section.place.rows == 0 && section.place.first == 0;
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
        if (section.place.block == LayoutBlock::Stock && section.place.rows == 0)
            for (const LayoutMark& mark : section.marks)
                if (const auto* rect = std::get_if<LayoutRect>(&mark.shape)) area |= rect->area;
    return area.isEmpty() ? QRectF(QPointF(), layout.page * kLayoutUnitsPerMillimetre) : area;
}

DrawnColumns drawnColumns(const Layout& layout) {
    DrawnColumns columns;
    for (const LayoutSection& section : layout.sections)
        for (const LayoutMark& mark : section.marks)
            collect(mark, isOfFirstRow(section) ? columns.once : columns.inRows);
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
