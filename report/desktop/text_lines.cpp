#include "report/desktop/text_lines.h"

#include <QStringList>

#include <algorithm>

namespace winvrx {

namespace {

constexpr double kParagraphGap = 0.5;  // of a line pitch
constexpr double kSqueezeStep = 0.02;

/// How many leading characters of a word fit; at least one.
qsizetype fittingPart(const QString& word, double width, const TextMeasure& widthOf) {
    qsizetype count = word.size();
    while (count > 1 && widthOf(word.first(count)) > width)
        --count;
    return count;
}

/// The lines of one paragraph, which may be empty.
QStringList linesOf(const QString& paragraph, double width, const TextMeasure& widthOf) {
    const double blank = widthOf(QStringLiteral(" "));
    QStringList lines;
    QString line;
    double used = 0;
    const QStringList words = paragraph.split(u' ', Qt::SkipEmptyParts);
    for (QString word : words) {
        double needed = widthOf(word);
        if (!line.isEmpty() && used + blank + needed <= width) {
            line += u' ' + word;
            used += blank + needed;
            continue;
        }
        if (!line.isEmpty()) lines << line;
        for (; needed > width && word.size() > 1; needed = widthOf(word)) {
            const qsizetype part = fittingPart(word, width, widthOf);
            lines << word.first(part);
            word.remove(0, part);
        }
        line = word;
        used = needed;
    }
    lines << line;
    return lines;
}

}  // namespace

std::vector<TextLine> brokenLines(const QString& text, double width, const TextMeasure& widthOf) {
    std::vector<TextLine> lines;
    double down = 0;
    const QStringList paragraphs = text.split(u'\n');
    for (const QString& paragraph : paragraphs) {
        const QStringList broken = linesOf(paragraph, width, widthOf);
        for (const QString& line : broken)
            lines.push_back({line, down++, false});
        lines.back().endsParagraph = true;
        down += kParagraphGap;
    }
    return lines;
}

FittedLines fittedLines(const QString& text, double width, int lines, double narrowest,
                        const TextMeasure& widthOf) {
    const auto isBelow = [lines](const TextLine& line) { return line.down > lines - 1; };
    FittedLines fitted{brokenLines(text, width, widthOf), 1};
    while (isBelow(fitted.lines.back()) && fitted.squeeze - kSqueezeStep >= narrowest) {
        fitted.squeeze -= kSqueezeStep;
        fitted.lines = brokenLines(text, width / fitted.squeeze, widthOf);
    }
    if (!isBelow(fitted.lines.back())) return fitted;
    std::erase_if(fitted.lines, isBelow);
    TextLine& last = fitted.lines.back();
    last.endsParagraph = true;
    cutToWidth(last.text, width / fitted.squeeze, widthOf);
    return fitted;
}

void cutToWidth(QString& text, double width, const TextMeasure& widthOf) {
    while (!text.isEmpty() && widthOf(text + u'…') > width)
        text.chop(1);
    text += u'…';
}

}  // namespace winvrx
