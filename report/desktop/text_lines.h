#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace winvrx {

/// How wide a piece of text is written.
using TextMeasure = std::function<double(const QString&)>;

/// A line of a wrapped text.
struct TextLine {
    QString text;
    double down = 0;             ///< from the first line, in line pitches
    bool endsParagraph = false;  ///< and so is never stretched
};

/// `text` broken at its blanks into lines no wider than `width`; a word that is wider is broken
/// where it must. A line break begins a paragraph, half a line further down.
[[nodiscard]] std::vector<TextLine> brokenLines(const QString& text, double width,
                                                const TextMeasure& widthOf);

/// The lines of a text in a room of so many of them.
struct FittedLines {
    std::vector<TextLine> lines;
    double squeeze = 1;  ///< how much narrower than their own width the letters are written
};

/// Letters become narrower until the lines fit, down to `narrowest`; what is still too long is cut
/// and ends in "…". Requires `lines` of at least 1.
[[nodiscard]] FittedLines fittedLines(const QString& text, double width, int lines,
                                      double narrowest, const TextMeasure& widthOf);

/// Cuts `text`, an ellipsis at its end, until it is at most `width` wide.
void cutToWidth(QString& text, double width, const TextMeasure& widthOf);

}  // namespace winvrx
