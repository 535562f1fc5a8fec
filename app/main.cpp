#include "app/desktop_setup.h"
#include "app/program.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/file_user_settings.h"
#include "foundation/desk/desktop/system_clock.h"
#include "foundation/files/data_folder.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/lock_file_instance.h"
#include "tools/internet/desktop/system_browser_settings.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString writableFolder(QStandardPaths::StandardLocation location) {
    const QString folder = QStandardPaths::writableLocation(location);
    QDir().mkpath(folder);
    return folder;
}

/// Where the claim on the run lies: beside the data folder, which the users of the machine may
/// share, or in the user's own folder where that one cannot be written.
QString claimPath(const winvrx::Drives& drives, const QString& own) {
    const auto data = pathOnDrive(drives, winvrx::kDefaultDrive, winvrx::kDataFolder);
    const QString beside = QString::fromStdString(data.parent_path().parent_path().string());
    const bool writable = QDir().mkpath(beside) && QFileInfo(beside).isWritable();
    return (writable ? beside : own) + QStringLiteral("/winvrx.lock");
}

}  // namespace

int main(int argc, char** argv) {
#ifdef Q_OS_WIN
    // Title bars and palette follow the dark mode of Windows.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
#endif
    QApplication application(argc, argv);
    winvrx::setUpDesktop(application);

    const QString own = writableFolder(QStandardPaths::AppLocalDataLocation);
    const QString logFile = own + QStringLiteral("/winvrx.log");
    winvrx::FileLog log(logFile);
    const winvrx::SystemDrives drives;
    winvrx::LockFileInstance instance(claimPath(drives, own));
    const winvrx::SystemClock clock;
    winvrx::FileUserSettings settings(own + QStringLiteral("/winvrx.ini"));
    const auto browserFiles = winvrx::systemFiles();
    const auto native = [](const QString& path) {
        return QDir::toNativeSeparators(path).toStdString();
    };
    winvrx::Program program({.drives = drives,
                             .clock = clock,
                             .log = log,
                             .instance = instance,
                             .settings = settings,
                             .programFolder = native(QApplication::applicationDirPath()),
                             .logFile = native(logFile),
                             .browsers = winvrx::systemBrowserSettings(
                                 {*browserFiles, own, QApplication::applicationDirPath()})});
    if (!program.start()) return 0;
    return QApplication::exec();
}
