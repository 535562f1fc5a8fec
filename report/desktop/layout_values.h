#pragma once

#include "report/desktop/layout.h"

#include <QHash>
#include <QPointF>
#include <QXmlStreamAttributes>

#include <stdexcept>
#include <string>
#include <vector>

// The values that stand in the attributes of a layout file. Each function throws BadValue, whose
// text says in Portuguese what is wrong; the reader adds file and line.

namespace winvrx {

class BadValue : public std::runtime_error {
  public:
    explicit BadValue(const QString& cause) : std::runtime_error(cause.toStdString()) {}
};

/// The attributes of one element; a declaration in `style` wins over the attribute of its name, as
/// in SVG, since drawing programs write their changes there.
class ElementValues {
  public:
    explicit ElementValues(const QXmlStreamAttributes& attributes);

    /// nullopt where the element has no such attribute.
    [[nodiscard]] std::optional<QString> text(const QString& name) const;
    [[nodiscard]] std::optional<double> number(const QString& name) const;
    [[nodiscard]] double requiredNumber(const QString& name) const;
    [[nodiscard]] std::optional<int> count(const QString& name, int most) const;
    /// A colour; an invalid QColor for "none".
    [[nodiscard]] std::optional<QColor> colour(const QString& name) const;
    /// A length with the unit mm, in millimetres.
    [[nodiscard]] double requiredMillimetres(const QString& name) const;
    /// The shift that `transform` asks for; none without it.
    [[nodiscard]] QPointF translation() const;

  private:
    QHash<QString, QString> values_;
};

/// Numbers separated by blanks or commas.
[[nodiscard]] std::vector<double> numberList(const QString& text);

/// The position in `columns` of a column's name.
[[nodiscard]] std::size_t columnNamed(const QString& name, const std::vector<std::string>& columns);
/// Names separated by blanks or commas.
[[nodiscard]] std::vector<std::size_t> columnsNamed(const QString& names,
                                                    const std::vector<std::string>& columns);

/// "Cnpj: {cnpj} - Reg.: {registro}" cut into pieces.
[[nodiscard]] std::vector<LayoutText::Piece> templatePieces(
    const QString& text, const std::vector<std::string>& columns);

[[nodiscard]] QStringList fontFamilies(const QString& text);
[[nodiscard]] int fontWeight(const QString& text);
[[nodiscard]] LayoutText::Anchor anchorNamed(const QString& text);
/// "justify"; the other values of `text-align` leave the lines ragged.
[[nodiscard]] bool isJustified(const QString& text);
[[nodiscard]] LayoutBlock blockNamed(const QString& text);

}  // namespace winvrx
