#include "report/desktop/layout_reader.h"

#include "foundation/values/text.h"
#include "report/desktop/layout_values.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace winvrx {

namespace {

using Anchor = LayoutText::Anchor;

const QString kSvgNamespace = QStringLiteral("http://www.w3.org/2000/svg");

/// What SVG files carry beside their picture.
const QStringList kSilentElements = {QStringLiteral("metadata"), QStringLiteral("title"),
                                     QStringLiteral("defs")};
const QString kDescription = QStringLiteral("desc");

constexpr int kMostSides = 2;
constexpr int kNarrowestPage = 1;  // millimetres
constexpr int kWidestPage = 2000;
constexpr double kCoarsestScale = 1e4;
constexpr double kLargestLetter = 1e5;  // a metre

/// What an element hands down to those inside it.
struct Context {
    QPointF origin;
    LayoutPlace place;
    QColor fill = Qt::black;
    QColor stroke;
    double strokeWidth = 1;
    QStringList families = {QStringLiteral("sans-serif")};
    double fontSize = 0;
    int fontWeight = 400;
    bool italic = false;
    Anchor anchor = Anchor::Start;
    double lineHeight = 1.25;  // of the letter's size
    bool justified = false;
};

class LayoutReader {
  public:
    LayoutReader(QIODevice& file, const std::string& name, const ColumnNames& columns)
        : xml_(&file), name_(name), columns_(columns) {
        layout_.columns = columns.size();
    }

    Layout read() {
        try {
            readRoot();
        } catch (const BadValue& fault) {
            throw LayoutFault(name_, xml_.lineNumber(), fault.what());
        }
        if (xml_.hasError()) throw LayoutFault(name_, xml_.lineNumber(), xmlFault());
        return std::move(layout_);
    }

  private:
    [[nodiscard]] std::string xmlFault() const {
        return xml_.error() == QXmlStreamReader::PrematureEndOfDocumentError
                   ? "o arquivo termina antes do fim"
                   : "não é XML bem formado";
    }

    void readRoot() {
        if (!xml_.readNextStartElement()) return;
        if (xml_.name() != QLatin1String("svg")) throw BadValue("não é um arquivo svg");
        const ElementValues values(xml_.attributes());
        Context context;
        readPage(values, context);
        inherit(values, context);
        readChildren(context);
        if (xml_.hasError()) return;
        if (layout_.rowPitch == 0)
            throw BadValue(
                "nenhum grupo tem data-rows e data-pitch, e o elemento svg não tem data-pitch");
        while (!xml_.atEnd())
            xml_.readNext();
    }

    void readPage(const ElementValues& values, Context& context) {
        const double width = pageLength(values, "width");
        const double height = pageLength(values, "height");
        const auto box = numberList(values.text("viewBox").value_or(QString()));
        if (box.size() != 4 || box[2] <= 0 || box[3] <= 0)
            throw BadValue("viewBox falta ou não tem quatro números");
        constexpr double kTolerance = 0.001;
        if (std::abs(width / box[2] * box[3] / height - 1) > kTolerance)
            throw BadValue("viewBox não tem as proporções de width e height");
        layout_.page = QSizeF(width, height);
        scale_ = width * kLayoutUnitsPerMillimetre / box[2];
        if (scale_ > kCoarsestScale) throw BadValue("viewBox é pequeno demais para width e height");
        context.origin = QPointF(-box[0], -box[1]) * scale_;
        layout_.rowPitch = values.positiveNumber("data-pitch").value_or(0) * scale_;
    }

    static double pageLength(const ElementValues& values, const char* name) {
        const double length = values.requiredMillimetres(name);
        if (length < kNarrowestPage || length > kWidestPage)
            throw BadValue(std::string(name) + " não está entre " + std::to_string(kNarrowestPage) +
                           "mm e " + std::to_string(kWidestPage) + "mm");
        return length;
    }

    void readChildren(const Context& context) {
        if (++depth_ > kDeepestGroup) throw BadValue("grupos demais um dentro do outro");
        readChildrenOf(context);
        --depth_;
    }

    void readChildrenOf(const Context& context) {
        while (xml_.readNextStartElement()) {
            const QStringView name = xml_.name();
            const bool foreign =
                !xml_.namespaceUri().isEmpty() && xml_.namespaceUri() != kSvgNamespace;
            if (foreign || kSilentElements.contains(name))
                xml_.skipCurrentElement();
            else if (name == kDescription)
                layout_.description = readDescription();
            else
                readElement(name.toString(), context);
        }
    }

