#include "foundation/desk/desktop/desktop_browser.h"

#include "foundation/desk/desktop/help_window.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace winvrx {

namespace {

/// A child of the modal window, so that it can be used while that is open.
void showHelp(const QUrl& section) {
    auto* window = new HelpWindow(section, QApplication::activeModalWidget());
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

}  // namespace

bool DesktopBrowser::openHelp() {
    const QString page = QDir(helpFolder_).filePath(QStringLiteral("instalacao.htm"));
    if (!QFileInfo::exists(page)) return false;
    if (qobject_cast<HelpWindow*>(QApplication::activeWindow())) return true;
    QUrl section = QUrl::fromLocalFile(page);
    if (const QWidget* asking = QApplication::activeWindow())
        section.setFragment(asking->objectName());
    if (!hasHandlerOf(QStringLiteral("text/html")) || !QDesktopServices::openUrl(section))
        showHelp(section);
    return true;
}

bool DesktopBrowser::open(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

bool DesktopBrowser::openPage(const std::string& address) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

#ifdef Q_OS_WIN

bool hasHandlerOf(const QString&) {
    return true;
}

#else

bool hasHandlerOf(const QString& mimeType) {
    constexpr int kPatience = 5'000;  // milliseconds
    QProcess query;
    query.start(QStringLiteral("xdg-mime"),
                {QStringLiteral("query"), QStringLiteral("default"), mimeType});
    return query.waitForFinished(kPatience) && !query.readAllStandardOutput().trimmed().isEmpty();
}

#endif

}  // namespace winvrx
