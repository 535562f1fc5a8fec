#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace winvrx {

[[nodiscard]] inline QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Composed form: a letter typed as base and accent becomes the one character that records hold.
[[nodiscard]] inline std::string toUtf8(const QString& text) {
    return text.normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace winvrx
