#include "report/desktop/text_lines.h"

#include <gmock/gmock.h>
#include <QStringList>

#include <algorithm>

namespace winvrx {
namespace {

/// Every character is one wide.
double length(const QString& text) {
    return static_cast<double>(text.size());
}

/// "0 one two|1 three.": how far down, the text, a dot where a paragraph ends.
std::string written(const std::vector<TextLine>& lines) {
    QStringList texts;
    for (const TextLine& line : lines)
        texts << QString::number(line.down) + u' ' + line.text +
                     (line.endsParagraph ? QStringLiteral(".") : QString());
    return texts.join(u'|').toStdString();
}

TEST(TextLines, BreakAtBlanksAndLongWordsWhereTheyMust) {
    struct Case {
        const char* text;
        const char* lines;
    };
    const Case cases[] = {
        {"", "0 ."},
        {"one two", "0 one two."},
        {"one two three", "0 one two|1 three."},
        {"  one   two\tx", "0 one|1 two\tx."},
        {"a\nb", "0 a.|1.5 b."},
        {"one two three\n\nb", "0 one two|1 three.|2.5 .|4 b."},
        {"x abcdefghijklmnopqr y", "0 x|1 abcdefgh|2 ijklmnop|3 qr y."},
    };
    for (const Case& one : cases)
        EXPECT_EQ(written(brokenLines(QString::fromUtf8(one.text), 8, length)), one.lines);
}

TEST(TextLines, BecomeNarrowerAndThenAreCut) {
    constexpr double kNarrowest = 0.6;
    struct Case {
        const char* what;
        QString text;
        int lines;
        bool isSqueezed;
        bool isCut;
    };
    const Case cases[] = {
        {"fits", QStringLiteral("aaaa bbbb cccc"), 2, false, false},
        {"fits when narrower", QStringLiteral("aaaa bbbb cccc dd"), 1, true, true},
        {"two lines made one", QStringLiteral("aaaa bbbb ccc"), 1, true, false},
        {"a paragraph too many", QStringLiteral("a\nb\nc"), 2, true, true},
        {"no word fits at all", QString(500, u'w'), 3, true, true},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        const FittedLines fitted = fittedLines(one.text, 10, one.lines, kNarrowest, length);
        EXPECT_EQ(fitted.squeeze < 1, one.isSqueezed);
        EXPECT_GE(fitted.squeeze, kNarrowest - 0.001);
        EXPECT_EQ(fitted.lines.back().text.endsWith(u'…'), one.isCut);
        EXPECT_LE(fitted.lines.back().down, one.lines - 1);
        EXPECT_TRUE(std::ranges::all_of(fitted.lines, [&](const TextLine& line) {
            return length(line.text) * fitted.squeeze <= 10.001;
        }));
    }
}

}  // namespace
}  // namespace winvrx
