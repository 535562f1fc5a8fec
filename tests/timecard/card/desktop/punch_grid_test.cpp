#include "timecard/card/desktop/punch_grid.h"

#include "tests/support/card_screen.h"

namespace winvrx {
namespace {

using testing::CardScreen;
using testing::kPunches;

struct PunchGridTest : CardScreen {};

TEST_F(PunchGridTest, LeaveNoTimeCutWhateverTheFont) {
    desk.file(kPunches) = "  \r\n04/seg/mar08:0012:0013:0025:00\r\n05/ter/mar08:00\r\n";
    openOn(0);
    PunchModel model(screen, HalfMonth::First, nullptr);
    const PunchGrid grid(&model);
    QStyleOptionViewItem option;
    option.initFrom(&grid);
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < PunchModel::Columns; ++column) {
            const QModelIndex at = model.index(row, column);
            const int needed = grid.itemDelegate()->sizeHint(option, at).width();
            EXPECT_TRUE(column == PunchModel::Situation || grid.columnWidth(column) > needed)
                << at.data().toString().toStdString() << ": " << grid.columnWidth(column);
        }
}

TEST_F(PunchGridTest, EveryEditRepaintsTheDayToItsDifference) {
    openOn(0);
    PunchModel model(screen, HalfMonth::First, nullptr);
    const QModelIndex cell = model.index(3, PunchModel::FirstCell);
    int repainted = 0;
    QObject::connect(&model, &PunchModel::dataChanged, &model,
                     [&](const QModelIndex& from, const QModelIndex& to) {
                         repainted += from.column() == PunchModel::Day &&
                                      to.column() == PunchModel::Difference;
                     });
    EXPECT_TRUE(model.setData(cell, QStringLiteral("8"), Qt::EditRole));
    model.clear(QItemSelectionRange(cell));
    EXPECT_EQ(repainted, 2);
}

}  // namespace
}  // namespace winvrx
