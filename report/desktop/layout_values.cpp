#include "report/desktop/layout_values.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace winvrx {

namespace {

constexpr double kGreatestNumber = 1e6;

double toNumber(const QString& text, const char* name) {
    bool valid = false;
    const double number = text.toDouble(&valid);
    if (!valid || !std::isfinite(number)) throw BadValue(name, text, "não é um número");
    if (std::abs(number) > kGreatestNumber) throw BadValue(name, text, "é grande demais");
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

std::size_t columnNamed(const QString& name, const std::vector<std::string>& columns) {
    const auto found = std::ranges::find(columns, name.toStdString());
    if (found == columns.end()) throw BadValue("campo desconhecido \"" + name.toStdString() + "\"");
    return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

ElementValues::ElementValues(const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& attribute : attributes)
        if (attribute.namespaceUri().isEmpty())
            values_.emplace_back(attribute.name().toString(),
                                 attribute.value().toString().trimmed());
    const QStringList declarations = text("style").value_or(QString()).split(u';');
    for (const QString& declaration : declarations) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon > 0)
            values_.emplace_back(declaration.first(colon).trimmed(),
                                 declaration.sliced(colon + 1).trimmed());
    }
}

std::optional<QString> ElementValues::text(const char* name) const {
    const QLatin1String wanted(name);
    const auto found = std::find_if(values_.rbegin(), values_.rend(),
                                    [&](const auto& value) { return value.first == wanted; });
    return found == values_.rend() ? std::nullopt : std::optional(found->second);
}

std::optional<double> ElementValues::number(const char* name) const {
    const auto value = text(name);
    return value ? std::optional(toNumber(withoutPixelUnit(*value), name)) : std::nullopt;
}

std::optional<double> ElementValues::positiveNumber(const char* name) const {
    const auto value = number(name);
    if (value && *value <= 0) throw BadValue(std::string(name) + " não é maior que 0");
    return value;
}

double ElementValues::requiredNumber(const char* name) const {
    if (const auto value = number(name)) return *value;
    throw BadValue(std::string("falta ") + name);
}

std::optional<int> ElementValues::count(const char* name, int most) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    bool valid = false;
    const int count = value->toInt(&valid);
    if (!valid || count < 1 || count > most)
        throw BadValue(name, *value, "não é um número inteiro de 1 a " + std::to_string(most));
    return count;
}

std::optional<QColor> ElementValues::colour(const char* name) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    if (*value == QStringLiteral("none")) return QColor();
    const QColor colour(*value);
    if (!colour.isValid()) throw BadValue(name, *value, "não é uma cor");
    return colour;
}

double ElementValues::requiredMillimetres(const char* name) const {
    const QString value = text(name).value_or(QString());
    if (!value.endsWith(QStringLiteral("mm"))) throw BadValue(name, value, "não está em mm");
    const double millimetres = toNumber(value.chopped(2), name);
    if (millimetres <= 0) throw BadValue(name, value, "não é maior que 0");
    return millimetres;
}

QPointF ElementValues::translation() const {
    static const QRegularExpression call(QStringLiteral("^(translate|matrix)\\(([^)]*)\\)$"));
    const auto transform = text("transform");
    if (!transform) return {};
    const auto match = call.match(*transform);
    const auto numbers = match.hasMatch() ? numberList(match.captured(2)) : std::vector<double>();
    const bool matrix = match.captured(1) == QStringLiteral("matrix");
    if (!matrix && (numbers.size() == 1 || numbers.size() == 2))
        return {numbers[0], numbers.size() == 2 ? numbers[1] : 0.0};
    if (matrix && numbers.size() == 6 && numbers[0] == 1 && numbers[1] == 0 && numbers[2] == 0 &&
        numbers[3] == 1)
        return {numbers[4], numbers[5]};
    throw BadValue("transform", *transform, "não é um deslocamento (translate)");
}

std::optional<std::size_t> ElementValues::column(const char* name,
                                                 const std::vector<std::string>& columns) const {
    const auto value = text(name);
    return value ? std::optional(columnNamed(*value, columns)) : std::nullopt;
}

std::vector<std::size_t> ElementValues::columns(const char* name,
                                                const std::vector<std::string>& columns) const {
    std::vector<std::size_t> positions;
    const QStringList names = words(text(name).value_or(QString()));
    for (const QString& one : names)
        positions.push_back(columnNamed(one, columns));
    return positions;
}

std::optional<QStringList> ElementValues::fontFamilies(const char* name) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    QStringList families;
    const QStringList parts = value->split(u',', Qt::SkipEmptyParts);
    for (QString family : parts)
        families << family.remove(u'\'').remove(u'"').trimmed();
    return families;
}

std::optional<int> ElementValues::fontWeight(const char* name) const {
    const auto value = text(name);
    if (!value) return std::nullopt;
    if (*value == QStringLiteral("normal")) return 400;
    if (*value == QStringLiteral("bold")) return 700;
    bool valid = false;
    const int weight = value->toInt(&valid);
    if (!valid || weight < 1 || weight > 1000)
        throw BadValue(name, *value, "não é um peso de letra");
    return weight;
}

std::vector<double> numberList(const QString& text) {
    std::vector<double> numbers;
    const QStringList parts = words(text);
    for (const QString& part : parts)
        numbers.push_back(toNumber(part, "número da lista"));
    return numbers;
}

std::vector<LayoutText::Piece> templatePieces(const QString& text,
                                              const std::vector<std::string>& columns) {
    std::vector<LayoutText::Piece> pieces;
    qsizetype position = 0;
    while (position < text.size()) {
        const bool isField = text[position] == u'{';
        const qsizetype end = text.indexOf(isField ? u'}' : u'{', position);
        if (isField && end < 0) throw BadValue("\"{\" sem \"}\" em \"" + text.toStdString() + '"');
        const QString part = text.sliced(position, (end < 0 ? text.size() : end) - position);
        if (!isField && part.contains(u'}'))
            throw BadValue("\"}\" sem \"{\" em \"" + text.toStdString() + '"');
        if (isField)
            pieces.push_back({QString(), columnNamed(part.sliced(1), columns)});
        else
            pieces.push_back({part, std::nullopt});
        position += part.size() + (isField ? 1 : 0);
    }
    return pieces;
}

}  // namespace winvrx
