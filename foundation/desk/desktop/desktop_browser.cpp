#include "foundation/desk/desktop/desktop_browser.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace winvrx {

bool DesktopBrowser::openHelp() {
    const QString page = QDir(helpFolder_).filePath(QStringLiteral("instalacao.htm"));
    return QFileInfo::exists(page) && QDesktopServices::openUrl(QUrl::fromLocalFile(page));
}

bool DesktopBrowser::open(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
}

}  // namespace winvrx
