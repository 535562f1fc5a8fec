#include "report/desktop/layout_reader.h"
#include "report/print_calibration.h"
#include "tests/support/printed_card.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace winvrx::testing {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTilibraPitch = 4.5 * kPointsPerMillimetre;

class PrintedScale : public PrintedCard {
  protected:
    /// In an order that does not depend on where the card lies.
    std::vector<PrintedWord> sortedWords() {
        auto sorted = words();
        std::ranges::sort(sorted, {}, [](const PrintedWord& word) {
            return std::tuple(word.text, word.top, word.left);
        });
        return sorted;
    }
};

TEST_F(PrintedScale, IsAppliedFromTheCornerOfThePaper) {
    const auto still = sortedWords();
    struct Case {
        Alignment alignment;
        double across;
        double down;
        double right;  ///< points
        double lower;
    };
    const Case cases[] = {{{40, 60, 2, {10150, 9825, -50, 0}},
                           1.015,
                           0.9825,
                           40 / kTwipsPerPoint - 0.5 * kPointsPerMillimetre,
                           60 / kTwipsPerPoint + 2 * kTilibraPitch * 0.9825},
                          {{20, 0, 0, {10000, 10000, 250, -100}},
                           1,
                           1,
                           20 / kTwipsPerPoint + 2.5 * kPointsPerMillimetre,
                           -kPointsPerMillimetre}};
    for (const Case& one : cases) {
        desk_.request.alignment = one.alignment;
        const auto scaled = sortedWords();
        ASSERT_EQ(scaled.size(), still.size());
        for (std::size_t i = 0; i < scaled.size(); ++i) {
            ASSERT_EQ(scaled[i].text, still[i].text);
            EXPECT_NEAR(scaled[i].left, still[i].left * one.across + one.right, 0.01);
            EXPECT_NEAR(scaled[i].top, still[i].top * one.down + one.lower, 0.01);
        }
    }
}

TEST_F(PrintedScale, CalibrationSheetHasItsCrossesInPlace) {
    const Layout sheet =
        loadLayout({QCoreApplication::applicationDirPath().toStdString() + "/layouts"},
                   std::string(kCalibrationLayout), {std::string(kCalibrationColumn)});
    const auto hasLine = [&sheet](QPointF middle, QPointF reach) {
        return std::ranges::any_of(sheet.sections, [&](const LayoutSection& section) {
            return std::ranges::any_of(section.marks, [&](const LayoutMark& mark) {
                const auto* line = std::get_if<LayoutLine>(&mark.shape);
                return line && line->line == QLineF(middle - reach, middle + reach);
            });
        });
    };
    for (const QPointF cross : {QPointF(kCrossNear, kCrossNear), QPointF(kCrossRight, kCrossNear),
                                QPointF(kCrossNear, kCrossDown)}) {
        EXPECT_TRUE(hasLine(cross, QPointF(800, 0))) << cross.x() << "," << cross.y();
        EXPECT_TRUE(hasLine(cross, QPointF(0, 800))) << cross.x() << "," << cross.y();
    }
    desk_.request.layoutName = kCalibrationLayout;
    EXPECT_TRUE(std::ranges::any_of(words(), [](const PrintedWord& word) {
        return word.text == QStringLiteral("EMPREGADO");
    })) << "the printer's name";
}

}  // namespace
}  // namespace winvrx::testing
