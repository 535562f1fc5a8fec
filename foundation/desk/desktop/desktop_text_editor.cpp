#include "foundation/desk/desktop/desktop_text_editor.h"

#include "foundation/desk/desktop/desktop_browser.h"
#include "foundation/desk/desktop/text_viewer_window.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"

#include <QApplication>
#include <QFileInfo>
#include <QProcess>

namespace winvrx {

namespace {

#ifdef Q_OS_WIN

bool openedByDesktop(const QString& path) {
    return QProcess::startDetached(QStringLiteral("notepad.exe"), {path});
}

#else

constexpr int kPatience = 5'000;      // milliseconds
constexpr int kTimeToRefuse = 1'000;  // milliseconds

/// Some desktops keep xdg-open running as long as the editor is open, so what has not refused by
/// now has opened it.
bool openedByDesktop(const QString& path) {
    if (!hasHandlerOf(QStringLiteral("text/plain"))) return false;
    auto* opener = new QProcess(qApp);
    QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
    opener->start(QStringLiteral("xdg-open"), {path});
    if (!opener->waitForStarted(kPatience)) return false;
    return !opener->waitForFinished(kTimeToRefuse) || opener->exitCode() == 0;
}

#endif

}  // namespace

bool DesktopTextEditor::open(const std::filesystem::path& file) {
    return openedByDesktop(QString::fromStdU16String(file.u16string())) || viewer_.open(file);
}

bool TextViewer::open(const std::filesystem::path& file) {
    const auto bytes = files_.read(file);
    if (!bytes) return false;
    const QString title = QFileInfo(QString::fromStdU16String(file.u16string())).completeBaseName();
    // A child of the modal window, so that it can be used while that is open.
    auto* viewer = new TextViewerWindow(title, toQt(decodeWindows1252(*bytes)),
                                        QApplication::activeModalWidget());
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->show();
    return true;
}

}  // namespace winvrx
