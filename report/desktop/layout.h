#pragma once

#include "foundation/values/faults.h"
#include "report/report_engine.h"

#include <QColor>
#include <QLineF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <optional>
#include <variant>
#include <vector>

// A layout file compiled into draw calls. Lengths are hundredths of a millimetre from the top left
// corner of the paper, fine enough that whole numbers place a glyph. How a file is written stands
// in docs/layout-files.md.

namespace winvrx {

/// The rows of a page as they are drawn.
using PageRow = std::vector<QString>;
using PageText = std::vector<PageRow>;

[[nodiscard]] PageText pageText(const ReportRows& rows);

inline constexpr double kLayoutUnitsPerMillimetre = 100.0;
inline constexpr double kLayoutUnitsPerInch = 2540.0;
inline constexpr double kTwipsPerInch = 1440.0;

/// One way of writing: texts of the same ink are drawn together.
struct Ink {
    QStringList families;  ///< in order of preference
    int size = 0;
    int weight = 400;
    bool italic = false;
    QColor colour;

    [[nodiscard]] bool operator==(const Ink&) const = default;
};

struct LayoutText {
    enum class Anchor { Start, Middle, End };

    /// A text as it stands, or a column of the table.
    struct Piece {
        QString literal;
        std::optional<std::size_t> column;
    };

    /// A text of several lines. A line break in it begins a paragraph, half a line further down.
    struct Wrap {
        double pitch = 0;  ///< from one line down to the next
        int lines = 0;     ///< the room for them: what is longer is squeezed, then cut
        bool justified = false;
    };

    QPointF baseline;  ///< of the first line
    Anchor anchor = Anchor::Start;
    std::size_t ink = 0;
    std::optional<double> width;  ///< what is longer is squeezed, then cut
    std::optional<Wrap> wrap;     ///< broken into lines of this width instead
    std::vector<Piece> pieces;
    QString blank;  ///< written in place of a column that is blank
};

/// An invalid colour draws nothing.
struct LayoutLine {
    QLineF line;
    QColor stroke;
    double strokeWidth = 0;
};

struct LayoutRect {
    QRectF area;
    QColor fill;
    QColor stroke;
    double strokeWidth = 0;
    std::optional<std::size_t> share;  ///< so many thousandths of its width, a column of the table
    std::optional<std::size_t> barcode;  ///< a column, drawn within it as Code 128 in its fill
};

struct LayoutMark {
    using Shape = std::variant<LayoutText, LayoutLine, LayoutRect>;

    Shape shape;
    std::vector<std::size_t> unless;  ///< drawn only where these columns are blank
    std::vector<std::size_t> when;    ///< and only where one of these is not; none: always
};

enum class LayoutBlock {
    Always,
    Header,  ///< company and employee, left out when the stock has them pre-printed
    Stock    ///< the picture of the pre-printed card, shown in the preview window only
};

/// Where a section's marks come to lie.
struct LayoutPlace {
    LayoutBlock block = LayoutBlock::Always;
    int side = 0;      ///< the face of the card, 1 or 2; 0: on each
    int first = 0;     ///< the page's row that it begins with, from 0
    int rows = 0;      ///< drawn once for each of the page's rows, at most so often; 0: drawn once
    double pitch = 0;  ///< from one row down to the next

    [[nodiscard]] bool operator==(const LayoutPlace&) const = default;
};

struct LayoutSection {
    LayoutPlace place;
    std::vector<LayoutMark> marks;
};

/// The columns that a layout draws, each named once.
struct DrawnColumns {
    std::vector<std::size_t> once;    ///< of the page's first row
    std::vector<std::size_t> inRows;  ///< of every row
};

struct Layout {
    QSizeF page;              ///< millimetres
    std::size_t columns = 0;  ///< of the table that it was read for
    double rowPitch = 0;      ///< what one line of the alignment's line offset moves
    int sides = 1;            ///< faces of the card, each a page of its own
    QString description;      ///< of the file's author: size and kind of the card
    std::vector<Ink> inks;
    std::vector<LayoutSection> sections;
};

/// The picture of the pre-printed card as it lies on the paper, in the layout's units; the whole
/// paper where the layout has no such picture.
[[nodiscard]] QRectF cardArea(const Layout& layout);

[[nodiscard]] DrawnColumns drawnColumns(const Layout& layout);

/// A layout that is missing or damaged. `what()` reads "tilibcenter.rpt:12: cause", and the
/// explanation says the same in a sentence. The cause is in Portuguese, for whoever draws layouts.
class LayoutFault : public Fault {
  public:
    LayoutFault(const std::string& file, const std::string& cause);
    LayoutFault(const std::string& file, long long line, const std::string& cause);
};

}  // namespace winvrx
