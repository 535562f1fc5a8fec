// How many keys the month's work takes, counted in front of the program's own windows and boxes.
#include "app/program.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/menu_window.h"
#include "tests/support/commands/filled_office.h"
#include "tests/support/memory_settings.h"
#include "tests/support/real_office.h"
#include "tests/support/test_workplace.h"

#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>

namespace winvrx {
namespace {

using Keys = std::deque<QKeyCombination>;

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

/// Presses keys where the focus is, one after the other, also in the boxes that they open.
class Keyboard {
  public:
    void press(Keys keys) {
        waiting_ = std::move(keys);
        pressNext();
        const auto done = [this] { return waiting_.empty() && !pressing_; };
        EXPECT_TRUE(QTest::qWaitFor(done, 20'000));
        waiting_.clear();
        QTest::qWait(kPause);
    }

  private:
    static constexpr int kPause = 150;  ///< longer than a button takes to act on its letter

    /// Waits until the box answered last is gone and the window in front has the focus.
    void pressNext() {
        if (waiting_.empty()) return;
        QTimer::singleShot(kPause, qApp, [this] { pressNext(); });
        QWidget* focus = QApplication::focusWidget();
        QWidget* front = QApplication::activeModalWidget();
        if (front && front == answered_) return;
        if (!focus || (front && focus->window() != front)) {
            if (front) front->activateWindow();
            return;
        }
        const QKeyCombination key = waiting_.front();
        waiting_.pop_front();
        answered_ = qobject_cast<QMessageBox*>(front);
        ++pressing_;
        QTest::keyClick(focus, key.key(), key.keyboardModifiers());
        --pressing_;
    }

    Keys waiting_;
    QPointer<QWidget> answered_;
    int pressing_ = 0;
};

class KeyCount : public ::testing::Test {
  protected:
    void SetUp() override {
        testing::FileTable office = testing::filledOffice();
        std::erase_if(office, [](const auto& file) { return file.first.ends_with(".bdx"); });
        office.erase(testing::inDataFolder("DataIde.ivc"));
        for (const char* name : {"01PadrHor001.pdx", "01PadrHor003.pdx"})
            office[testing::inDataFolder(name)] = "08:0012:0013:0017:00\r\n";
        testing::fill(folder_.path(), office);
        settings_.kept = {{"empresa", "01"}, {"mes", "03-2024"}};
        program_ = std::make_unique<Program>(
            ProgramDesk{drives_, clock_, log_, instance_, settings_, folder_.path()});
        ASSERT_TRUE(program_->start());
        program_->window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program_->window()));
    }
    [[nodiscard]] bool has(const std::string& file) const {
        return testing::recordsBelow(folder_.path()).contains(testing::inDataFolder(file));
    }

    testing::ScratchFolder folder_;
    FolderDrives drives_{folder_.path().string()};
    FixedClock clock_{{*parseDate("15/03/2024"), *parseTime("10:20")}};
    testing::RecordedLog log_;
    OnlyCopy instance_;
    testing::MemorySettings settings_;
    std::unique_ptr<Program> program_;
    Keyboard keyboard_;
};

/// One key from the start to the month, two a person, and for a list the command and its three
/// boxes.
TEST_F(KeyCount, NoTaskTakesMoreKeysThanSettled) {
    struct Task {
        const char* what;
        Keys keys;
        const char* absent;
        const char* done;
    };
    const char* const first = "01001-03-2024.bdx";
    const char* const second = "01002-03-2024.bdx";
    const char* const third = "01003-03-2024.bdx";
    const auto fulfil = [this](const Task& task) {
        SCOPED_TRACE(task.what);
        EXPECT_FALSE(has(task.absent));
        keyboard_.press(task.keys);
        EXPECT_TRUE(has(task.done));
    };
    constexpr auto kApplyAndGoOn = Qt::CTRL | Qt::Key_F9;
    constexpr auto kApplyToAll = Qt::SHIFT | Qt::Key_F9;
    constexpr auto kEnter = QKeyCombination(Qt::Key_Return);
    fulfil({"from the start to the month", {kEnter}, "DataIde.ivc", "DataIde.ivc"});
    QTimer::singleShot(0, qApp, [&] {
        fulfil({"the first person", {kApplyAndGoOn, kEnter}, first, first});
        fulfil({"the next person", {kApplyAndGoOn, kEnter}, second, second});
        fulfil({"a list with cards",
                {kApplyToAll, QKeyCombination(Qt::Key_O), QKeyCombination(Qt::Key_O), kEnter},
                third,
                third});
        for (const char* card : {first, second, third})
            std::filesystem::remove(folder_.path() / testing::inDataFolder(card));
        fulfil({"a list without cards", {kApplyToAll, kEnter, kEnter, kEnter}, first, third});
        keyboard_.press({QKeyCombination(Qt::Key_Escape)});
    });
    QTest::keyClick(&program_->window(), Qt::Key_F5);
    program_->window().close();
    EXPECT_EQ(settings_.value("mes"), "03-2024");
    EXPECT_FALSE(has("DataIde.ivc"));
}

}  // namespace
}  // namespace winvrx
