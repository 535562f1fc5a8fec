#include "timecard/hours/desktop/hours_summary_panel.h"

#include "tests/support/window_driver.h"

#include <gmock/gmock.h>
#include <QHeaderView>
#include <QInputDialog>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

#include <chrono>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using testing::DrivenWindow;
using ::testing::IsEmpty;

constexpr WorkMonth kMonth = 2024y / 3;
constexpr int kExtraRow = 3;
constexpr int kMissingRow = 7;
enum Column { kCaption, kFirst, kSecond, kMonthColumn };
const QString kOwner = QStringLiteral("001 ANA · março/2024");

/// An hour of overtime on the 5th and half an hour missing on the 20th.
HoursSummary someHours() {
    WorkTerms terms;
    terms.weekday.morning = {parseTime("08:00"), parseTime("16:00")};
    auto lines = blankMonth(kMonth);
    for (PunchLine& line : lines)
        line.situation = "Abonado";
    lines[4].morningEntry = "08:00";
    lines[4].morningExit = "17:00";
    lines[19].morningEntry = "08:30";
    lines[19].morningExit = "16:00";
    lines[19].situation.clear();
    return {lines, kMonth, terms};
}

struct Panel : ::testing::Test {
    std::unique_ptr<DrivenWindow<HoursSummaryPanel>> driven;
    std::vector<std::pair<HourCategory, std::string>> typed;

    void SetUp() override {
        driven = std::make_unique<DrivenWindow<HoursSummaryPanel>>();
        driven->window.showHours(someHours(), kOwner);
        QObject::connect(&driven->window, &HoursSummaryPanel::percentTyped, &driven->window,
                         [this](HourCategory category, const QString& text) {
                             typed.emplace_back(category, text.toStdString());
                         });
    }

    [[nodiscard]] QTableWidget& table() { return driven->find<QTableWidget>("hours.table"); }
    [[nodiscard]] std::string figure(int row, int column) {
        return table().item(row, column)->text().toStdString();
    }
    [[nodiscard]] QPoint middleOf(int row, int column) {
        return table().visualRect(table().model()->index(row, column)).center();
    }
    void click(int row, int column) {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middleOf(row, column));
    }

    void press(Qt::Key key) { QTest::keyClick(&table(), key); }

    /// What the window that `give` opens says, line by line; closes it again.
    template <typename Give>
    [[nodiscard]] std::vector<std::string> explanationAfter(Give give) {
        std::vector<std::string> lines;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &driven->window, [&lines] {
            QWidget* shown = QApplication::activeModalWidget();
            if (!shown) return;
            lines.push_back(shown->windowTitle().toStdString());
            if (auto* parts = shown->findChild<QTreeWidget*>())
                for (int row = 0; row < parts->topLevelItemCount(); ++row) {
                    QStringList cells;
                    for (int column = 0; column < parts->columnCount(); ++column)
                        cells << parts->topLevelItem(row)->text(column);
                    lines.push_back(cells.join(QLatin1Char(' ')).toStdString());
                }
            QTest::keyClick(shown, Qt::Key_Escape);
        });
        look.start(10ms);
        give();
        EXPECT_TRUE(QTest::qWaitFor([&lines] { return !lines.empty(); }, 2000));
        return lines;
    }

    /// Types into the input that `give` opens and ends it with `key`.
    template <typename Give>
    void inputAfter(Give give, const char* text, Qt::Key key) {
        QTimer::singleShot(50ms, &driven->window, [text, key] {
            auto* input = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (!input) return;
            auto* edit = input->findChild<QLineEdit*>();
            edit->selectAll();
            QTest::keyClicks(edit, QString::fromUtf8(text));
            QTest::keyClick(edit, key);
        });
        give();
    }
};

TEST_F(Panel, ShowsTheFiguresOfBothHalvesAndTheMonth) {
    EXPECT_EQ(figure(kExtraRow, kCaption), "Hora Extra 50%");
    EXPECT_EQ(figure(kExtraRow, kFirst), "01:00");
    EXPECT_EQ(figure(kExtraRow, kSecond), "00:00");
    EXPECT_EQ(figure(kExtraRow, kMonthColumn), "01:00");
    EXPECT_EQ(figure(kMissingRow, kSecond), "00:30");
    driven->window.showOnly(HalfMonth::Second);
    EXPECT_TRUE(table().isColumnHidden(kFirst));
    EXPECT_FALSE(table().isColumnHidden(kSecond));
    driven->window.showOnly(std::nullopt);
    EXPECT_FALSE(table().isColumnHidden(kFirst));
    EXPECT_THAT(driven->namelessWidgets(), IsEmpty());
}

TEST_F(Panel, AClickOrEnterTellsWhatAFigureIsMadeOf) {
    const std::vector<std::string> missing = {
        "Hora Falta", "20/qua/mar  00:30 abaixo da jornada, além da tolerância"};
    EXPECT_EQ(explanationAfter([this] { click(kMissingRow, kSecond); }), missing);
    const std::vector<std::string> extra = {"Hora Extra 50%",
                                            "05/ter/mar 16:00–17:00 01:00 além da jornada: 50%"};
    EXPECT_EQ(explanationAfter([this] { click(kExtraRow, kMonthColumn); }), extra);
    table().setCurrentCell(kExtraRow, kFirst);
    EXPECT_EQ(explanationAfter([this] { press(Qt::Key_Return); }), extra);
    EXPECT_EQ(explanationAfter([this] { click(kMissingRow, kFirst); }).size(), 1U)
        << "nothing is missing in the first half";
}

TEST_F(Panel, ADoubleClickOrF2AsksForAPercentage) {
    inputAfter(
        [this] {
            click(kExtraRow, kFirst);
            QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, middleOf(kExtraRow, kFirst));
        },
        "60", Qt::Key_Return);
    table().setCurrentCell(kExtraRow + 3, kSecond);
    inputAfter([this] { press(Qt::Key_F2); }, "abc", Qt::Key_Return);
    inputAfter([this] { press(Qt::Key_F2); }, "70", Qt::Key_Escape);
    const std::vector<std::pair<HourCategory, std::string>> expected = {
        {HourCategory::ExtraMinimum, "60"}, {HourCategory::NightExtraMaximum, "abc"}};
    EXPECT_EQ(typed, expected);

    table().setCurrentCell(kMissingRow, kSecond);
    press(Qt::Key_F2);
    driven->window.showHours({}, {});
    table().setCurrentCell(kExtraRow, kFirst);
    press(Qt::Key_F2);
    EXPECT_EQ(typed, expected) << "no percentage, and nobody whose it would be";
}

TEST_F(Panel, HeadingsStandWholeWhateverTheFont) {
    const QHeaderView& headings = *table().horizontalHeader();
    for (const int column : {kFirst, kSecond, kMonthColumn}) {
        const QString name = table().horizontalHeaderItem(column)->text();
        EXPECT_GT(headings.sectionSize(column), headings.fontMetrics().horizontalAdvance(name))
            << name.toStdString();
    }
}

}  // namespace
}  // namespace winvrx
