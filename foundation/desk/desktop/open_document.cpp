#include "foundation/desk/desktop/open_document.h"

#include "foundation/values/desktop/qt_text.h"

#include <QXmlStreamWriter>

#include <array>
#include <numeric>
#include <set>

namespace winvrx {

namespace {

struct Attribute {
    std::string_view name;
    std::string value;
};
using Attributes = std::vector<Attribute>;

constexpr int kSheetWidth = 210;  // millimetres
constexpr int kSheetHeight = 297;

std::string millimetres(int length) {
    return std::to_string(length) + "mm";
}

std::string alignmentOf(const Paragraph& paragraph) {
    static constexpr std::array kAlignments = {"start", "center", "end", "justify"};
    return kAlignments.at(static_cast<std::size_t>(paragraph.side));
}

std::string styleOf(const Paragraph& paragraph) {
    return alignmentOf(paragraph) + std::to_string(paragraph.points) +
           (paragraph.bold ? "bold" : "") + (paragraph.startsPage ? "page" : "") +
           (paragraph.below > 0 ? "below" + std::to_string(paragraph.below) : "");
}

std::string columnStyle(int width) {
    return "column" + std::to_string(width);
}

int widthOf(const DocumentTable& table) {
    return std::accumulate(table.columnWidths.begin(), table.columnWidths.end(), 0);
}

std::string tableStyle(const DocumentTable& table) {
    return "table" + std::to_string(widthOf(table));
}

/// A reader of the file keeps only those blanks that stand alone between two words.
bool isKeptBlank(const QString& text, qsizetype at) {
    return at > 0 && at + 1 < text.size() && !text[at - 1].isSpace() && !text[at + 1].isSpace();
}

class DocumentWriter {
  public:
    explicit DocumentWriter(QByteArray& target) : xml_(&target) {}

    void write(const Document& document);

  private:
    void open(std::string_view name, const Attributes& attributes = {});
    void close() { xml_.writeEndElement(); }
    /// An element that holds nothing.
    void put(std::string_view name, const Attributes& attributes = {});
    void putStyle(const std::string& name, const std::string& family, std::string_view properties,
                  const Attributes& attributes);

    void writeDefaults();
    void writeSheet();
    void writeStylesOf(const Document& document);
    void writeStyle(const Paragraph& paragraph);
    void writeStyles(const DocumentTable& table);

    void writeBlock(const Paragraph& paragraph);
    void writeBlock(const DocumentTable& table);
    void writeRow(const DocumentTable& table, const std::vector<Paragraph>& cells);
    void writeText(const QString& text);

