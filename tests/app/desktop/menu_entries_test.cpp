#include "app/menu_entries.h"

#include "foundation/copies/safety_copies.h"
#include "foundation/values/desktop/qt_text.h"
#include "tests/support/employee_desk.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/recording_engine.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/writing_commands.h"

#include <gmock/gmock.h>

#include <map>

namespace winvrx {
namespace {

TEST(MenuEntries, NoTwoTilesShareAKeyALetterOrAName) {
    testing::TestWorkplace desk;
    testing::TestBrowser browser;
    testing::TestEditor editor;
    testing::RecordingEngine engine;
    const testing::PlainArchiver archiver;
    SafetyCopies copies(desk.files, archiver, desk.log);
    testing::TestPrinters printers;
    testing::RecordingWordProcessor writer;
    std::map<std::string, std::vector<std::string>> owners;
    for (const MenuEntry& entry :
         menuEntries(desk.at, {{browser, engine, printers, {}}, editor, writer, copies, "", {}})) {
        const std::string name = toUtf8(entry.objectName);
        owners["name " + name].push_back(name);
        if (!entry.key.isEmpty()) owners["key " + toUtf8(entry.key.toString())].push_back(name);
        const auto letter = entry.title.indexOf(QLatin1Char('&')) + 1;
        if (letter > 0)
            owners["Alt+" + toUtf8(entry.title.mid(letter, 1).toUpper())].push_back(name);
    }
    EXPECT_GT(owners.size(), 20U);
    for (const auto& [what, names] : owners)
        EXPECT_EQ(names.size(), 1U) << what << ": " << ::testing::PrintToString(names);
}

}  // namespace
}  // namespace winvrx
