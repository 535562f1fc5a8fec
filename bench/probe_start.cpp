// The program's own start, up to the first painted main window: run by bench_start.
#include "app/desktop_setup.h"
#include "app/program.h"
#include "foundation/desk/desktop/file_log.h"
#include "foundation/desk/desktop/file_user_settings.h"
#include "foundation/desk/desktop/system_clock.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/menu_window.h"

#include "tests/support/only_copy.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    winvrx::setUpDesktop(application);
    winvrx::FileLog log(QString::fromLocal8Bit(argv[1]) + QStringLiteral("/winvrx.log"));
    const winvrx::FolderDrives drives(argv[1]);
    const winvrx::SystemClock clock;
    winvrx::testing::OnlyCopy instance;
    winvrx::FileUserSettings settings(QString::fromLocal8Bit(argv[1]) +
                                      QStringLiteral("/winvrx.ini"));
    winvrx::Program program(
        {drives, clock, log, instance, settings, QApplication::applicationDirPath().toStdString()});
    if (!program.start()) return 1;
    QApplication::processEvents();
    std::puts("shown");
    std::fflush(stdout);
    std::_Exit(program.window().isVisible() ? 0 : 1);
}
