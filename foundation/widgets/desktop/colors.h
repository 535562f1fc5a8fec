#pragma once

#include <QColor>
#include <QPalette>

#include <cstddef>

namespace winvrx::look {

/// Named colours; each has a light and a dark value of at least 4.5 : 1 on its ground. A colour
/// never speaks alone: a word or a sign stands beside it.
enum class Tint { Accent, Holiday, RestDay, Leave, Absence, Warning, Good, Quiet };
inline constexpr std::size_t kTintCount = 8;

/// Foreground of the tint under this palette.
[[nodiscard]] QColor color(Tint tint, const QPalette& palette);
/// A light wash of the tint, to lie behind text of the palette's own colour.
[[nodiscard]] QColor wash(Tint tint, const QPalette& palette);
[[nodiscard]] bool isDark(const QPalette& palette);

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

}  // namespace winvrx::look
