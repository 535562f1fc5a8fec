#include "report/desktop/layout_painter.h"

#include "report/code128.h"
#include "report/desktop/text_lines.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace winvrx {

namespace {

/// Letters narrower than this can no longer be read; the text is cut instead.
constexpr double kNarrowest = 0.6;

QTransform transformOf(const Alignment& alignment, double rowPitch) {
    constexpr double kUnitsPerTwip = kLayoutUnitsPerInch / kTwipsPerInch;
    constexpr double kWhole = PrintScale().horizontalScale;
    const PrintScale& scale = alignment.scale;
    return QTransform::fromTranslate(0, alignment.lines * rowPitch) *
           QTransform::fromScale(scale.horizontalScale / kWhole, scale.verticalScale / kWhole) *
           QTransform::fromTranslate(
               scale.horizontalOffset + alignment.horizontalTwips * kUnitsPerTwip,
               scale.verticalOffset + alignment.verticalTwips * kUnitsPerTwip);
}

void compose(const LayoutText& text, const PageRow& row, QString& into) {
    into.clear();
    for (const LayoutText::Piece& piece : text.pieces)
        if (!piece.column)
            into += piece.literal;
        else
            into += row[*piece.column].isEmpty() ? text.blank : row[*piece.column];
}

bool isLeftOut(const LayoutMark& mark, const PageRow& row) {
    const auto isBlank = [&](std::size_t column) { return row[column].isEmpty(); };
    return !std::ranges::all_of(mark.unless, isBlank) ||
           (!mark.when.empty() && std::ranges::all_of(mark.when, isBlank));
}

/// Takes away the blanks in front: they place a text, and only what is behind them is squeezed.
QString takeIndent(QString& text) {
    qsizetype count = 0;
    while (count < text.size() && text[count] == u' ')
        ++count;
    const QString indent = text.first(count);
    text.remove(0, count);
    return indent;
}

/// The text's bars, the quiet zones within the area; nothing of a text that has none.
void drawBars(QPainter& painter, const QRectF& area, const QColor& ink, const QString& text) {
    const std::vector<int> bars = code128Bars(text.toStdString());
    if (bars.empty() || !ink.isValid()) return;
    const int modules = std::accumulate(bars.begin(), bars.end(), 2 * kQuietModules);
    const double module = area.width() / modules;
    double x = area.left() + kQuietModules * module;
    for (std::size_t place = 0; place < bars.size(); ++place) {
        const double width = bars[place] * module;
        if (place % 2 == 0) painter.fillRect(QRectF(x, area.top(), width, area.height()), ink);
        x += width;
    }
}

/// Thousandths as a part of one; what is no number of them is nothing.
double shareIn(const QString& text) {
    constexpr int kWhole = 1000;
    return std::clamp(text.toInt(), 0, kWhole) / static_cast<double>(kWhole);
}

double startOf(LayoutText::Anchor anchor, double width) {
    if (anchor == LayoutText::Anchor::Middle) return -width / 2;
    return anchor == LayoutText::Anchor::End ? -width : 0;
}

QPen penOf(const QColor& stroke, double width) {
    if (!stroke.isValid() || width <= 0) return Qt::NoPen;
    return QPen(stroke, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

}  // namespace

LayoutPainter::LayoutPainter(Layout layout, const Choice& choice)
    : layout_(std::move(layout)),
      choice_(choice),
      onPaper_(transformOf(choice.alignment, layout_.rowPitch)),
      runs_(layout_.inks.size()),
      blank_(layout_.columns) {
    for (const Ink& ink : layout_.inks)
        fonts_.push_back(std::make_unique<GlyphFont>(ink));
}

LayoutPainter::~LayoutPainter() = default;

void LayoutPainter::paint(QPainter& painter, const PageText& rows, int side) {
    if (choice_.stock) paintSections(painter, true, rows, side);
    const QTransform paper = painter.worldTransform();
    painter.setWorldTransform(onPaper_, true);
    paintSections(painter, false, rows, side);
    painter.setWorldTransform(paper);
}

void LayoutPainter::paintSections(QPainter& painter, bool stock, const PageText& rows, int side) {
    for (const LayoutSection& section : layout_.sections) {
        const LayoutPlace& place = section.place;
        if (place.side != 0 && place.side != side) continue;
        if (place.block == LayoutBlock::Header && !choice_.header) continue;
        if ((place.block == LayoutBlock::Stock) == stock) paintSection(painter, section, rows);
    }
    flush(painter);
}

void LayoutPainter::paintSection(QPainter& painter, const LayoutSection& section,
                                 const PageText& rows) {
    const LayoutPlace& place = section.place;
    const bool isStock = place.block == LayoutBlock::Stock;
    const int present = isStock ? place.rows : static_cast<int>(rows.size()) - place.first;
    const int count = place.rows == 0 ? 1 : std::min(place.rows, present);
    for (int i = 0; i < count; ++i) {
        const auto position = static_cast<std::size_t>(place.first + i);
        const PageRow& row = position < rows.size() ? rows[position] : blank_;
        const QPointF shift = QPointF(0, i * place.pitch);
        for (const LayoutMark& mark : section.marks)
            paintMark(painter, mark, row, shift);
    }
}

void LayoutPainter::paintMark(QPainter& painter, const LayoutMark& mark, const PageRow& row,
                              QPointF shift) {
    if (isLeftOut(mark, row)) return;
    if (const auto* text = std::get_if<LayoutText>(&mark.shape)) {
        write(painter, *text, row, shift);
        return;
    }
    flush(painter);
    if (const auto* line = std::get_if<LayoutLine>(&mark.shape)) {
        painter.setPen(penOf(line->stroke, line->strokeWidth));
        painter.drawLine(line->line.translated(shift));
    } else if (const auto* rect = std::get_if<LayoutRect>(&mark.shape); rect && rect->barcode) {
        drawBars(painter, rect->area.translated(shift), rect->fill, row[*rect->barcode]);
    } else if (rect) {
        painter.setPen(penOf(rect->stroke, rect->strokeWidth));
        painter.setBrush(rect->fill.isValid() ? QBrush(rect->fill) : QBrush(Qt::NoBrush));
        QRectF area = rect->area.translated(shift);
        if (rect->share) area.setWidth(area.width() * shareIn(row[*rect->share]));
        if (area.width() > 0 || !rect->share) painter.drawRect(area);
    }
}

void LayoutPainter::write(QPainter& painter, const LayoutText& text, const PageRow& row,
                          QPointF shift) {
    if (!layout_.inks[text.ink].colour.isValid()) return;
    compose(text, row, written_);
    if (written_.isEmpty()) return;
    if (text.wrap)
        writeWrapped(painter, text, shift);
    else
        writeLine(painter, text, shift);
}

double LayoutPainter::widthOf(std::size_t ink, const QString& text) {
    GlyphFont& font = *fonts_[ink];
    return font.covers(text) ? font.widthOf(text)
                             : QFontMetricsF(font.font()).horizontalAdvance(text);
}

void LayoutPainter::writeLine(QPainter& painter, const LayoutText& text, QPointF shift) {
    const auto measure = [&](const QString& part) { return widthOf(text.ink, part); };
    Spread spread{.width = measure(written_)};
    double room = text.width.value_or(spread.width);
    double indent = 0;
    if (spread.width > room && text.anchor == LayoutText::Anchor::Start) {
        indent = measure(takeIndent(written_));
        spread.width -= indent;
        room -= indent;
    }
    if (spread.width * kNarrowest > room) {
        cutToWidth(written_, room / kNarrowest, measure);
        spread.width = measure(written_);
    }
    if (spread.width > room) spread.squeeze = room / spread.width;
    writeAt(painter, text, written_, text.baseline + shift + QPointF(indent, 0), spread);
}

void LayoutPainter::writeWrapped(QPainter& painter, const LayoutText& text, QPointF shift) {
    const auto measure = [&](const QString& part) { return widthOf(text.ink, part); };
    const LayoutText::Wrap& wrap = *text.wrap;
    const auto fitted = fittedLines(written_, *text.width, wrap.lines, kNarrowest, measure);
    for (const TextLine& line : fitted.lines) {
        Spread spread{.width = measure(line.text), .squeeze = fitted.squeeze};
        const auto blanks = line.text.count(u' ');
        if (wrap.justified && !line.endsParagraph && blanks > 0) {
            const double room = *text.width / fitted.squeeze;
            spread.blank = (room - spread.width) / static_cast<double>(blanks);
            spread.width = room;
        }
        writeAt(painter, text, line.text,
                text.baseline + shift + QPointF(0, line.down * wrap.pitch), spread);
    }
}

void LayoutPainter::writeAt(QPainter& painter, const LayoutText& text, const QString& line,
                            QPointF baseline, const Spread& spread) {
    const QPointF start =
        baseline + QPointF(startOf(text.anchor, spread.width * spread.squeeze), 0);
    if (spread.squeeze == 1.0 && fonts_[text.ink]->covers(line))
        writeGlyphs(text.ink, line, start, spread.blank);
    else
        writeTransformed(painter, text.ink, line, start, spread);
}

void LayoutPainter::writeGlyphs(std::size_t ink, const QString& text, QPointF start, double blank) {
    GlyphFont& font = *fonts_[ink];
    Run& run = runs_[ink];
    for (const QChar character : text) {
        const GlyphFont::Glyph& glyph = font.glyphOf(character);
        run.glyphs.push_back(glyph.index);
        run.positions.push_back(start);
        start.rx() += glyph.advance + (character == u' ' ? blank : 0);
    }
}

void LayoutPainter::writeTransformed(QPainter& painter, std::size_t ink, const QString& text,
                                     QPointF start, const Spread& spread) {
    flush(painter);
    painter.save();
    painter.translate(start);
    painter.scale(spread.squeeze, 1);
    if (fonts_[ink]->covers(text)) {
        writeGlyphs(ink, text, QPointF(), spread.blank);
        flush(painter);
    } else {
        painter.setFont(fonts_[ink]->font());
        painter.setPen(layout_.inks[ink].colour);
        painter.drawText(QPointF(), text);
    }
    painter.restore();
}

void LayoutPainter::flush(QPainter& painter) {
    for (std::size_t ink = 0; ink < runs_.size(); ++ink) {
        Run& run = runs_[ink];
        if (run.glyphs.empty()) continue;
        QGlyphRun glyphs;
        glyphs.setRawFont(fonts_[ink]->rawFont());
        glyphs.setRawData(run.glyphs.data(), run.positions.data(),
                          static_cast<int>(run.glyphs.size()));
        painter.setPen(layout_.inks[ink].colour);
        painter.drawGlyphRun(QPointF(), glyphs);
        run.glyphs.clear();
        run.positions.clear();
    }
}

}  // namespace winvrx
