#pragma once

#include "report/desktop/card_text.h"
#include "report/desktop/glyph_font.h"
#include "report/desktop/layout.h"

#include <QPointF>
#include <QTransform>

#include <memory>

class QPainter;

namespace winvrx {

/// Paints a card: the one paint function of preview window, printer and PDF. Text stays text.
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
    /// layoutScale(). Rows beyond those that the layout repeats are not drawn; a card without rows
    /// shows what does not depend on them. `side` is a face of the card, from 1 on.
    void paint(QPainter& painter, const CardText& rows, int side = 1);

  private:
    struct Run {
        std::vector<quint32> glyphs;
        std::vector<QPointF> positions;
    };

    void paintSections(QPainter& painter, bool stock, const CardText& rows, int side);
    void paintSection(QPainter& painter, const LayoutSection& section, const CardText& rows);
    void paintMark(QPainter& painter, const LayoutMark& mark, const CardTextRow& row,
                   QPointF shift);
    void write(QPainter& painter, const LayoutText& text, const CardTextRow& row, QPointF shift);
    void writeGlyphs(std::size_t ink, const QString& text, QPointF start);
    void writeTransformed(QPainter& painter, std::size_t ink, const QString& text, QPointF start,
                          double squeeze);
    void flush(QPainter& painter);

    Layout layout_;
    Choice choice_;
    QTransform onPaper_;  ///< from the layout to the paper that the printer needs
    std::vector<std::unique_ptr<GlyphFont>> fonts_;  ///< one for each ink
    std::vector<Run> runs_;                          ///< the same
    QString written_;
};

/// From the layout's units to the dots of a device.
[[nodiscard]] inline double layoutScale(double dotsPerInch) {
    return dotsPerInch / kLayoutUnitsPerInch;
}

}  // namespace winvrx
