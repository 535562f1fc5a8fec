// "Resumo das Horas" within the time-card window.
#include "tests/support/card_screen.h"
#include "tests/support/window_driver.h"
#include "timecard/card/desktop/cartao_ponto_dados_window.h"
#include "timecard/card/desktop/punch_grid.h"

#include <QInputDialog>
#include <QTableWidget>
#include <QTimer>

#include <chrono>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using testing::DrivenWindow;

constexpr int kNormalRow = 1;
constexpr int kExtraRow = 3;
enum Column { kCaption, kFirst, kSecond, kMonthColumn };

/// Ana's card of eight hours a day, on which the 4th is punched.
struct CardHoursWindow : testing::CardScreen {
    std::unique_ptr<DrivenWindow<CartaoPontoDadosWindow>> driven;

    void SetUp() override {
        CardScreen::SetUp();
        desk.file(testing::kSchedule) = "08:0012:0013:0017:00";
        desk.file(testing::kPunches) = "  \r\n04/seg/mar08:0012:0013:0017:00\r\n";
        ASSERT_TRUE(screen.open());
        driven = std::make_unique<DrivenWindow<CartaoPontoDadosWindow>>(screen);
    }

    [[nodiscard]] QTableWidget& table() { return driven->find<QTableWidget>("hours.table"); }
    [[nodiscard]] std::string figure(int row, int column) {
        return table().item(row, column)->text().toStdString();
    }
    [[nodiscard]] std::string difference(int day) {
        return driven->find<PunchGrid>("card.half1")
            .model()
            ->index(day - 1, PunchModel::Difference)
            .data()
            .toString()
            .toStdString();
    }
};

TEST_F(CardHoursWindow, FollowsAnEditOfTheGridAndOfTheScheduleAtOnce) {
    EXPECT_EQ(figure(kNormalRow, kFirst), "08:00");
    auto& grid = driven->find<PunchGrid>("card.half1");
    EXPECT_TRUE(grid.model()->setData(grid.model()->index(3, 4), QStringLiteral("18:30")));
    EXPECT_EQ(figure(kExtraRow, kFirst), "01:30");
    EXPECT_EQ(figure(kExtraRow, kMonthColumn), "01:30");
    EXPECT_EQ(difference(4), "+01:30");
    EXPECT_EQ(difference(5), "-08:00");
    driven->type("schedule.time4", "18:30");
    EXPECT_EQ(figure(kExtraRow, kFirst), "00:00");
    EXPECT_EQ(difference(4), "");
}

TEST_F(CardHoursWindow, ShowsTheHalfThatIsLookedAtBesideTheMonth) {
    EXPECT_TRUE(table().isColumnHidden(kSecond));
    driven->press(Qt::Key_F6);
    EXPECT_TRUE(table().isColumnHidden(kFirst));
    EXPECT_FALSE(table().isColumnHidden(kSecond));
    driven->window.resize(2200, 1000);
    EXPECT_FALSE(table().isColumnHidden(kFirst));
}

TEST_F(CardHoursWindow, ATypedPercentageChangesTheCaption) {
    desk.person.answers = {Answer::Yes};
    QTimer::singleShot(50ms, &driven->window, [] {
        auto* input = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(input, nullptr);
        input->setTextValue(QStringLiteral("65"));
        input->accept();
    });
    table().setCurrentCell(kExtraRow, kFirst);
    QTest::keyClick(&table(), Qt::Key_F2);
    EXPECT_EQ(figure(kExtraRow, kCaption), "Hora Extra 65%");
    EXPECT_TRUE(desk.files.content.contains("/data/01MedHorExtr001"));
}

}  // namespace
}  // namespace winvrx
