#include "report/code128.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/layout_reader.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

/// Twenty dots to the millimetre.
constexpr double kDotsPerInch = 508;
constexpr int kDots = 20;

QImage painted(const char* marks, const PageText& rows) {
    QBuffer file;
    file.setData(QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"150mm\" "
                            "height=\"20mm\" viewBox=\"0 0 150 20\" data-pitch=\"1\"><g "
                            "font-family=\"Liberation Mono\" font-size=\"5\">") +
                 marks + "</g></svg>");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    LayoutPainter painter(readLayout(file, "test.rpt", {"chave"}), {});
    QImage page(150 * kDots, 20 * kDots, QImage::Format_Grayscale8);
    page.fill(Qt::white);
    QPainter dots(&page);
    dots.scale(layoutScale(kDotsPerInch), layoutScale(kDotsPerInch));
    painter.paint(dots, rows);
    return page;
}

bool isInk(const QImage& page, int x, int y) {
    return qGray(page.pixel(x, y)) < 128;
}

/// Dots of paper and ink in turn along a line, paper first.
std::vector<int> runs(const QImage& page, int y) {
    std::vector<int> lengths = {0};
    bool ink = false;
    for (int x = 0; x < page.width(); ++x) {
        if (isInk(page, x, y) != ink) {
            ink = !ink;
            lengths.push_back(0);
        }
        ++lengths.back();
    }
    return lengths;
}

/// The first column with ink between two lines.
int leftOf(const QImage& page) {
    for (int x = 0; x < page.width(); ++x)
        for (int y = 0; y < page.height(); ++y)
            if (isInk(page, x, y)) return x;
    return -1;
}

TEST(LayoutBars, AreReadBackFromThePaper) {
    const QString key = QStringLiteral("35240311222333000181550010000012341000012345");
    const char* bars = "<rect x=\"5\" y=\"2\" width=\"140\" height=\"12\" data-barcode=\"chave\"/>";
    const QImage page = painted(bars, {{key}});
    const std::vector<int> wanted = code128Bars(key.toStdString());
    std::vector<int> found = runs(page, 8 * kDots);
    ASSERT_EQ(found.size(), wanted.size() + 2);
    const double module = 140.0 * kDots / (24 * 11 + 13 + 2 * kQuietModules);
    EXPECT_NEAR(found.front(), 5 * kDots + kQuietModules * module, 1.5);
    for (std::size_t i = 0; i < wanted.size(); ++i)
        EXPECT_EQ(std::lround(found[i + 1] / module), wanted[i]) << i;
    EXPECT_EQ(runs(page, 1 * kDots).size(), 1U);
    EXPECT_EQ(leftOf(painted(bars, {{QString()}})), -1) << "nothing to draw";
}

TEST(LayoutIndent, BlanksInFrontAreNotSqueezed) {
    const char* line = "<text x=\"2\" y=\"10\" data-width=\"60\" data-field=\"chave\"/>";
    const QString blanks(8, u' ');
    const int left = leftOf(painted(line, {{blanks + QStringLiteral("HH")}}));
    EXPECT_NEAR(left, (2 + 8 * 3) * kDots, kDots);
    for (const int letters : {14, 40})
        EXPECT_NEAR(leftOf(painted(line, {{blanks + QString(letters, u'H')}})), left, kDots / 2)
            << letters;
}

}  // namespace
}  // namespace winvrx
