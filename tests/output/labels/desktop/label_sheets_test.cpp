// The labels as they lie on the paper: read back from the PDF.
#include "output/labels/etiquetas.h"
#include "tests/support/printed_text.h"
#include "tests/support/report_desk.h"

#include <QImage>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

constexpr double kTolerance = 0.3;  // mm

/// What the papers measure, in millimetres; the text's first line and how far one is from another.
struct Paper {
    std::size_t sheet;
    double left, top, width, height, across, down;
    double textLeft, baseline, line;
};
constexpr Paper kPapers[] = {{0, 4.7, 9, 99, 55.8, 101.6, 55.8, 5.4, 5.9, 4.2},
                             {1, 4.65, 15.15, 99.1, 38.1, 101.6, 38.1, 5.4, 5.4, 4.2},
                             {2, 4.75, 12.7, 66.7, 25.4, 69.85, 25.4, 3.1, 3.6, 2.8}};

struct LabelPaper : ::testing::Test {
    testing::ReportDesk desk;

    void SetUp() override {
        if (!testing::canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    }
    std::vector<testing::PrintedWord> print(const Paper& paper, ReportPages pages) {
        desk.request.layoutName = kLabelSheets[paper.sheet].layout;
        desk.request.columns = labelColumns();
        EXPECT_EQ(desk.print(std::move(pages)), PrintEnd::Done)
            << ::testing::PrintToString(desk.log.entries);
        return testing::printedWords(desk.pdf());
    }
    static QPointF cornerOf(const Paper& paper, std::size_t place) {
        const std::size_t columns = kLabelSheets[paper.sheet].columns;
        return {paper.left + static_cast<double>(place % columns) * paper.across,
                paper.top + static_cast<double>(place / columns) * paper.down};
    }
};

/// The font's: what lies above the baseline, of a word's height.
double baselineOf(const testing::PrintedWord& word) {
    constexpr double kAbove = 0.735;
    return (word.top + (word.bottom - word.top) * kAbove) / testing::kPointsPerMillimetre;
}

TEST_F(LabelPaper, EveryLineOfEveryLabelLiesWhereThePaperHasIt) {
    for (const Paper& paper : kPapers) {
        const LabelSheet& sheet = kLabelSheets[paper.sheet];
        const auto words = print(
            paper, labelPages({.sheet = sheet, .labels = sheet.labels(), .linesOf = [&](auto at) {
                                   LabelLines lines;
                                   for (std::size_t line = 0; line < sheet.lines; ++line)
                                       lines.push_back("Ç" + std::to_string(at) + "-" +
                                                       std::to_string(line));
                                   lines[1] = std::string(41, 'W') + std::to_string(at % 10);
                                   return lines;
                               }}));
        ASSERT_EQ(words.size(), sheet.labels() * sheet.lines);
        for (std::size_t place = 0; place < sheet.labels(); ++place) {
            const QPointF corner = cornerOf(paper, place);
            for (const std::size_t line : {std::size_t{0}, sheet.lines - 1}) {
                const QString text = QStringLiteral("Ç%1-%2").arg(place).arg(line);
                const auto word = testing::wordOf(words, text);
                EXPECT_NEAR(word.left / testing::kPointsPerMillimetre, corner.x() + paper.textLeft,
                            kTolerance)
                    << sheet.name << text.toStdString();
                EXPECT_NEAR(baselineOf(word),
                            corner.y() + paper.baseline + static_cast<double>(line) * paper.line,
                            kTolerance)
                    << sheet.name << text.toStdString();
                EXPECT_LT(word.bottom / testing::kPointsPerMillimetre, corner.y() + paper.height);
            }
        }
        for (const auto& word : words)
            if (word.text.startsWith(QStringLiteral("WW"))) {
                const double right = word.right / testing::kPointsPerMillimetre;
                const double inLabel = std::fmod(right - paper.left, paper.across);
                EXPECT_LT(inLabel, paper.width - 2) << sheet.name;
                EXPECT_GT(inLabel, paper.width - 8) << sheet.name;
            }
    }
}

TEST_F(LabelPaper, AHalfUsedSheetStaysBlankWhereItIsUsed) {
    const Paper& paper = kPapers[1];
    const auto words =
        print(paper, labelPages({.sheet = kLabelSheets[1],
                                 .labels = 4,
                                 .linesOf = [](auto at) { return LabelLines{std::to_string(at)}; },
                                 .copies = 1,
                                 .first = 11}));
    ASSERT_EQ(words.size(), 4U);
    for (std::size_t at = 0; at < 4; ++at) {
        EXPECT_EQ(words[at].page, at < 3 ? 1 : 2);
        const QPointF corner = cornerOf(paper, (11 + at) % 14);
        EXPECT_NEAR(words[at].left / testing::kPointsPerMillimetre, corner.x() + paper.textLeft,
                    kTolerance);
        EXPECT_NEAR(baselineOf(words[at]), corner.y() + paper.baseline, kTolerance);
    }
}

/// Whether ink lies within the tolerance of a line that should go through `at`.
bool hasInk(const QImage& page, QPointF at, bool upright) {
    constexpr double kDots = 10;  // a millimetre
    for (double off = -kTolerance; off <= kTolerance; off += 1 / kDots) {
        const QPointF near = at + (upright ? QPointF(off, 0) : QPointF(0, off));
        if (qGray(page.pixel((near * kDots).toPoint())) < 128) return true;
    }
    return false;
}

TEST_F(LabelPaper, FramesAreDrawnOnTheEdgesOfTheLabels) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty())
        GTEST_SKIP() << "pdftoppm (poppler-utils) is not installed";
    for (const Paper& paper : kPapers) {
        const LabelSheet& sheet = kLabelSheets[paper.sheet];
        const auto words = print(paper, {1, [&](std::size_t) { return labelFrames(sheet); }});
        EXPECT_EQ(words.size(), sheet.labels());
        const QString picture = desk.scratch.filePath(QStringLiteral("frames"));
        (void)testing::outputOf(QStringLiteral("pdftoppm"),
                                {QStringLiteral("-r"), QStringLiteral("254"),
                                 QStringLiteral("-singlefile"), desk.pdf(), picture});
        const QImage page(picture + QStringLiteral(".ppm"));
        ASSERT_FALSE(page.isNull());
        for (std::size_t place = 0; place < sheet.labels(); ++place) {
            const QPointF corner = cornerOf(paper, place);
            const QPointF middle = corner + QPointF(paper.width / 2, paper.height / 2);
            EXPECT_TRUE(hasInk(page, {corner.x(), middle.y()}, true)) << sheet.name << place;
            EXPECT_TRUE(hasInk(page, {corner.x() + paper.width, middle.y()}, true));
            EXPECT_TRUE(hasInk(page, {middle.x(), corner.y()}, false));
            EXPECT_TRUE(hasInk(page, {middle.x(), corner.y() + paper.height}, false));
            EXPECT_FALSE(hasInk(page, middle, true));
        }
    }
}

TEST_F(LabelPaper, StockSheetsSayWhoseTheyAre) {
    Company company;
    company.name = "PADARIA PÃO DE MEL LTDA";
    for (const StockForm form : {StockForm::Movement, StockForm::Count}) {
        const StockChoices chosen{.form = form, .subject = "FARINHA DE TRIGO", .sheets = 2};
        const std::string pdf = desk.request.pdfPath;
        desk.request = stockSheetRequest(chosen);
        desk.request.output = ReportOutput::PdfFile;
        desk.request.pdfPath = pdf;
        ASSERT_EQ(desk.print(stockSheets(company, chosen)), PrintEnd::Done);
        const QString text = testing::printedText(desk.pdf());
        for (const char* part : {"CONTROLE DE ESTOQUE", "PADARIA PÃO DE MEL LTDA", "Folha 2/2",
                                 "FARINHA DE TRIGO", form == StockForm::Movement ? "Saldo" : "36"})
            EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part;
    }
}

}  // namespace
}  // namespace winvrx
