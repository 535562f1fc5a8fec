#include "report/desktop/layout_reader.h"

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
constexpr double kNarrowestPage = 1;  // millimetres
constexpr double kWidestPage = 2000;
constexpr double kCoarsestScale = 1e4;
constexpr double kLargestLetter = 1e5;  // a metre

/// What an element hands down to those inside it.
struct Context {
    QPointF origin;
    LayoutBlock block = LayoutBlock::Always;
    int side = 0;
    int first = 0;
    int rows = 0;
    double pitch = 0;
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
        if (xml_.name() != QStringLiteral("svg"))
            throw BadValue(QStringLiteral("não é um arquivo svg"));
        const ElementValues values(xml_.attributes());
        Context context;
        readPage(values, context);
        inherit(values, context);
        readChildren(context);
        if (xml_.hasError()) return;
        if (layout_.rowPitch == 0)
            throw BadValue(QStringLiteral(
                "nenhum grupo tem data-rows e data-pitch, e o elemento svg não tem data-pitch"));
        while (!xml_.atEnd())
            xml_.readNext();
    }

    void readPage(const ElementValues& values, Context& context) {
        const double width = pageLength(values, QStringLiteral("width"));
        const double height = pageLength(values, QStringLiteral("height"));
        const auto box = numberList(values.text(QStringLiteral("viewBox")).value_or(QString()));
        if (box.size() != 4 || box[2] <= 0 || box[3] <= 0)
            throw BadValue(QStringLiteral("viewBox falta ou não tem quatro números"));
        constexpr double kTolerance = 0.001;
        if (std::abs(width / box[2] * box[3] / height - 1) > kTolerance)
            throw BadValue(QStringLiteral("viewBox não tem as proporções de width e height"));
        layout_.page = QSizeF(width, height);
        scale_ = width * kLayoutUnitsPerMillimetre / box[2];
        if (scale_ > kCoarsestScale)
            throw BadValue(QStringLiteral("viewBox é pequeno demais para width e height"));
        context.origin = QPointF(-box[0], -box[1]) * scale_;
        if (const auto pitch = values.number(QStringLiteral("data-pitch")))
            layout_.rowPitch = positive(*pitch, QStringLiteral("data-pitch")) * scale_;
    }

    static double pageLength(const ElementValues& values, const QString& name) {
        const double length = values.requiredMillimetres(name);
        if (length < kNarrowestPage || length > kWidestPage)
            throw BadValue(QStringLiteral("%1 não está entre %2mm e %3mm")
                               .arg(name)
                               .arg(kNarrowestPage)
                               .arg(kWidestPage));
        return length;
    }

    void readChildren(const Context& context) {
        if (++depth_ > kDeepestGroup)
            throw BadValue(QStringLiteral("grupos demais um dentro do outro"));
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
        if (name == QStringLiteral("g")) {
            readGroup(values, context);
        } else if (name == QStringLiteral("text")) {
            readText(values, context);
        } else if (name == QStringLiteral("rect")) {
            readRect(values, context);
        } else if (name == QStringLiteral("line")) {
            readLine(values, context);
        } else {
            throw BadValue(
                QStringLiteral("<%1> não pode ser desenhado; use rect, line e text").arg(name));
        }
    }

    void inherit(const ElementValues& values, Context& context) const {
        context.origin += values.translation() * scale_;
        if (const auto fill = values.colour(QStringLiteral("fill"))) context.fill = *fill;
        if (const auto stroke = values.colour(QStringLiteral("stroke"))) context.stroke = *stroke;
        if (const auto width = values.number(QStringLiteral("stroke-width")))
            context.strokeWidth = *width;
        if (const auto family = values.text(QStringLiteral("font-family")))
            context.families = fontFamilies(*family);
        if (const auto size = values.number(QStringLiteral("font-size")))
            context.fontSize = positive(*size, QStringLiteral("font-size"));
        if (const auto weight = values.text(QStringLiteral("font-weight")))
            context.fontWeight = fontWeight(*weight);
        if (const auto style = values.text(QStringLiteral("font-style")))
            context.italic = *style != QStringLiteral("normal");
        if (const auto anchor = values.text(QStringLiteral("text-anchor")))
            context.anchor = anchorNamed(*anchor);
        if (const auto height = values.number(QStringLiteral("line-height")))
            context.lineHeight = positive(*height, QStringLiteral("line-height"));
        if (const auto align = values.text(QStringLiteral("text-align")))
            context.justified = isJustified(*align);
    }

    void readGroup(const ElementValues& values, Context& context) {
        if (const auto block = values.text(QStringLiteral("data-block"))) {
            if (context.block != LayoutBlock::Always)
                throw BadValue(QStringLiteral("data-block dentro de outro bloco"));
            context.block = blockNamed(*block);
        }
        if (const auto side = values.count(QStringLiteral("data-side"), kMostSides)) {
            if (context.side > 0) throw BadValue(QStringLiteral("data-side dentro de data-side"));
            context.side = *side;
            layout_.sides = std::max(layout_.sides, *side);
        }
        if (const auto first = values.count(QStringLiteral("data-first"), kMostRows)) {
            if (context.first > 0)
                throw BadValue(QStringLiteral("data-first dentro de data-first"));
            context.first = *first - 1;
        }
        if (const auto rows = values.count(QStringLiteral("data-rows"), kMostRows)) {
            if (context.rows > 0) throw BadValue(QStringLiteral("data-rows dentro de data-rows"));
            const double pitch = values.requiredNumber(QStringLiteral("data-pitch"));
            context.rows = *rows;
            context.pitch = positive(pitch, QStringLiteral("data-pitch")) * scale_;
            if (layout_.rowPitch == 0) layout_.rowPitch = context.pitch;
        }
        readChildren(context);
    }

    void readRect(const ElementValues& values, const Context& context) {
        const QRectF area(position(values, context, QStringLiteral("x"), QStringLiteral("y")),
                          QSizeF(values.requiredNumber(QStringLiteral("width")),
                                 values.requiredNumber(QStringLiteral("height"))) *
                              scale_);
        if (area.width() < 0 || area.height() < 0)
            throw BadValue(QStringLiteral("um rect de tamanho negativo"));
        LayoutRect rect{area,         context.fill, context.stroke, context.strokeWidth * scale_,
                        std::nullopt, std::nullopt};
        if (const auto share = values.text(QStringLiteral("data-share")))
            rect.share = columnNamed(*share, columns_);
        if (const auto barcode = values.text(QStringLiteral("data-barcode")))
            rect.barcode = columnNamed(*barcode, columns_);
        add(std::move(rect), context);
        xml_.skipCurrentElement();
    }

    void readLine(const ElementValues& values, const Context& context) {
        const QLineF line(position(values, context, QStringLiteral("x1"), QStringLiteral("y1")),
                          position(values, context, QStringLiteral("x2"), QStringLiteral("y2")));
        add(LayoutLine{line, context.stroke, context.strokeWidth * scale_}, context);
        xml_.skipCurrentElement();
    }

    void readText(const ElementValues& values, const Context& context) {
        LayoutText text;
        text.baseline = position(values, context, QStringLiteral("x"), QStringLiteral("y"));
        text.anchor = context.anchor;
        text.ink = inkOf(context);
        if (const auto width = values.number(QStringLiteral("data-width")))
            text.width = positive(*width, QStringLiteral("data-width")) * scale_;
        if (const auto width = values.number(QStringLiteral("inline-size")))
            wrapInto(text, *width, values, context);
        if (const auto unless = values.text(QStringLiteral("data-unless")))
            text.unless = columnsNamed(*unless, columns_);
        if (const auto when = values.text(QStringLiteral("data-when")))
            text.when = columnsNamed(*when, columns_);
        text.blank = values.text(QStringLiteral("data-blank")).value_or(QString());
        const auto field = values.text(QStringLiteral("data-field"));
        const auto pattern = values.text(QStringLiteral("data-template"));
        if (field && pattern)
            throw BadValue(QStringLiteral("data-field e data-template no mesmo text"));
        if (field) text.pieces.push_back({QString(), columnNamed(*field, columns_)});
        if (pattern) text.pieces = templatePieces(*pattern, columns_);
        const QString sample = readSample(text.wrap ? kMostRows : 1);
        if (!field && !pattern) text.pieces.push_back({sample, std::nullopt});
        add(std::move(text), context);
    }

    void wrapInto(LayoutText& text, double width, const ElementValues& values,
                  const Context& context) const {
        const auto lines = values.count(QStringLiteral("data-lines"), kMostRows);
        if (!lines) throw BadValue(QStringLiteral("inline-size sem data-lines"));
        text.width = positive(width, QStringLiteral("inline-size")) * scale_;
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
                throw BadValue(QStringLiteral("<%1> dentro de um text").arg(xml_.name()));
            if (tspans > 0) sample += u' ';
            if (++tspans > mostLines)
                throw BadValue(
                    QStringLiteral("um text de várias linhas; use um text para cada uma"));
        }
        return sample.simplified();
    }

    QPointF position(const ElementValues& values, const Context& context, const QString& x,
                     const QString& y) const {
        return context.origin +
               QPointF(values.requiredNumber(x), values.requiredNumber(y)) * scale_;
    }

    static double positive(double number, const QString& name) {
        if (number <= 0) throw BadValue(QStringLiteral("%1 não é maior que 0").arg(name));
        return number;
    }

    std::size_t inkOf(const Context& context) {
        if (context.fontSize <= 0) throw BadValue(QStringLiteral("falta font-size"));
        const double size = context.fontSize * scale_;
        if (size > kLargestLetter) throw BadValue(QStringLiteral("font-size é grande demais"));
        const Ink ink{context.families, std::max(1, qRound(size)), context.fontWeight,
                      context.italic, context.fill};
        const auto found = std::ranges::find(layout_.inks, ink);
        if (found != layout_.inks.end())
            return static_cast<std::size_t>(found - layout_.inks.begin());
        if (layout_.inks.size() == kMostInks)
            throw BadValue(QStringLiteral("mais de %1 letras e cores").arg(kMostInks));
        layout_.inks.push_back(ink);
        return layout_.inks.size() - 1;
    }

    static bool belongsTo(const LayoutSection& section, const Context& context) {
        return section.block == context.block && section.side == context.side &&
               section.first == context.first && section.rows == context.rows &&
               section.pitch == context.pitch;
    }

    void add(LayoutMark mark, const Context& context) {
        marks_ += static_cast<std::size_t>(std::max(1, context.rows));
        if (marks_ > kMostMarks)
            throw BadValue(
                QStringLiteral("mais de %1 elementos, contadas as repetições").arg(kMostMarks));
        auto& sections = layout_.sections;
        if (sections.empty() || !belongsTo(sections.back(), context))
            sections.push_back({.block = context.block,
                                .side = context.side,
                                .first = context.first,
                                .rows = context.rows,
                                .pitch = context.pitch,
                                .marks = {}});
        sections.back().marks.push_back(std::move(mark));
    }

    QXmlStreamReader xml_;
    const std::string& name_;
    const ColumnNames& columns_;
    Layout layout_;
    double scale_ = 1;
    int depth_ = 0;
    std::size_t marks_ = 0;
};

std::string listed(const std::vector<std::filesystem::path>& folders) {
    std::string text;
    for (const auto& folder : folders)
        text += (text.empty() ? "" : ", ") + folder.string();
    return text;
}

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
    if (!path) throw LayoutFault(name, "não está em " + listed(folders));
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly))
        throw LayoutFault(path->string(), file.errorString().toStdString());
    return readLayout(file, path->string(), columns);
}

}  // namespace winvrx
