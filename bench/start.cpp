// From process start to the main window shown, with 99 companies. Beside it an empty window, and,
// to tell Qt's loading of fonts from our own work, a window with one word.
#include "bench/timing.h"
#include "foundation/files/desktop/system_drives.h"
#include "foundation/register/company_register.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using winvrx::report;

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
    winvrx::companyFile({*files, folder}).save(lines);
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    QTemporaryDir drive;
    recordCompanies(drive.path().toStdString());
    const QString program = folder + QStringLiteral("/probe_start");
    const QString bare = folder + QStringLiteral("/floor_start");
    std::vector<double> ours;
    std::vector<double> empty;
    std::vector<double> oneWord;
    for (int round = 0; round <= kRounds; ++round) {
        const double times[] = {untilShown(program, {drive.path()}), untilShown(bare, {}),
                                untilShown(bare, {QStringLiteral("Winvrx")})};
        if (*std::min_element(std::begin(times), std::end(times)) < 0) {
            std::fputs("bench start: a window was not shown\n", stderr);
            return 1;
        }
        if (round == 0) continue;  // the first round fills the disk cache
        ours.push_back(times[0]);
        empty.push_back(times[1]);
        oneWord.push_back(times[2]);
    }
    report("start", ours, empty);
    report("start-one-word", ours, oneWord);
    return 0;
}