    /// The sheet's own; drawing programs give single elements one too.
    QString readDescription() {
        const QString text = xml_.readElementText(QXmlStreamReader::SkipChildElements).simplified();
        return layout_.description.isEmpty() ? text : layout_.description;
    }

    void readElement(const QString& name, Context context) {
        const ElementValues values(xml_.attributes());
        inherit(values, context);
        if (name == QLatin1String("g"))
            readGroup(values, context);
        else if (name == QLatin1String("text"))
            readText(values, context);
        else if (name == QLatin1String("rect"))
            readRect(values, context);
        else if (name == QLatin1String("line"))
            readLine(values, context);
        else
            throw BadValue('<' + name.toStdString() +
                           "> não pode ser desenhado; use rect, line e text");
    }

    template <typename Value>
    static void take(const std::optional<Value>& found, Value& into) {
        if (found) into = *found;
    }

    void inherit(const ElementValues& values, Context& context) const {
        context.origin += values.translation() * scale_;
        take(values.colour("fill"), context.fill);
        take(values.colour("stroke"), context.stroke);
        take(values.number("stroke-width"), context.strokeWidth);
        take(values.fontFamilies("font-family"), context.families);
        take(values.positiveNumber("font-size"), context.fontSize);
        take(values.fontWeight("font-weight"), context.fontWeight);
        if (const auto style = values.text("font-style"))
            context.italic = *style != QStringLiteral("normal");
        take(values.oneOf<Anchor>(
                 "text-anchor",
                 {{"start", Anchor::Start}, {"middle", Anchor::Middle}, {"end", Anchor::End}}),
             context.anchor);
        take(values.positiveNumber("line-height"), context.lineHeight);
        take(values.oneOf<bool>("text-align", {{"start", false}, {"justify", true}}),
             context.justified);
    }

    /// What a group inside another of its kind must not say again.
    static void requireOutermost(bool outermost, const std::string& name) {
        if (!outermost) throw BadValue(name + " dentro de " + name);
    }

    void readGroup(const ElementValues& values, Context& context) {
        LayoutPlace& place = context.place;
        if (const auto block = values.oneOf<LayoutBlock>(
                "data-block", {{"header", LayoutBlock::Header}, {"stock", LayoutBlock::Stock}})) {
            if (place.block != LayoutBlock::Always)
                throw BadValue("data-block dentro de outro bloco");
            place.block = *block;
        }
        if (const auto side = values.count("data-side", kMostSides)) {
            requireOutermost(place.side == 0, "data-side");
            place.side = *side;
            layout_.sides = std::max(layout_.sides, *side);
        }
        if (const auto first = values.count("data-first", kMostRows)) {
            requireOutermost(place.first == 0, "data-first");
            place.first = *first - 1;
        }
        if (const auto rows = values.count("data-rows", kMostRows)) {
            requireOutermost(place.rows == 0, "data-rows");
            const auto pitch = values.positiveNumber("data-pitch");
            if (!pitch) throw BadValue("falta data-pitch");
            place.rows = *rows;
            place.pitch = *pitch * scale_;
            if (layout_.rowPitch == 0) layout_.rowPitch = place.pitch;
        }
        readChildren(context);
    }

    void readRect(const ElementValues& values, const Context& context) {
        const QRectF area(
            position(values, context, "x", "y"),
            QSizeF(values.requiredNumber("width"), values.requiredNumber("height")) * scale_);
        if (area.width() < 0 || area.height() < 0) throw BadValue("um rect de tamanho negativo");
        add(LayoutRect{area, context.fill, context.stroke, context.strokeWidth * scale_,
                       values.column("data-share", columns_),
                       values.column("data-barcode", columns_)},
            values, context);
        xml_.skipCurrentElement();
    }

    void readLine(const ElementValues& values, const Context& context) {
        const QLineF line(position(values, context, "x1", "y1"),
                          position(values, context, "x2", "y2"));
        add(LayoutLine{line, context.stroke, context.strokeWidth * scale_}, values, context);
        xml_.skipCurrentElement();
    }

    void readText(const ElementValues& values, const Context& context) {
        LayoutText text;
        text.baseline = position(values, context, "x", "y");
        text.anchor = context.anchor;
        text.ink = inkOf(context);
        if (const auto width = values.positiveNumber("data-width")) text.width = *width * scale_;
        if (values.text("inline-size")) wrapInto(text, values, context);
        text.blank = values.text("data-blank").value_or(QString());
        const auto field = values.column("data-field", columns_);
        const auto pattern = values.text("data-template");
        if (field && pattern) throw BadValue("data-field e data-template no mesmo text");
        if (pattern) text.pieces = templatePieces(*pattern, columns_);
        const QString sample = readSample(text.wrap ? kMostRows : 1);
        if (!pattern) text.pieces.push_back({field ? QString() : sample, field});
        add(std::move(text), values, context);
    }

