#include "foundation/desktop/desktop_text_editor.h"

#include "foundation/desktop/qt_text.h"
#include "foundation/desktop/text_viewer_window.h"
#include "foundation/text.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace winvrx {

namespace {

/// The program that is given the file's path; empty when the desktop has no editor.
QString editorProgram() {
#ifdef Q_OS_WIN
    return QStringLiteral("notepad.exe");
#else
    constexpr int kPatience = 5'000;  // milliseconds
    QProcess query;
    query.start(QStringLiteral("xdg-mime"),
                {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("text/plain")});
    if (!query.waitForFinished(kPatience) || query.readAllStandardOutput().trimmed().isEmpty())
        return {};
    return QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
#endif
}

}  // namespace

bool DesktopTextEditor::open(const std::filesystem::path& file) {
    const QString path = QString::fromStdU16String(file.u16string());
    const QString program = editorProgram();
    if (!program.isEmpty() && QProcess::startDetached(program, {path})) return true;
    return viewer_.open(file);
}

bool TextViewer::open(const std::filesystem::path& file) {
    const auto bytes = files_.read(file);
    if (!bytes) return false;
    const QString title = QFileInfo(QString::fromStdU16String(file.u16string())).completeBaseName();
    // A child of the modal window, so that it can be used while that is open.
    auto* viewer = new TextViewerWindow(title, toQt(decodeWindows1252(*bytes)),
                                        QApplication::activeModalWidget());
    QObject::connect(viewer, &ScreenWindow::helpRequested, viewer,
                     [this] { (void)browser_.openHelp(); });
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->show();
    return true;
}

}  // namespace winvrx
