#pragma once

#include "report/desktop/layout.h"

#include <QPointF>
#include <QXmlStreamAttributes>

#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// The values that stand in the attributes of a layout file. Each function throws BadValue, whose
// text says in Portuguese what is wrong; the reader adds file and line.

namespace winvrx {

class BadValue : public std::runtime_error {
  public:
    explicit BadValue(const std::string& cause) : std::runtime_error(cause) {}
    /// `name="value" cause`.
    BadValue(const char* name, const QString& value, const std::string& cause)
        : BadValue(std::string(name) + "=\"" + value.toStdString() + "\" " + cause) {}
};

/// The attributes of one element; a declaration in `style` wins over the attribute of its name, as
/// in SVG, since drawing programs write their changes there.
class ElementValues {
  public:
    explicit ElementValues(const QXmlStreamAttributes& attributes);

    /// nullopt where the element has no such attribute.
    [[nodiscard]] std::optional<QString> text(const char* name) const;
    [[nodiscard]] std::optional<double> number(const char* name) const;
    [[nodiscard]] std::optional<double> positiveNumber(const char* name) const;
    [[nodiscard]] double requiredNumber(const char* name) const;
    [[nodiscard]] std::optional<int> count(const char* name, int most) const;
    /// A colour; an invalid QColor for "none".
    [[nodiscard]] std::optional<QColor> colour(const char* name) const;
    /// A length with the unit mm, in millimetres.
    [[nodiscard]] double requiredMillimetres(const char* name) const;
    /// The shift that `transform` asks for; none without it.
    [[nodiscard]] QPointF translation() const;
    /// The position in `columns` of the column that the attribute names.
    [[nodiscard]] std::optional<std::size_t> column(const char* name,
                                                    const std::vector<std::string>& columns) const;
    /// The same of names separated by blanks or commas.
    [[nodiscard]] std::vector<std::size_t> columns(const char* name,
                                                   const std::vector<std::string>& columns) const;
    [[nodiscard]] std::optional<QStringList> fontFamilies(const char* name) const;
    [[nodiscard]] std::optional<int> fontWeight(const char* name) const;
    /// What the word of the attribute stands for; any other word is a fault.
    template <typename Value>
    [[nodiscard]] std::optional<Value> oneOf(
        const char* name, std::initializer_list<std::pair<const char*, Value>> words) const {
        const auto word = text(name);
        if (!word) return std::nullopt;
        for (const auto& one : words)
            if (*word == QLatin1String(one.first)) return one.second;
        std::string known = words.begin()->first;
        for (auto one = words.begin() + 1; one != words.end(); ++one)
            known += std::string(one + 1 == words.end() ? " nem " : ", ") + one->first;
        throw BadValue(name, *word, "não é " + known);
    }

  private:
    std::vector<std::pair<QString, QString>> values_;  ///< of one name the last holds
};

/// Numbers separated by blanks or commas.
[[nodiscard]] std::vector<double> numberList(const QString& text);

/// "Cnpj: {cnpj} - Reg.: {registro}" cut into pieces.
[[nodiscard]] std::vector<LayoutText::Piece> templatePieces(
    const QString& text, const std::vector<std::string>& columns);

}  // namespace winvrx
