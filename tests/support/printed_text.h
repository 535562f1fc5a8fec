#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QString>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <vector>

// What stands on the pages of a PDF, read back by pdftotext of poppler-utils.

namespace winvrx::testing {

inline constexpr double kPointsPerMillimetre = 72 / 25.4;

/// A word and its box in points from the page's top left corner.
struct PrintedWord {
    int page = 0;
    QString text;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

inline QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() +
                                 process.readAllStandardError().toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The words in the order of the page's text.
inline std::vector<PrintedWord> printedWords(const QString& pdf) {
    static const QRegularExpression pattern(QStringLiteral(
        "<page |<word xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" yMax=\"(.*?)\">(.*?)</word>"));
    const QString text =
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    std::vector<PrintedWord> words;
    int page = 0;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        const auto found = match.next();
        if (found.captured(0) == QStringLiteral("<page "))
            ++page;
        else
            words.push_back({page, found.captured(5), found.captured(1).toDouble(),
                             found.captured(2).toDouble(), found.captured(3).toDouble(),
                             found.captured(4).toDouble()});
    }
    return words;
}

/// The first word of this text. Throws when there is none.
inline PrintedWord wordOf(const std::vector<PrintedWord>& words, const QString& text) {
    const auto found = std::ranges::find(words, text, &PrintedWord::text);
    if (found == words.end()) throw std::runtime_error("no word " + text.toStdString());
    return *found;
}

/// The pages' text, each line's blanks made one.
inline QString printedText(const QString& pdf) {
    static const QRegularExpression blanks(QStringLiteral("[ ]+"));
    return outputOf(QStringLiteral("pdftotext"),
                    {QStringLiteral("-layout"), pdf, QStringLiteral("-")})
        .replace(blanks, QStringLiteral(" "));
}

inline bool canReadPdf() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

}  // namespace winvrx::testing
