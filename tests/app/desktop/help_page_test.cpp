// The help against the program itself: every window, command and key has its place in the page,
// and what the pages point at is there.
#include "app/program.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/command_tile.h"
#include "foundation/menu/desktop/menu_window.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "tests/support/commands/filled_office.h"
#include "tests/support/employee_desk.h"
#include "tests/support/memory_settings.h"
#include "tests/support/real_office.h"
#include "tests/support/recording_engine.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/test_printers.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSet>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

const QString kBeforeKey = QStringLiteral("  ");  ///< on a button
const QString kMain = QStringLiteral("instalacao.htm");

QString helpFile(const QString& name) {
    return QApplication::applicationDirPath() + QStringLiteral("/help/") + name;
}

QString textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList found(const QString& text, const char* pattern) {
    QStringList all;
    auto each = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (each.hasNext())
        all << each.next().captured(1);
    return all;
}

/// From the heading with this anchor to the next one of its rank. Empty without it.
QString section(const QString& page, const QString& anchor) {
    const qsizetype at = page.indexOf(QStringLiteral("<a name=\"%1\">").arg(anchor));
    const qsizetype heading = at < 0 ? -1 : page.lastIndexOf(QStringLiteral("<h"), at);
    if (heading < 0) return {};
    const QString next =
        page[heading + 2] == u'3' ? QStringLiteral("<h[23]>") : QStringLiteral("<h2>");
    const qsizetype end = page.indexOf(QRegularExpression(next), at);
    return page.mid(heading, end < 0 ? -1 : end - heading);
}

/// The names that windows of the program give themselves, and so ask the help for.
QStringList namesOfWindows() {
    QStringList names;
    qsizetype windows = 0;
    QDirIterator files(QStringLiteral(WINVRX_SOURCES), {QStringLiteral("*_window.cpp")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.contains(QStringLiteral("/build/")) || path.contains(QStringLiteral("/tests/")))
            continue;
        const QString source = textOf(path);
        windows += source.count(QRegularExpression(QStringLiteral(": (Screen|Register)Window\\(")));
        names += found(source, ": (?:Screen|Register)Window\\([^\";]*\"(\\w+)\"");
    }
    // One hands on the name that it is given.
    EXPECT_EQ(names.size(), windows - 1);
    return names << QStringLiteral("menu");
}

struct NoBrowsers final : BrowserSettings {
    Outcome apply(WebSwitch, bool) override { return {}; }
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch) const override { return {}; }
    [[nodiscard]] bool openBrowser() override { return true; }
};

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

/// The Alt letters that more than one of a window's labels, buttons and pages claim, with them.
QStringList claimedTwice(const QWidget& window) {
    QMap<QString, QStringList> claims;
    const auto claim = [&claims](const QString& text) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (!letter.isEmpty()) claims[letter] << text;
    };
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->buddy() && label->isVisible() && label->isEnabled()) claim(label->text());
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && button->isEnabled()) claim(button->text());
    for (const auto* pages : window.findChildren<QTabBar*>())
        for (int at = 0; pages->isVisible() && at < pages->count(); ++at)
            claim(pages->tabText(at));
    QStringList twice;
    for (const QStringList& texts : claims)
        if (texts.size() > 1) twice << texts.join(QStringLiteral(" / "));
    return twice;
}

/// What the page has to say of a window: texts of its commands, and keys. What a window has wrong.
struct Shown {
    QSet<QString> commands;
    QSet<QString> keys;
    QStringList claimedTwice;
};

/// Goes through the windows of the running program: gives each command of each, and agrees to
/// nothing that it is asked.
class Walk {
  public:
    void through(QAbstractButton& tile) {
        const QScopedValueRollback walking(isWalking_, true);
        lookLater();
        tile.click();
    }
    [[nodiscard]] const QMap<QString, Shown>& windows() const { return windows_; }

  private:
    void lookLater() {
        QTimer::singleShot(1, qApp, [this] { look(); });
    }

    /// What came in front since the command before.
    void look() {
        if (!isWalking_) return;
        lookLater();
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        QWidget* front = QApplication::activeModalWidget();
        if (!front || busy_.contains(front)) return;
        if (auto* box = qobject_cast<QMessageBox*>(front)) return answer(*box);
        auto* window = qobject_cast<ScreenWindow*>(front);
        if (!window) return front->isVisible() ? static_cast<void>(front->close()) : void();
        const QPointer<QWidget> stillThere(front);
        busy_ << front;
        if (!windows_.contains(window->objectName())) visit(*window);
        const QScopedValueRollback leaving(isLeaving_, true);
        if (stillThere) window->close();
        busy_.removeAll(front);
    }

    /// Refuses; but what was changed is given up when its window is left.
    void answer(QMessageBox& box) const {
        QAbstractButton* discard = box.button(QMessageBox::Cancel) ? box.button(QMessageBox::No)
                                                                   : box.button(QMessageBox::Yes);
        if (isLeaving_ && discard)
            discard->click();
        else
            box.reject();
    }

    void visit(ScreenWindow& window) {
        const QString name = window.objectName();
        windows_.insert(name, {{}, {}, claimedTwice(window)});
        for (const auto* button : window.findChildren<QPushButton*>())
            if (button->parentWidget()->objectName() == QLatin1String("stateBar"))
                note(name, button->text().section(kBeforeKey, 0, 0),
                     button->text().section(kBeforeKey, 1));
        for (const auto* menu : window.findChildren<QMenu*>())
            for (const QAction* action : menu->actions())
                note(name, action->text(), action->shortcut().toString());
        const QPointer<ScreenWindow> stillThere(&window);
        QList<QPointer<QToolButton>> commands;
        for (auto* button : window.findChildren<QToolButton*>())
            if (button->parentWidget()->objectName() == QLatin1String("commandBar"))
                commands << button;
        for (const auto& button : commands) {
            if (!stillThere || !button) return;
            if (button->objectName().endsWith(QLatin1String(".help"))) continue;
            note(name, button->accessibleName(), button->text().section(kBeforeKey, 1));
            button->click();
        }
    }

