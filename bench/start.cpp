// From process start to the main window shown, with 99 companies. Beside it an empty window, and,
// to tell Qt's loading of fonts from our own work, a window with one word.
#include "bench/figure.h"
#include "bench/office.h"
#include "foundation/files/desktop/system_drives.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

using namespace winvrx;

constexpr int kRounds = 15;

/// Milliseconds until the child says that its window is shown; negative when it does not.
double untilShown(const QString& program, const QStringList& arguments) {
    QElapsedTimer timer;
    timer.start();
    QProcess child;
    child.start(program, arguments);
    const bool shown = child.waitForReadyRead(30'000) && child.readAllStandardOutput() == "shown\n";
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    child.waitForFinished();
    return shown && child.exitCode() == 0 ? milliseconds : -1;
}

void fill(const std::filesystem::path& driveRoot) {
    const auto files = systemFiles();
    const DataFolder folder('C', pathOnDrive(FolderDrives(driveRoot), 'C', kDataFolder));
    files->makeFolder(folder.path());
    recordCompanies({*files, folder});
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    QTemporaryDir drive;
    fill(drive.path().toStdString());
    const QString program = folder + QStringLiteral("/probe_start");
    const QString bare = folder + QStringLiteral("/floor_start");
    Figure empty("start");
    Figure oneWord("start-one-word");
    for (int round = 0; round <= kRounds; ++round) {
        const double times[] = {untilShown(program, {drive.path()}), untilShown(bare, {}),
                                untilShown(bare, {QStringLiteral("Winvrx")})};
        if (*std::min_element(std::begin(times), std::end(times)) < 0) {
            std::fputs("bench start: a window was not shown\n", stderr);
            return 1;
        }
        empty.add(times[0], times[1]);
        oneWord.add(times[0], times[2]);
    }
    empty.report();
    oneWord.report();
    return 0;
}
