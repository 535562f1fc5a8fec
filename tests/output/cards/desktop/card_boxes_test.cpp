#include "output/stocks/card_rows.h"
#include "output/stocks/card_stock.h"
#include "tests/support/card_geometry.h"
#include "tests/support/printed_card.h"

#include <gtest/gtest.h>

#include <map>

namespace winvrx::testing {
namespace {

constexpr double kPointsPerTwip = 0.05;
constexpr double kTolerance = 0.3;  // millimetres

/// Nearer to a sheet's edge most printers cannot print.
constexpr double kUnprintable = 4.2;

constexpr std::array kTrays = {TrayPosition::Central, TrayPosition::Lateral};
constexpr std::array kSets = {LayoutSet::A, LayoutSet::B};

/// A card on which no two values of the grid are alike.
ReportRows distinctCard() {
    auto rows = sampleCard(0);
    int minutes = 0;
    for (ReportRow& row : rows) {
        row[cardColumn("semana")] = "s" + row[cardColumn("dia")];
        row[cardColumn("situacao")] = "";
        for (const std::size_t column :
             {cardColumn("ent1"), cardColumn("sai1"), cardColumn("ent2"), cardColumn("sai2"),
              cardColumn("ent3"), cardColumn("sai3"), cardColumn("horas")}) {
            ++minutes;
            row[column] = padded(minutes / 60, 2) + ":" + padded(minutes % 60, 2);
        }
    }
    return rows;
}

std::size_t positionOf(const QString& column) {
    const auto found = std::ranges::find(kCardColumns, column.toStdString());
    return static_cast<std::size_t>(found - kCardColumns.begin());
}

class CardBoxes : public PrintedCard {
  protected:
    /// The words of one card, by page and text.
    std::map<std::pair<int, QString>, PrintedWord> print(const std::string& layout,
                                                         const ReportRows& rows) {
        desk_.request.layoutName = layout;
        EXPECT_EQ(desk_.print(ReportPages(1, [&](std::size_t) { return rows; })), PrintEnd::Done)
            << ::testing::PrintToString(desk_.log.entries);
        std::map<std::pair<int, QString>, PrintedWord> words;
        for (const PrintedWord& word : printedWords(desk_.pdf()))
            words.insert({{word.page, word.text}, word});
        return words;
    }
};

/// Millimetres.
QRectF areaOf(const PrintedWord& word) {
    return QRectF(QPointF(word.left, word.top) / kPointsPerMillimetre,
                  QPointF(word.right, word.bottom) / kPointsPerMillimetre);
}

void expectInBox(const PrintedWord& word, const QRectF& box) {
    const QRectF area = areaOf(word);
    const QPointF apart = area.center() - box.center();
    EXPECT_LE(std::abs(apart.x()), kTolerance);
    EXPECT_LE(std::abs(apart.y()), kTolerance);
    EXPECT_GE(area.left(), box.left());
    EXPECT_LE(area.right(), box.right());
    EXPECT_GE(area.top(), box.top() - kTolerance);
    EXPECT_LE(area.bottom(), box.bottom() + kTolerance);
}

const CardGeometry& geometryOf(const std::vector<CardGeometry>& cards, std::string_view code) {
    const std::string_view stem = findStock(code)->stemA;
    const auto found = std::ranges::find(cards, QString::fromUtf8(stem), &CardGeometry::stem);
    if (found == cards.end()) throw std::runtime_error("no card " + std::string(stem));
    return *found;
}

TEST_F(CardBoxes, EachValueStandsInItsBoxOnEveryStockAndTray) {
    const auto cards = cardGeometries();
    const auto rows = distinctCard();
    for (const std::string_view code : kPrintOrder)
        for (const TrayPosition tray : kTrays)
            for (const LayoutSet set : kSets) {
                const std::string layout = layoutFor(code, tray, set).value();
                if (set == LayoutSet::B && layout == layoutFor(code, tray, LayoutSet::A)) continue;
                const CardGeometry& card = geometryOf(cards, code);
                const auto words = print(layout, rows);
                ASSERT_GE(card.columns().size(), 7) << layout;
                for (int day = 1; day <= kCardLines; ++day)
                    for (const QString& column : card.columns()) {
                        const std::string& value =
                            rows[static_cast<std::size_t>(day - 1)][positionOf(column)];
                        SCOPED_TRACE(layout + " " + column.toStdString() + " " + value);
                        const auto word =
                            words.find({card.pageOf(day), QString::fromStdString(value)});
                        ASSERT_NE(word, words.end());
                        expectInBox(word->second, card.box(column, day, tray));
                    }
            }
}

/// Where the alignment takes a place, in points.
QPointF moved(QPointF place, const Alignment& alignment, double pitch) {
    constexpr double kPointsPerHundredth = kPointsPerMillimetre / 100;
    const PrintScale& scale = alignment.scale;
    const double down = place.y() + alignment.lines * pitch * kPointsPerMillimetre;
    return {place.x() * scale.horizontalScale / 10000 +
                scale.horizontalOffset * kPointsPerHundredth +
                alignment.horizontalTwips * kPointsPerTwip,
            down * scale.verticalScale / 10000 + scale.verticalOffset * kPointsPerHundredth +
                alignment.verticalTwips * kPointsPerTwip};
}

TEST_F(CardBoxes, EveryCardMovesByTheAlignmentToTheTwip) {
    const auto rows = distinctCard();
    const Alignment alignments[] = {{1, 0, 0, {}},
                                    {0, 1, 0, {}},
                                    {1500, 1500, 0, {}},
                                    {10, 10, 10, {}},
                                    {20, 0, 1, {9950, 10040, 120, 35}}};
    for (const CardGeometry& card : cardGeometries()) {
        const std::string layout = card.stem().toStdString() + "center.rpt";
        desk_.request.alignment = {};
        const auto still = print(layout, rows);
        for (const Alignment& alignment : alignments) {
            SCOPED_TRACE(layout + " " + std::to_string(alignment.horizontalTwips));
            desk_.request.alignment = alignment;
            const auto words = print(layout, rows);
            ASSERT_EQ(words.size(), still.size());
            for (const auto& [key, word] : still) {
                ASSERT_TRUE(words.contains(key)) << key.second.toStdString();
                const QPointF expected = moved({word.left, word.top}, alignment, card.pitch());
                EXPECT_NEAR(words.at(key).left, expected.x(), kPointsPerTwip / 5);
                EXPECT_NEAR(words.at(key).top, expected.y(), kPointsPerTwip / 5);
            }
        }
    }
}

TEST_F(CardBoxes, NothingLeavesTheCardOrItsPrintablePartHoweverLong) {
    auto rows = sampleCard(0);
    for (ReportRow& row : rows) {
        for (const std::size_t column : {cardColumn("razao"), cardColumn("funcao"),
                                         cardColumn("nome"), cardColumn("situacao")})
            row[column] = std::string(68, 'W');
        row[cardColumn("horas")] = row[cardColumn("total")] = row[cardColumn("quinzena")] =
            "12.345.678,00";
    }
    for (const CardGeometry& card : cardGeometries())
        for (const TrayPosition tray : kTrays) {
            const bool central = tray == TrayPosition::Central;
            const QString layout = card.stem() + QLatin1String(central ? "center.rpt" : "left.rpt");
            const QRectF area = card.area(tray);
            for (const auto& [key, word] : print(layout.toStdString(), rows)) {
                SCOPED_TRACE(layout.toStdString() + " " + key.second.toStdString());
                EXPECT_TRUE(area.contains(areaOf(word)));
                EXPECT_GE(areaOf(word).left(), kUnprintable);
                EXPECT_GE(areaOf(word).top(), kUnprintable);
            }
            EXPECT_TRUE(printedText(desk_.pdf()).contains(QStringLiteral("WW…")));
        }
}

TEST_F(CardBoxes, HeaderCanBeLeftToEveryStock) {
    const auto rows = distinctCard();
    for (const CardGeometry& card : cardGeometries()) {
        const std::string layout = card.stem().toStdString() + "left.rpt";
        SCOPED_TRACE(layout);
        desk_.request.printHeader = true;
        auto expected = print(layout, rows);
        desk_.request.printHeader = false;
        const auto without = print(layout, rows);
        const double grid = card.box(QStringLiteral("dia"), 1, TrayPosition::Lateral).top();
        std::erase_if(expected,
                      [grid](const auto& entry) { return areaOf(entry.second).bottom() < grid; });
        EXPECT_GT(expected.size(), 31U);
        ASSERT_EQ(without.size(), expected.size());
        for (const auto& [key, word] : expected)
            EXPECT_NEAR(without.at(key).top, word.top, 0.01);
    }
}

TEST_F(CardBoxes, ACardOfTwoFacesGivesTheFacesThatAreAskedFor) {
    const auto rows = distinctCard();
    struct Case {
        SheetSides sides;
        std::vector<const char*> firstDays;  ///< the first day on each page
    };
    const Case cases[] = {{SheetSides::Both, {"01", "16"}},
                          {SheetSides::First, {"01"}},
                          {SheetSides::Second, {"16"}}};
    EXPECT_EQ(desk_.engine.sidesOf(desk_.request), 1);
    desk_.request.layoutName = "dimepcenter.rpt";
    EXPECT_EQ(desk_.engine.sidesOf(desk_.request), 2);
    for (const Case& one : cases) {
        desk_.request.sides = one.sides;
        const auto words = print("dimepcenter.rpt", rows);
        int page = 0;
        for (const char* day : one.firstDays) {
            EXPECT_TRUE(words.contains({++page, QLatin1String(day)}));
            EXPECT_TRUE(words.contains({page, QStringLiteral("Razão:")}));
        }
        EXPECT_EQ(words.rbegin()->first.first, page);
    }
}

}  // namespace
}  // namespace winvrx::testing
