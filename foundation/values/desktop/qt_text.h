#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

namespace winvrx {

[[nodiscard]] inline QString toQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Of a list's texts.
template <typename Texts>
[[nodiscard]] QStringList toQtList(const Texts& texts) {
    QStringList all;
    for (const auto& text : texts)
        all << toQt(text);
    return all;
}

/// Composed form: a letter typed as base and accent becomes the one character that records hold.
[[nodiscard]] inline std::string toUtf8(const QString& text) {
    return text.normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace winvrx