    QXmlStreamWriter xml_;
    std::set<std::string> styles_;  ///< those written so far
};

void DocumentWriter::open(std::string_view name, const Attributes& attributes) {
    xml_.writeStartElement(toQt(name));
    for (const Attribute& attribute : attributes)
        xml_.writeAttribute(toQt(attribute.name), toQt(attribute.value));
}

void DocumentWriter::put(std::string_view name, const Attributes& attributes) {
    open(name, attributes);
    close();
}

void DocumentWriter::putStyle(const std::string& name, const std::string& family,
                              std::string_view properties, const Attributes& attributes) {
    if (!styles_.insert(name).second) return;
    open("style:style", {{"style:name", name}, {"style:family", family}});
    put(properties, attributes);
    close();
}

void DocumentWriter::write(const Document& document) {
    const std::string names = "urn:oasis:names:tc:opendocument:xmlns:";
    xml_.writeStartDocument();
    open("office:document", {{"xmlns:office", names + "office:1.0"},
                             {"xmlns:style", names + "style:1.0"},
                             {"xmlns:text", names + "text:1.0"},
                             {"xmlns:table", names + "table:1.0"},
                             {"xmlns:fo", names + "xsl-fo-compatible:1.0"},
                             {"xmlns:dc", "http://purl.org/dc/elements/1.1/"},
                             {"office:version", "1.2"},
                             {"office:mimetype", "application/vnd.oasis.opendocument.text"}});
    open("office:meta");
    xml_.writeTextElement(QStringLiteral("dc:title"), toQt(document.title));
    close();
    writeDefaults();
    writeStylesOf(document);
    writeSheet();
    open("office:body");
    open("office:text");
    for (const auto& block : document.blocks)
        std::visit([this](const auto& content) { writeBlock(content); }, block);
    xml_.writeEndDocument();
}

void DocumentWriter::writeDefaults() {
    open("office:styles");
    open("style:default-style", {{"style:family", "paragraph"}});
    put("style:text-properties",
        {{"fo:font-family", "'Liberation Sans'"}, {"fo:language", "pt"}, {"fo:country", "BR"}});
    close();
    close();
}

void DocumentWriter::writeSheet() {
    open("office:master-styles");
    put("style:master-page", {{"style:name", "Standard"}, {"style:page-layout-name", "sheet"}});
    close();
}

void DocumentWriter::writeStylesOf(const Document& document) {
    open("office:automatic-styles");
    open("style:page-layout", {{"style:name", "sheet"}});
    put("style:page-layout-properties",
        {{"fo:page-width", millimetres(kSheetWidth)},
         {"fo:page-height", millimetres(kSheetHeight)},
         {"fo:margin", millimetres((kSheetWidth - kTextWidth) / 2)}});
    close();
    for (const auto& block : document.blocks)
        if (const auto* table = std::get_if<DocumentTable>(&block))
            writeStyles(*table);
        else
            writeStyle(std::get<Paragraph>(block));
    close();
}

void DocumentWriter::writeStyle(const Paragraph& paragraph) {
    const std::string name = styleOf(paragraph);
    if (!styles_.insert(name).second) return;
    open("style:style", {{"style:name", name}, {"style:family", "paragraph"}});
    put("style:paragraph-properties", {{"fo:text-align", alignmentOf(paragraph)},
                                       {"fo:break-before", paragraph.startsPage ? "page" : "auto"},
                                       {"fo:margin-bottom", millimetres(paragraph.below)}});
    put("style:text-properties", {{"fo:font-size", std::to_string(paragraph.points) + "pt"},
                                  {"fo:font-weight", paragraph.bold ? "bold" : "normal"}});
    close();
}

void DocumentWriter::writeStyles(const DocumentTable& table) {
    putStyle(tableStyle(table), "table", "style:table-properties",
             {{"style:width", millimetres(widthOf(table))}, {"table:align", "left"}});
    for (const int width : table.columnWidths)
        putStyle(columnStyle(width), "table-column", "style:table-column-properties",
                 {{"style:column-width", millimetres(width)}});
    putStyle("row", "table-row", "style:table-row-properties", {{"fo:keep-together", "always"}});
    putStyle("grid", "table-cell", "style:table-cell-properties",
             {{"fo:border", "0.5pt solid #000000"}, {"fo:padding", "1mm"}});
    putStyle("plain", "table-cell", "style:table-cell-properties", {{"fo:padding", "1mm"}});
    for (const auto& row : table.rows)
        for (const Paragraph& cell : row)
            writeStyle(cell);
}

void DocumentWriter::writeBlock(const Paragraph& paragraph) {
    open("text:p", {{"text:style-name", styleOf(paragraph)}});
    writeText(toQt(paragraph.text));
    close();
}

void DocumentWriter::writeBlock(const DocumentTable& table) {
    open("table:table", {{"table:style-name", tableStyle(table)}});
    for (const int width : table.columnWidths)
        put("table:table-column", {{"table:style-name", columnStyle(width)}});
    for (std::size_t at = 0; at < table.rows.size(); ++at) {
        const bool repeats = at == 0 && table.rows.size() > 1;
        if (repeats) open("table:table-header-rows");
        writeRow(table, table.rows[at]);
        if (repeats) close();
    }
    close();
}

void DocumentWriter::writeRow(const DocumentTable& table, const std::vector<Paragraph>& cells) {
    open("table:table-row", {{"table:style-name", "row"}});
    for (const Paragraph& cell : cells) {
        open("table:table-cell", {{"table:style-name", table.gridLines ? "grid" : "plain"}});
        writeBlock(cell);
        close();
    }
    close();
}

void DocumentWriter::writeText(const QString& text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text[at];
        if (letter == u'\n')
            put("text:line-break");
        else if (letter == u' ' && !isKeptBlank(text, at))
            put("text:s");
        else if (letter < u' ')  // a damaged record's; no XML file can hold it
            xml_.writeCharacters(QStringLiteral("·"));
        else
            xml_.writeCharacters(letter);
    }
}

}  // namespace

QByteArray openDocument(const Document& document) {
    QByteArray bytes;
    DocumentWriter(bytes).write(document);
    return bytes;
}

}  // namespace winvrx
