#include "personnel/documents/desktop/paper_view.h"

#include "foundation/values/desktop/qt_text.h"

namespace winvrx {

namespace {

QString sideOf(const Paragraph& paragraph) {
    switch (paragraph.side) {
        case Paragraph::Side::Left:
            return QStringLiteral("left");
        case Paragraph::Side::Center:
            return QStringLiteral("center");
        case Paragraph::Side::Right:
            return QStringLiteral("right");
        case Paragraph::Side::Justified:
            return QStringLiteral("justify");
    }
    return {};
}

QString htmlOf(const Paragraph& paragraph) {
    QString text = toQt(paragraph.text).toHtmlEscaped();
    text.replace(u'\n', QStringLiteral("<br>"));
    return QStringLiteral(
               "<p align=\"%1\" style=\"font-size:%2pt;font-weight:%3;"
               "margin:0 0 %4px 0;white-space:pre-wrap\">%5</p>")
        .arg(sideOf(paragraph))
        .arg(paragraph.points)
        .arg(paragraph.bold ? 700 : 400)
        .arg(paragraph.below * 4)
        .arg(text);
}

QString htmlOf(const DocumentTable& table) {
    QString html = QStringLiteral(
                       "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"3\" "
                       "border=\"%1\" style=\"border-collapse:collapse\">")
                       .arg(table.gridLines ? 1 : 0);
    for (const auto& row : table.rows) {
        html += QStringLiteral("<tr>");
        for (std::size_t column = 0; column < row.size(); ++column)
            html += QStringLiteral("<td width=\"%1%\">%2</td>")
                        .arg(table.columnWidths[column] * 100 / kTextWidth)
                        .arg(htmlOf(row[column]));
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

}  // namespace

QString htmlOf(const Document& document) {
    QString html;
    for (const auto& block : document.blocks)
        html += std::visit([](const auto& content) { return htmlOf(content); }, block);
    return html;
}

}  // namespace winvrx
