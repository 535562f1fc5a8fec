#include "app/desktop_setup.h"
#include "app/program.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/system_clock.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/lock_file_instance.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

QString writableFolder(QStandardPaths::StandardLocation location) {
    const QString folder = QStandardPaths::writableLocation(location);
    QDir().mkpath(folder);
    return folder;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    winvrx::setUpDesktop(application);

    const QString own = writableFolder(QStandardPaths::AppLocalDataLocation);
    winvrx::FileLog log(own + QStringLiteral("/winvrx.log"));
    winvrx::LockFileInstance instance(own + QStringLiteral("/winvrx.lock"));
    const winvrx::SystemDrives drives;
    const winvrx::SystemClock clock;
    winvrx::Program program(
        {drives, clock, log, instance,
         QDir::toNativeSeparators(QApplication::applicationDirPath()).toStdString()});
    if (!program.start()) return 0;
    return QApplication::exec();
}
