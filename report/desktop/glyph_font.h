#pragma once

#include "report/desktop/layout.h"

#include <QFont>
#include <QRawFont>

#include <array>
#include <optional>

namespace winvrx {

/// The glyphs of an ink's font, looked up once for each character. Writing a line of a card needs
/// no shaping: one character is one glyph.
class GlyphFont {
  public:
    explicit GlyphFont(const Ink& ink);

    [[nodiscard]] const QFont& font() const { return font_; }
    [[nodiscard]] const QRawFont& rawFont() const { return raw_; }

    /// False for characters that the font lacks, or that need shaping.
    [[nodiscard]] bool covers(const QString& text);

    /// The sum of the advances. Requires covers(text).
    [[nodiscard]] double widthOf(const QString& text);

    struct Glyph {
        quint32 index = 0;
        double advance = 0;
    };
    /// Requires that the character is covered.
    [[nodiscard]] const Glyph& glyphOf(QChar character);

  private:
    /// Latin letters and the punctuation that Windows-1252 adds.
    static constexpr char16_t kLatinEnd = 0x0250;
    static constexpr char16_t kPunctuationStart = 0x2010;
    static constexpr char16_t kPunctuationEnd = 0x2123;

    [[nodiscard]] static std::optional<std::size_t> slotOf(QChar character);

    QFont font_;
    QRawFont raw_;
    std::array<std::optional<Glyph>, kLatinEnd + kPunctuationEnd - kPunctuationStart> glyphs_;
};

}  // namespace winvrx
