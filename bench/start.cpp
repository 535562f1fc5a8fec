// From process start to the main window shown, with 99 companies; beside it an empty window.
#include "foundation/company_register.h"
#include "foundation/desktop/system_drives.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

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

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void recordCompanies(const std::filesystem::path& driveRoot) {
    const auto files = winvrx::systemFiles();
    const winvrx::FolderDrives drives(driveRoot);
    const winvrx::DataFolder folder('C', winvrx::pathOnDrive(drives, 'C', winvrx::kDataFolder));
    files->makeFolder(folder.path());
    std::vector<winvrx::CompanyLine> lines;
    for (int number = 1; number <= winvrx::CompanyCode::kHighest; ++number) {
        winvrx::Company company = winvrx::sampleCompany(*winvrx::parseDate("15/03/2024"));
        company.code = winvrx::CompanyCode::fromNumber(number)->text();
        company.name = "PADARIA E CONFEITARIA NÚMERO " + company.code + " LTDA";
        lines.push_back({winvrx::encode(company), company});
    }
    winvrx::saveCompanies(*files, folder, lines);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    QTemporaryDir drive;
    recordCompanies(drive.path().toStdString());
    std::vector<double> ours;
    std::vector<double> floor;
    for (int round = 0; round <= kRounds; ++round) {
        const double program = untilShown(folder + QStringLiteral("/probe_start"), {drive.path()});
        const double empty = untilShown(folder + QStringLiteral("/floor_start"), {});
        if (program < 0 || empty < 0) {
            std::fputs("bench start: a window was not shown\n", stderr);
            return 1;
        }
        if (round == 0) continue;  // the first round fills the disk cache
        ours.push_back(program);
        floor.push_back(empty);
    }
    std::printf("bench start ours=%.1f floor=%.1f ratio=%.2f\n", median(ours), median(floor),
                median(ours) / median(floor));
    return 0;
}
