#pragma once

#include <QString>

namespace winvrx {

using Text = QString;

/// What a step types, chooses or waits for.
inline Text operator""_t(const char* text, std::size_t length) {
    return Text::fromUtf8(text, static_cast<qsizetype>(length));
}

}  // namespace winvrx