    void note(const QString& window, QString text, const QString& key) {
        text.remove(u'&');
        static const QStringList kLeaving = {QStringLiteral("Sair"), QStringLiteral("Fechar"),
                                             QStringLiteral("Cancelar")};
        if (kLeaving.contains(text) || text.isEmpty()) return;
        windows_[window].commands << text;
        if (!key.isEmpty()) windows_[window].keys << key;
    }

    QMap<QString, Shown> windows_;
    QList<QWidget*> busy_;
    bool isWalking_ = false;
    bool isLeaving_ = false;
};

class HelpPage : public ::testing::Test {
  protected:
    const QString page_ = textOf(helpFile(kMain));
};

TEST_F(HelpPage, HasASectionWithAParagraphAndAKeyboardLineForEveryWindow) {
    for (const QString& name : namesOfWindows()) {
        const QString text = section(page_, name);
        const QString keyboard = found(text, "<p class=\"teclado\">([^§]*?)</p>").join(QString());
        EXPECT_TRUE(text.contains(QStringLiteral("<p>"))) << name.toStdString();
        EXPECT_TRUE(keyboard.contains(QStringLiteral("<kbd>"))) << name.toStdString();
        EXPECT_TRUE(page_.contains(QStringLiteral("<a href=\"#%1\">").arg(name)) ||
                    name == QLatin1String("relatorio"))
            << name.toStdString() << " is not in the index";
    }
}

TEST_F(HelpPage, SpeaksOfEveryCommandAndKeyThatTheProgramShows) {
    testing::ScratchFolder folder;
    testing::fill(folder.path(), testing::filledOffice());
    const FolderDrives drives(folder.path().string());
    const FixedClock clock({*parseDate("15/03/2024"), *parseTime("10:20")});
    testing::RecordedLog log;
    OnlyCopy instance;
    testing::MemorySettings settings;
    settings.kept = {{"empresa", "01"}, {"mes", "03-2024"}};
    ProgramDesk desk{drives,   clock,    log,
                     instance, settings, QApplication::applicationDirPath().toStdString()};
    desk.engine = [](auto) { return std::make_unique<testing::RecordingEngine>(); };
    desk.editor = [](const auto&) { return std::make_unique<testing::TestEditor>(); };
    desk.printers = [] { return std::make_unique<testing::TestPrinters>(); };
    desk.writer = [] { return std::make_unique<testing::RecordingWordProcessor>(); };
    desk.browsers = std::make_shared<NoBrowsers>();
    Program program(desk);
    ASSERT_TRUE(program.start());
    program.window().findChild<QPushButton*>(QStringLiteral("menu.confirmMonth"))->click();
    Walk walk;
    const QString menu = section(page_, QStringLiteral("menu"));
    for (auto* tile : program.window().findChildren<CommandTile*>()) {
        EXPECT_TRUE(menu.contains(QStringLiteral(">%1</a>").arg(tile->text().remove(u'&'))))
            << tile->text().toStdString();
        if (tile->objectName() != QLatin1String("menu.help.open")) walk.through(*tile);
    }
    EXPECT_GE(walk.windows().size(), 30) << walk.windows().keys().join(u' ').toStdString();
    for (auto window = walk.windows().begin(); window != walk.windows().end(); ++window) {
        const QString text = section(page_, window.key());
        // A company has more fields than their captions have letters: there Alt goes round.
        EXPECT_TRUE(window->claimedTwice.isEmpty() || window.key() == QLatin1String("empresa"))
            << window.key().toStdString() << ": "
            << window->claimedTwice.join(QStringLiteral("; ")).toStdString();
        for (const QString& command : window->commands)
            EXPECT_TRUE(text.contains(QStringLiteral("<b>%1</b>").arg(command.toHtmlEscaped())))
                << window.key().toStdString() << ": " << command.toStdString();
        for (const QString& key : window->keys)
            EXPECT_TRUE(text.contains(QStringLiteral("<kbd>%1</kbd>").arg(key)))
                << window.key().toStdString() << ": " << key.toStdString();
    }
}

TEST_F(HelpPage, PointsOnlyAtWhatIsThereAndShowsEveryPicture) {
    const QDir folder(QStringLiteral(WINVRX_SOURCES "/resources/help"));
    QSet<QString> used = {kMain};
    for (const QString& name : folder.entryList({QStringLiteral("*.htm")})) {
        const QString text = textOf(folder.filePath(name));
        for (const QString& picture : found(text, "src=\"([^\"]*)\""))
            used << picture;
        for (const QString& link : found(text, "href=\"([^\"]*)\"")) {
            const QString file = link.section(u'#', 0, 0);
            const QString anchor = link.section(u'#', 1);
            if (!file.isEmpty()) used << file;
            const QString target = file.isEmpty() ? text : textOf(folder.filePath(file));
            EXPECT_TRUE(!target.isEmpty() &&
                        (anchor.isEmpty() || !section(target, anchor).isEmpty()))
                << name.toStdString() << ": " << link.toStdString();
        }
        const QStringList anchors = found(text, "<a name=\"([^\"]*)\">");
        EXPECT_EQ(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size());
    }
    QStringList shown = used.values();
    shown.sort();
    EXPECT_EQ(shown.join(u' ').toStdString(),
              folder.entryList(QDir::Files, QDir::Name).join(u' ').toStdString());
}

}  // namespace
}  // namespace winvrx
