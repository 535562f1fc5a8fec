#include "foundation/widgets/desktop/colors.h"

#include <array>

namespace winvrx::look {

namespace {

struct TintPair {
    QRgb light;
    QRgb dark;
};

constexpr std::array<TintPair, kTintCount> kTints = {{
    {0xFF0B6B6B, 0xFF5CC4BD},  // Accent
    {0xFFB3261E, 0xFFF2918A},  // Holiday
    {0xFF4A5A6A, 0xFFA9B8C8},  // RestDay
    {0xFF8A5200, 0xFFE9B25C},  // Leave
    {0xFF9E1B4A, 0xFFF28AAE},  // Absence
    {0xFF8F4A00, 0xFFF0AE6A},  // Warning
    {0xFF1B6E36, 0xFF7CCB92},  // Good
    {0xFF566366, 0xFFA3B0B2},  // Quiet
}};

QPalette paletteOf(QRgb window, QRgb base, QRgb alternate, QRgb text, QRgb border, QRgb button,
                   QRgb accent, QRgb onAccent) {
    QPalette palette{QColor(button), QColor(window)};
    const auto set = [&palette](QPalette::ColorRole role, QRgb value) {
        palette.setColor(role, QColor(value));
    };
    set(QPalette::Window, window);
    set(QPalette::Base, base);
    set(QPalette::AlternateBase, alternate);
    set(QPalette::WindowText, text);
    set(QPalette::Text, text);
    set(QPalette::ButtonText, text);
    set(QPalette::Button, button);
    set(QPalette::Mid, border);
    set(QPalette::ToolTipBase, base);
    set(QPalette::ToolTipText, text);
    set(QPalette::Highlight, accent);
    set(QPalette::HighlightedText, onAccent);
    set(QPalette::Link, accent);
    QColor faint(text);
    faint.setAlpha(130);
    palette.setColor(QPalette::PlaceholderText, color(Tint::Quiet, palette));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

}  // namespace

bool isDark(const QPalette& palette) {
    return palette.window().color().lightness() < 128;
}

QColor color(Tint tint, const QPalette& palette) {
    const TintPair& pair = kTints[static_cast<std::size_t>(tint)];
    return QColor(isDark(palette) ? pair.dark : pair.light);
}

QColor wash(Tint tint, const QPalette& palette) {
    QColor wash = color(tint, palette);
    wash.setAlpha(isDark(palette) ? 48 : 28);
    return wash;
}

QPalette lightPalette() {
    return paletteOf(0xFFF2F5F5, 0xFFFFFFFF, 0xFFF5F8F8, 0xFF1B2425, 0xFFC6D0D1, 0xFFF7F9F9,
                     0xFF0B6B6B, 0xFFFFFFFF);
}

QPalette darkPalette() {
    return paletteOf(0xFF161B1C, 0xFF1F2627, 0xFF232B2C, 0xFFE7EDED, 0xFF435052, 0xFF2A3334,
                     0xFF2F8F8A, 0xFFFFFFFF);
}

}  // namespace winvrx::look
