// Text reports in the desktop's editor: a stand-in registered as the handler of plain text, and the
// program's own viewer where there is none.
#include "foundation/desk/desktop/desktop_text_editor.h"

#include "foundation/desk/desktop/desktop_browser.h"
#include "foundation/desk/desktop/text_viewer_window.h"
#include "tests/support/employee_desk.h"
#include "tests/support/printed_text.h"
#include "tests/support/window_driver.h"

#include <QFile>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::EmployeeDesk;

/// A desktop of this process alone, with or without an editor that notes what it is given.
class DesktopOfItsOwn {
  public:
    DesktopOfItsOwn() {
        set("XDG_CONFIG_HOME", "config");
        set("XDG_DATA_HOME", "data");
        set("XDG_CONFIG_DIRS", "none");
        before_.push_back({"DISPLAY", qgetenv("DISPLAY")});
        qputenv("DISPLAY", ":nobody");
    }
    DesktopOfItsOwn(const DesktopOfItsOwn&) = delete;
    DesktopOfItsOwn& operator=(const DesktopOfItsOwn&) = delete;
    ~DesktopOfItsOwn() {
        for (const auto& [name, value] : before_)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    /// Applications of the system are not seen any more.
    void forgetTheSystem() { set("XDG_DATA_DIRS", "none"); }

    void registerEditor() {
        write("editor", "#!/bin/sh\necho \"$1\" > \"" + path("opened").toUtf8() + "\"\n");
        QFile::setPermissions(path("editor"), QFile::ReadOwner | QFile::ExeOwner);
        write("data/applications/stand-in.desktop",
              "[Desktop Entry]\nType=Application\nName=Editor\nMimeType=text/plain;\nExec=" +
                  path("editor").toUtf8() + " %f\n");
        const QByteArray list = "[Default Applications]\ntext/plain=stand-in.desktop\n";
        write("data/applications/mimeapps.list", list);
        write("config/mimeapps.list", list);
    }

    [[nodiscard]] QByteArray opened() const {
        QFile file(path("opened"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
    [[nodiscard]] QString path(const char* name) const {
        return folder_.filePath(QString::fromLatin1(name));
    }
    void write(const char* name, const QByteArray& bytes) const {
        std::filesystem::create_directories(
            std::filesystem::path(path(name).toStdString()).parent_path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error(std::string("cannot write ") + name);
    }

  private:
    void set(const char* name, const char* folder) {
        before_.push_back({name, qgetenv(name)});
        qputenv(name, path(folder).toUtf8());
    }

    QTemporaryDir folder_;
    std::vector<std::pair<const char*, QByteArray>> before_;
};

QWidget* viewerShown(const char* name = "relatorio") {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String(name) && window->isVisible()) return window;
    return nullptr;
}

TEST(DesktopTextEditor, HandsTheFileToTheRegisteredEditor) {
    DesktopOfItsOwn desktop;
    desktop.registerEditor();
    desktop.write("01RelAtivos.txt", " RELAT\xD3RIO DE COLABORADORES ATIVOS - 15/03/2024\r\n");
    EmployeeDesk desk;
    DesktopTextEditor editor(desk.files);
    ASSERT_TRUE(editor.open(desktop.path("01RelAtivos.txt").toStdString()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop.opened().isEmpty(); }));
    EXPECT_EQ(desktop.opened(), desktop.path("01RelAtivos.txt").toUtf8());
    EXPECT_EQ(viewerShown(), nullptr);
}

TEST(DesktopBrowser, ShowsTheHelpOfTheScreenItselfWithoutAHandler) {
    DesktopOfItsOwn desktop;
    desktop.forgetTheSystem();
    std::vector<int> places;
    for (const char* screen : {"menu", "empregados", "cartaoPontos"}) {
        QWidget asking;
        asking.setObjectName(QLatin1String(screen));
        const testing::WindowDriver shown(asking);
        DesktopBrowser browser(QApplication::applicationDirPath() + QStringLiteral("/help"));
        ASSERT_TRUE(browser.openHelp());
        QWidget* help = viewerShown("ajuda");
        ASSERT_NE(help, nullptr);
        QApplication::processEvents();
        places.push_back(help->findChild<QTextBrowser*>()->verticalScrollBar()->value());
        help->close();
    }
    EXPECT_LT(places[0], places[1]);
    EXPECT_LT(places[1], places[2]);
    EXPECT_FALSE(DesktopBrowser(desktop.path("nowhere")).openHelp());
}

TEST(DesktopTextEditor, ShowsTheReportItselfWithoutAHandler) {
    DesktopOfItsOwn desktop;
    desktop.forgetTheSystem();
    EmployeeDesk desk;
    desk.file("01RelAtivos.txt") = "Fun\xE7\xE3o\r\n";
    DesktopTextEditor viewer(desk.files);
    EXPECT_FALSE(viewer.open("/data/missing.txt"));
    ASSERT_TRUE(viewer.open("/data/01RelAtivos.txt"));
    QWidget* shown = viewerShown();
    ASSERT_NE(shown, nullptr);
    const auto* text = shown->findChild<QPlainTextEdit*>(QStringLiteral("relatorio.text"));
    EXPECT_EQ(toUtf8(text->toPlainText()), "Função\n");
    EXPECT_EQ(testing::WindowDriver(*shown).namelessWidgets(), "");
    shown->close();
}

TEST(TextViewerWindow, PrintsTheReportInItsColumns) {
    struct Case {
        int width;
        double pageWidth;  ///< points
        double letter;     ///< points from one column to the next
        int pages;
    };
    constexpr double kA4Short = 595;
    constexpr double kA4Long = 842;
    for (const Case& one : {Case{78, kA4Short, 6, 2}, Case{140, kA4Long, 4.8, 2},
                            Case{141, kA4Long, 4.8, 2}, Case{200, kA4Long, 3.78, 2}}) {
        QString report = QStringLiteral("(Usar Fonte: Courier New)\n");
        for (int line = 1; line <= 100; ++line)
            report += QStringLiteral("%1|\n").arg(line, one.width - 1);
        const TextViewerWindow viewer(QStringLiteral("01RelAtivos"), report);
        const QTemporaryDir folder;
        const QString pdf = folder.filePath(QStringLiteral("report.pdf"));
        {
            QPdfWriter paper(pdf);
            paper.setPageSize(QPageSize(QPageSize::A4));
            viewer.printOn(paper);
        }
        const auto words = testing::printedWords(pdf);
        const auto first = testing::wordOf(words, QStringLiteral("1|"));
        const auto last = testing::wordOf(words, QStringLiteral("100|"));
        EXPECT_EQ(first.page, 1);
        EXPECT_EQ(last.page, one.pages) << one.width;
        EXPECT_NEAR(first.right, last.right, 0.5);
        constexpr double kMargin = 42.5;
        EXPECT_NEAR(first.right, kMargin + one.width * one.letter, 4) << one.width;
        EXPECT_LT(first.right, one.pageWidth - kMargin + 1) << one.width;
        EXPECT_TRUE(
            testing::printedText(pdf).contains(QStringLiteral("Página %1 de %1").arg(one.pages)))
            << one.width;
    }
}

}  // namespace
}  // namespace winvrx
