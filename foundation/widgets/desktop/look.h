#pragma once

#include "foundation/widgets/desktop/colors.h"

#include <QFont>
#include <QIcon>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

class QApplication;
class QBoxLayout;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QTreeWidget;
class QVBoxLayout;
class QWidget;

// How every window looks: colours, sizes, fonts and icons in one place. A window never sets a
// colour, a font size or a margin by itself.

namespace winvrx::look {

/// Spacing, in device-independent pixels on a grid of 8.
inline constexpr int kSmallGap = 4;
inline constexpr int kGap = 8;        ///< between a label and its field
inline constexpr int kMargin = 16;    ///< around a window's body
inline constexpr int kGroupGap = 24;  ///< between groups
inline constexpr int kTileIcon = 32;
inline constexpr int kSideWidth = 288;  ///< of the employees at a window's side

/// What a window with a list or a grid opens with: fits a screen of 1280 x 720.
inline constexpr QSize kWindowSize(1240, 690);
/// What a window with a short list and a few fields opens with.
inline constexpr QSize kSmallWindowSize(860, 480);

/// Style, palette and style sheet of the whole program. Follows the desktop's choice of light or
/// dark unless `palette` says otherwise.
void apply(QApplication& application);
void apply(QApplication& application, const QPalette& palette);

/// Dresses a widget in one of the sheet's roles: "chip", "panel" or "command".
void setRole(QWidget& widget, const char* role);

enum class TextSize { Title, Heading, Body, Hint };
[[nodiscard]] QFont font(TextSize size);
/// The system's fixed-pitch font, for times, dates and money in grids.
[[nodiscard]] QFont fixedFont();
/// The font that printed text reports are laid out for.
[[nodiscard]] QFont reportFont();

/// Writes the label in the tint; follows a change of palette.
void setTint(QLabel& label, Tint tint);

/// A label in one of the sizes; Hint labels are quiet.
[[nodiscard]] QLabel* label(const QString& text, TextSize size, QWidget* parent = nullptr);
/// The heading over a group of fields.
[[nodiscard]] QLabel* heading(const QString& text, QWidget* parent = nullptr);

/// Labels for what the program says, found by their names: a line, cut where it is too long, and a
/// paragraph, which is wrapped.
[[nodiscard]] QLabel* line(const QString& objectName, TextSize size, QWidget* parent);
[[nodiscard]] QLabel* paragraph(const QString& objectName, TextSize size, QWidget* parent);
/// Shows the text, or nothing at all where there is none; a warning bears its sign.
void showText(QLabel& label, const QString& text);
void showWarning(QLabel& label, const QString& text);
/// The same of lines of a record that are not understood and are kept: the only one behind what
/// `single` says of it, of many how many there are and the first. The tool tip has them all.
void showUnread(QLabel& label, const QStringList& lines, const QString& single);

/// The input behind its caption, whose mnemonic leads to it.
[[nodiscard]] QHBoxLayout* captioned(const QString& caption, QWidget* input);

/// A button within a body, which ENTER does not press from elsewhere.
[[nodiscard]] QPushButton* button(const QString& text, const QString& objectName, QWidget* parent);

/// An icon of the program's own set, by its file name without ".svg". It takes its colour from the
/// palette at the moment of painting, so that it turns with light and dark.
[[nodiscard]] QIcon icon(const QString& name, std::optional<Tint> tint = {});

/// What tests and screen readers find the widget by; a caption's mnemonic is left out.
void name(QWidget& widget, const QString& objectName, const QString& spoken);

/// A list of rows under headings, as wide as its texts; read only and without a tree's signs. Where
/// a column is to take the room that is left, its section is set to stretch.
[[nodiscard]] QTreeWidget* table(const QString& objectName, const QString& spoken,
                                 const QStringList& headings, QWidget* parent);
/// Lets what does not fit be scrolled. The area has no frame and takes no focus.
[[nodiscard]] QScrollArea* scrolled(QWidget* content, QWidget* parent);

/// A widget whose children stand in a column.
struct Part {
    QWidget* widget;
    QVBoxLayout* column;
};
/// With the margins of a window's body.
[[nodiscard]] Part body(QWidget* parent);
/// Within a body: without margins.
[[nodiscard]] Part part(QWidget* parent);

/// For fields: so many columns of one width.
[[nodiscard]] QGridLayout* fieldGrid(int columns);

/// Margins and spacing of a window's body.
void layOutBody(QBoxLayout& layout);
/// Margins of a part within a body: none; spacing of the grid.
void layOutPart(QBoxLayout& layout);

}  // namespace winvrx::look
