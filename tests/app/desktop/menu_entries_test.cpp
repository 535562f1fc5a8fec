#include "app/menu_entries.h"

#include "foundation/copies/safety_copies.h"
#include "foundation/menu/desktop/command_board.h"
#include "foundation/menu/desktop/command_tile.h"
#include "foundation/values/desktop/qt_text.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/employee_desk.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/recording_engine.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"

#include <QScrollBar>

#include <gmock/gmock.h>

#include <map>

namespace winvrx {
namespace {

struct MenuEntriesTest : ::testing::Test {
    testing::TestWorkplace desk;
    testing::TestBrowser browser;
    testing::TestEditor editor;
    testing::RecordingEngine engine;
    const testing::PlainArchiver archiver;
    SafetyCopies copies{desk.files, archiver, desk.log};
    testing::TestPrinters printers;
    testing::RecordingWordProcessor writer;
    const MenuEntries entries =
        menuEntries(desk.at, {{browser, engine, printers, {}}, editor, writer, copies, "", {}});
};

TEST_F(MenuEntriesTest, NoTwoTilesShareAKeyALetterOrAName) {
    std::map<std::string, std::vector<std::string>> owners;
    for (const MenuEntry& entry : entries) {
        const MenuTile& tile = entry.tile;
        const std::string name = tile.name;
        owners["name " + name].push_back(name);
        if (!tile.key.isEmpty()) owners["key " + toUtf8(tile.key.toString())].push_back(name);
        const auto letter = tile.title.indexOf(QLatin1Char('&')) + 1;
        if (letter > 0)
            owners["Alt+" + toUtf8(tile.title.mid(letter, 1).toUpper())].push_back(name);
    }
    EXPECT_GT(owners.size(), 20U);
    for (const auto& [what, names] : owners)
        EXPECT_EQ(names.size(), 1U) << what << ": " << ::testing::PrintToString(names);
}

TEST_F(MenuEntriesTest, EveryTileIsInSightOnTheScreensOfAnOffice) {
    CommandBoard board(entries, nullptr);
    board.show();
    // What the window leaves between its sides on 1280 x 720 and on 1024 x 768.
    for (const QSize room : {QSize(660, 608), QSize(460, 656)}) {
        board.resize(room);
        EXPECT_EQ(board.verticalScrollBar()->maximum(), 0) << room.width();
        for (const CommandTile* tile : board.tiles())
            EXPECT_GE(tile->width(), tile->sizeHint().width()) << room.width();
    }
}

}  // namespace
}  // namespace winvrx
