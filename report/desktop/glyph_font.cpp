#include "report/desktop/glyph_font.h"

namespace winvrx {

namespace {

QFont fontOf(const Ink& ink) {
    QFont font;
    font.setFamilies(ink.families);
    if (ink.families.contains(QStringLiteral("monospace")))
        font.setStyleHint(QFont::Monospace);
    else if (ink.families.contains(QStringLiteral("serif")))
        font.setStyleHint(QFont::Serif);
    else
        font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(ink.size);
    font.setWeight(static_cast<QFont::Weight>(ink.weight));
    font.setItalic(ink.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

GlyphFont::GlyphFont(const Ink& ink) : font_(fontOf(ink)), raw_(QRawFont::fromFont(font_)) {}

std::optional<std::size_t> GlyphFont::slotOf(QChar character) {
    const char16_t code = character.unicode();
    if (code >= u' ' && code < kLatinEnd) return code;
    if (code >= kPunctuationStart && code < kPunctuationEnd)
        return static_cast<std::size_t>(kLatinEnd + code - kPunctuationStart);
    return std::nullopt;
}

bool GlyphFont::covers(const QString& text) {
    for (const QChar character : text)
        if (!slotOf(character) || glyphOf(character).index == 0) return false;
    return true;
}

double GlyphFont::widthOf(const QString& text) {
    double width = 0;
    for (const QChar character : text)
        width += glyphOf(character).advance;
    return width;
}

const GlyphFont::Glyph& GlyphFont::glyphOf(QChar character) {
    auto& glyph = glyphs_[slotOf(character).value()];
    if (!glyph) {
        const auto indexes = raw_.glyphIndexesForString(QString(character));
        const auto advances = raw_.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
        glyph = indexes.isEmpty() ? Glyph{} : Glyph{indexes.first(), advances.first().x()};
    }
    return *glyph;
}

}  // namespace winvrx
