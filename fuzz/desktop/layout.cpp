#include "fuzz/invariant.h"
#include "output/stocks/card_rows.h"
#include "report/desktop/layout_reader.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

using namespace winvrx;
using fuzz::require;

namespace {

/// Hundredths of a millimetre; what the limits of the reader allow at most.
constexpr double kFarthest = 1e12;

bool isNear(double length) {
    return std::abs(length) <= kFarthest;
}

void check(const Layout& layout, const LayoutText& text) {
    require(isNear(text.baseline.x()) && isNear(text.baseline.y()), "a text is on some paper");
    require(text.ink < layout.inks.size(), "a text has an ink");
    require(text.width.value_or(1) > 0, "a text has room");
    for (const LayoutText::Piece& piece : text.pieces)
        require(piece.column.value_or(0) < layout.columns, "a column exists");
}

void check(const Layout&, const LayoutLine& line) {
    for (const QPointF end : {line.line.p1(), line.line.p2()})
        require(isNear(end.x()) && isNear(end.y()), "a line is on some paper");
}

void check(const Layout& layout, const LayoutRect& rect) {
    require(rect.barcode.value_or(0) < layout.columns, "a column exists");
    require(isNear(rect.area.x()) && isNear(rect.area.y()), "a rect is on some paper");
    require(rect.area.width() >= 0 && rect.area.height() >= 0, "a rect has a size");
}

void check(const Layout& layout) {
    require(layout.page.width() > 0 && layout.page.height() > 0, "there is paper");
    require(layout.rowPitch > 0, "rows have a pitch");
    require(layout.inks.size() <= kMostInks, "inks are few");
    for (const Ink& ink : layout.inks)
        require(ink.size > 0 && ink.weight >= 1 && ink.weight <= 1000, "an ink can be a font");
    std::size_t marks = 0;
    for (const LayoutSection& section : layout.sections) {
        marks += section.marks.size();
        for (const LayoutMark& mark : section.marks) {
            for (const std::size_t column : mark.unless)
                require(column < layout.columns, "a column exists");
            std::visit([&](const auto& one) { check(layout, one); }, mark.shape);
        }
    }
    require(marks <= kMostMarks, "marks are few");
    (void)drawnColumns(layout);
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    QBuffer file;
    file.setData(bytes.data(), static_cast<int>(bytes.size()));
    file.open(QIODevice::ReadOnly);
    try {
        check(readLayout(file, "fuzz.rpt", cardColumns()));
    } catch (const LayoutFault&) {
        // A damaged layout is refused.
    }
}
