#pragma once

#include "report/desktop/glyph_font.h"
#include "report/desktop/layout.h"

#include <QPointF>
#include <QTransform>

#include <memory>

class QPainter;

namespace winvrx {

/// Paints a page: the one paint function of preview window, printer and PDF. Text stays text.
class LayoutPainter {
  public:
    struct Choice {
        bool header = true;
        bool stock = false;  ///< never shifted: the card lies where it lies
        Alignment alignment;
    };

    LayoutPainter(Layout layout, const Choice& choice);
    ~LayoutPainter();
    LayoutPainter(const LayoutPainter&) = delete;
    LayoutPainter& operator=(const LayoutPainter&) = delete;

    [[nodiscard]] const Layout& layout() const { return layout_; }

    /// Requires a painter with the paper's top left corner as origin and the layout's units; see
    /// layoutScale(). Rows beyond those that the layout repeats are not drawn; a page without rows
    /// shows what does not depend on them. `side` is a side of the paper, from 1 on.
    void paint(QPainter& painter, const PageText& rows, int side = 1);

  private:
    struct Run {
        std::vector<quint32> glyphs;
        std::vector<QPointF> positions;
    };

    void paintSections(QPainter& painter, bool stock, const PageText& rows, int side);
    void paintSection(QPainter& painter, const LayoutSection& section, const PageText& rows);
    void paintMark(QPainter& painter, const LayoutMark& mark, const PageRow& row, QPointF shift);
    void write(QPainter& painter, const LayoutText& text, const PageRow& row, QPointF shift);
    /// How a line is drawn out or together to its place.
    struct Spread {
        double width = 0;    ///< before it is squeezed
        double squeeze = 1;  ///< of the letters
        double blank = 0;    ///< more for each blank
    };

    [[nodiscard]] double widthOf(std::size_t ink, const QString& text);
    void writeLine(QPainter& painter, const LayoutText& text, QPointF shift);
    void writeWrapped(QPainter& painter, const LayoutText& text, QPointF shift);
    void writeAt(QPainter& painter, const LayoutText& text, const QString& line, QPointF baseline,
                 const Spread& spread);
    void writeGlyphs(std::size_t ink, const QString& text, QPointF start, double blank);
    void writeTransformed(QPainter& painter, std::size_t ink, const QString& text, QPointF start,
                          const Spread& spread);
    void flush(QPainter& painter);

    Layout layout_;
    Choice choice_;
    QTransform onPaper_;  ///< from the layout to the paper that the printer needs
    std::vector<std::unique_ptr<GlyphFont>> fonts_;  ///< one for each ink
    std::vector<Run> runs_;                          ///< the same
    PageRow blank_;  ///< stands for a row that the page does not have
    QString written_;
};

/// From the layout's units to the dots of a device.
[[nodiscard]] inline double layoutScale(double dotsPerInch) {
    return dotsPerInch / kLayoutUnitsPerInch;
}

}  // namespace winvrx