    void wrapInto(LayoutText& text, const ElementValues& values, const Context& context) const {
        const auto lines = values.count("data-lines", kMostRows);
        if (!lines) throw BadValue("inline-size sem data-lines");
        text.width = values.positiveNumber("inline-size").value() * scale_;
        text.wrap = LayoutText::Wrap{.pitch = context.fontSize * context.lineHeight * scale_,
                                     .lines = *lines,
                                     .justified = context.justified};
    }

    /// What stands in the element: drawing programs put a tspan around each line.
    QString readSample(int mostLines) {
        QString sample;
        int tspans = 0;
        while (!xml_.hasError() && !(xml_.readNext() == QXmlStreamReader::EndElement &&
                                     xml_.name() == QStringLiteral("text"))) {
            if (xml_.isCharacters()) sample += xml_.text();
            if (!xml_.isStartElement()) continue;
            if (xml_.name() != QStringLiteral("tspan"))
                throw BadValue('<' + xml_.name().toString().toStdString() + "> dentro de um text");
            if (tspans > 0) sample += u' ';
            if (++tspans > mostLines)
                throw BadValue("um text de várias linhas; use um text para cada uma");
        }
        return sample.simplified();
    }

    QPointF position(const ElementValues& values, const Context& context, const char* x,
                     const char* y) const {
        return context.origin +
               QPointF(values.requiredNumber(x), values.requiredNumber(y)) * scale_;
    }

    std::size_t inkOf(const Context& context) {
        if (context.fontSize <= 0) throw BadValue("falta font-size");
        const double size = context.fontSize * scale_;
        if (size > kLargestLetter) throw BadValue("font-size é grande demais");
        const Ink ink{context.families, std::max(1, qRound(size)), context.fontWeight,
                      context.italic, context.fill};
        const auto found = std::ranges::find(layout_.inks, ink);
        if (found != layout_.inks.end())
            return static_cast<std::size_t>(found - layout_.inks.begin());
        if (layout_.inks.size() == kMostInks)
            throw BadValue("mais de " + std::to_string(kMostInks) + " letras e cores");
        layout_.inks.push_back(ink);
        return layout_.inks.size() - 1;
    }

    void add(LayoutMark::Shape shape, const ElementValues& values, const Context& context) {
        marks_ += static_cast<std::size_t>(std::max(1, context.place.rows));
        if (marks_ > kMostMarks)
            throw BadValue("mais de " + std::to_string(kMostMarks) +
                           " elementos, contadas as repetições");
        auto& sections = layout_.sections;
        if (sections.empty() || sections.back().place != context.place)
            sections.push_back({context.place, {}});
        sections.back().marks.push_back({std::move(shape), values.columns("data-unless", columns_),
                                         values.columns("data-when", columns_)});
    }

    QXmlStreamReader xml_;
    const std::string& name_;
    const ColumnNames& columns_;
    Layout layout_;
    double scale_ = 1;
    int depth_ = 0;
    std::size_t marks_ = 0;
};

}  // namespace

Layout readLayout(QIODevice& file, const std::string& name, const ColumnNames& columns) {
    if (file.size() > kLargestLayout)
        throw LayoutFault(name, "maior que " + std::to_string(kLargestLayout >> 20) + " MB");
    return LayoutReader(file, name, columns).read();
}

std::optional<std::filesystem::path> findLayout(const std::vector<std::filesystem::path>& folders,
                                                const std::string& name) {
    for (const auto& folder : folders) {
        std::error_code error;
        const auto file = folder / name;
        if (std::filesystem::is_regular_file(file, error)) return file;
    }
    return std::nullopt;
}

Layout loadLayout(const std::vector<std::filesystem::path>& folders, const std::string& name,
                  const ColumnNames& columns) {
    if (name.empty() || std::filesystem::path(name).filename() != name)
        throw LayoutFault(name, "não é um nome de arquivo");
    const auto path = findLayout(folders, name);
    if (!path)
        throw LayoutFault(name, "não está em " + joined(folders, ", ", [](const auto& one) {
                                    return one.string();
                                }));
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        throw LayoutFault(path->string(), file.errorString().toStdString());
    return readLayout(file, path->string(), columns);
}

}  // namespace winvrx
