#include "report/desktop/layout_values.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace winvrx {

namespace {

constexpr double kGreatestNumber = 1e6;

double toNumber(const QString& text, const QString& name) {
    bool valid = false;
    const double number = text.toDouble(&valid);
    if (!valid || !std::isfinite(number))
        throw BadValue(QStringLiteral("%1=\"%2\" não é um número").arg(name, text));
    if (std::abs(number) > kGreatestNumber)
        throw BadValue(QStringLiteral("%1=\"%2\" é grande demais").arg(name, text));
    return number;
}

/// Drawing programs write user units as "2.5px" in a style.
QString withoutPixelUnit(const QString& text) {
    return text.endsWith(QStringLiteral("px")) ? text.chopped(2) : text;
}

QStringList words(const QString& text) {
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    return text.split(separators, Qt::SkipEmptyParts);
}

}  // namespace

ElementValues::ElementValues(const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& attribute : attributes)
        if (attribute.namespaceUri().isEmpty())
            values_[attribute.name().toString()] = attribute.value().toString().trimmed();
    const QStringList declarations = values_.value(QStringLiteral("style")).split(u';');
    for (const QString& declaration : declarations) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon > 0)
            values_[declaration.first(colon).trimmed()] = declaration.sliced(colon + 1).trimmed();
    }
}

std::optional<QString> ElementValues::text(const QString& name) const {
    const auto found = values_.constFind(name);
    return found == values_.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<double> ElementValues::number(const QString& name) const {
    const auto value = text(name);
    return value ? std::optional(toNumber(withoutPixelUnit(*value), name)) : std::nullopt;
}

double ElementValues::requiredNumber(const QString& name) const {
    if (const auto value = number(name)) return *value;
    throw BadValue(QStringLiteral("falta %1").arg(name));
}

std::optional<int> ElementValues::count(const QString& name, int most) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    bool valid = false;
    const int count = value->toInt(&valid);
    if (!valid || count < 1 || count > most)
        throw BadValue(QStringLiteral("%1=\"%2\" não é um número inteiro de 1 a %3")
                           .arg(name, *value, QString::number(most)));
    return count;
}

std::optional<QColor> ElementValues::colour(const QString& name) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    if (*value == QStringLiteral("none")) return QColor();
    const QColor colour(*value);
    if (!colour.isValid())
        throw BadValue(QStringLiteral("%1=\"%2\" não é uma cor").arg(name, *value));
    return colour;
}

double ElementValues::requiredMillimetres(const QString& name) const {
    const QString value = text(name).value_or(QString());
    if (!value.endsWith(QStringLiteral("mm")))
        throw BadValue(QStringLiteral("%1=\"%2\" não está em mm").arg(name, value));
    const double millimetres = toNumber(value.chopped(2), name);
    if (millimetres <= 0)
        throw BadValue(QStringLiteral("%1=\"%2\" não é maior que 0").arg(name, value));
    return millimetres;
}

QPointF ElementValues::translation() const {
    static const QRegularExpression call(QStringLiteral("^(translate|matrix)\\(([^)]*)\\)$"));
    const auto transform = text(QStringLiteral("transform"));
    if (!transform) return {};
    const auto match = call.match(*transform);
    const auto numbers = match.hasMatch() ? numberList(match.captured(2)) : std::vector<double>();
    const bool matrix = match.captured(1) == QStringLiteral("matrix");
    if (!matrix && (numbers.size() == 1 || numbers.size() == 2))
        return {numbers[0], numbers.size() == 2 ? numbers[1] : 0.0};
    if (matrix && numbers.size() == 6 && numbers[0] == 1 && numbers[1] == 0 && numbers[2] == 0 &&
        numbers[3] == 1)
        return {numbers[4], numbers[5]};
    throw BadValue(
        QStringLiteral("transform=\"%1\" não é um deslocamento (translate)").arg(*transform));
}

std::vector<double> numberList(const QString& text) {
    std::vector<double> numbers;
    const QStringList parts = words(text);
    for (const QString& part : parts)
        numbers.push_back(toNumber(part, QStringLiteral("número da lista")));
    return numbers;
}

std::size_t columnNamed(const QString& name, const std::vector<std::string>& columns) {
    const auto found = std::ranges::find(columns, name.toStdString());
    if (found == columns.end())
        throw BadValue(QStringLiteral("campo desconhecido \"%1\"").arg(name));
    return static_cast<std::size_t>(found - columns.begin());
}

std::vector<std::size_t> columnsNamed(const QString& names,
                                      const std::vector<std::string>& columns) {
    std::vector<std::size_t> positions;
    const QStringList parts = words(names);
    for (const QString& name : parts)
        positions.push_back(columnNamed(name, columns));
    return positions;
}

std::vector<LayoutText::Piece> templatePieces(const QString& text,
                                              const std::vector<std::string>& columns) {
    std::vector<LayoutText::Piece> pieces;
    qsizetype position = 0;
    while (position < text.size()) {
        const bool isField = text[position] == u'{';
        const qsizetype end = text.indexOf(isField ? u'}' : u'{', position);
        if (isField && end < 0)
            throw BadValue(QStringLiteral("\"{\" sem \"}\" em \"%1\"").arg(text));
        const QString part = text.sliced(position, (end < 0 ? text.size() : end) - position);
        if (!isField && part.contains(u'}'))
            throw BadValue(QStringLiteral("\"}\" sem \"{\" em \"%1\"").arg(text));
        if (isField)
            pieces.push_back({QString(), columnNamed(part.sliced(1), columns)});
        else
            pieces.push_back({part, std::nullopt});
        position += part.size() + (isField ? 1 : 0);
    }
    return pieces;
}

QStringList fontFamilies(const QString& text) {
    QStringList families;
    const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
    for (QString family : parts) {
        family.remove(u'\'').remove(u'"');
        families << family.trimmed();
    }
    return families;
}

int fontWeight(const QString& text) {
    if (text == QStringLiteral("normal")) return 400;
    if (text == QStringLiteral("bold")) return 700;
    bool valid = false;
    const int weight = text.toInt(&valid);
    if (!valid || weight < 1 || weight > 1000)
        throw BadValue(QStringLiteral("font-weight=\"%1\" não é um peso de letra").arg(text));
    return weight;
}

LayoutText::Anchor anchorNamed(const QString& text) {
    if (text == QStringLiteral("start")) return LayoutText::Anchor::Start;
    if (text == QStringLiteral("middle")) return LayoutText::Anchor::Middle;
    if (text == QStringLiteral("end")) return LayoutText::Anchor::End;
    throw BadValue(QStringLiteral("text-anchor=\"%1\" não é start, middle nem end").arg(text));
}

bool isJustified(const QString& text) {
    if (text != QStringLiteral("justify") && text != QStringLiteral("start"))
        throw BadValue(QStringLiteral("text-align=\"%1\" não é start nem justify").arg(text));
    return text == QStringLiteral("justify");
}

LayoutBlock blockNamed(const QString& text) {
    if (text == QStringLiteral("header")) return LayoutBlock::Header;
    if (text == QStringLiteral("stock")) return LayoutBlock::Stock;
    throw BadValue(QStringLiteral("data-block=\"%1\" não é header nem stock").arg(text));
}

}  // namespace winvrx
