// Ten thousand record files to an empty folder of another drive by the window's own command, which
// reads both sides, writes, flushes, compares and renames; beside `cp -a`, a flush and `diff -r` of
// the same files. Both on the disk on which the bench is run.
//
// `transfer-10000`: both compare with what the disk holds. `transfer-10000-cached`, without a
// limit: `diff` reads the copy from the system's memory, where `cp` has just left it.

#include "bench/desk.h"
#include "bench/figure.h"
#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/register/company.h"
#include "foundation/values/text.h"
#include "tests/support/scratch_folder.h"
#include "tools/transfer/transferencia.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace winvrx;
using std::filesystem::path;

constexpr int kFiles = 10'000;
constexpr int kRounds = 5;
constexpr double kMostRatio = 1.5;

/// A folder for each drive beside the place of the run: the system's temporary one may be memory.
class BenchDrives final : public Drives {
  public:
    BenchDrives() { std::filesystem::create_directories(records('C')); }
    [[nodiscard]] path root(char letter) const override {
        return scratch_.path() / std::string(1, letter);
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'E', 'F'}; }
    [[nodiscard]] path records(char letter) const {
        return pathOnDrive(*this, letter, kDataFolder);
    }
    void makeEmpty(char letter) const {
        std::filesystem::remove_all(root(letter));
        std::filesystem::create_directories(root(letter));
    }

  private:
    testing::ScratchFolder scratch_{std::filesystem::current_path()};
};

/// Of the size of a month's punch record, no two the same.
void fill(const path& folder, Disk& disk) {
    constexpr std::size_t kRecordBytes = 4 + 31 * 62;
    Company company;
    company.code = "01";
    company.name = "PADARIA";
    disk.write(folder / "01Empresa", encode(company) + "\r\n");
    for (int number = 1; number < kFiles; ++number) {
        const std::string name = "01" + padded(number % 999, 3) + "-" + padded(number / 999, 2);
        disk.write(folder / (name + "-2024.bdx"),
                   name + std::string(kRecordBytes - name.size(), '0'));
    }
}

std::vector<path> filesIn(const path& folder, const Disk& disk) {
    std::vector<path> files;
    for (const std::string& name : disk.names(folder))
        files.push_back(folder / name);
    return files;
}

bool runs(const std::string& command) {
    return std::system(command.c_str()) == 0;  // NOLINT(cert-env33-c): names of our own
}

/// Milliseconds of one round of `cp -a`, a flush and `diff -r`.
struct PlainCopy {
    bool done;
    double copied;
    double compared;        ///< with what the disk holds
    double comparedCached;  ///< with what the system's memory holds
};

PlainCopy copyPlainly(const path& from, const path& to, const Disk& disk) {
    const std::string both = "'" + from.string() + "' '" + to.string() + "'";
    PlainCopy copy{true, 0, 0, 0};
    const auto run = [&](const std::string& command) { copy.done = runs(command) && copy.done; };
    copy.copied = milliseconds([&] { run("cp -a " + both + " && sync -f '" + to.string() + "'"); });
    copy.comparedCached = milliseconds([&] { run("diff -r " + both); });
    copy.compared = milliseconds([&] {
        disk.forget(filesIn(to, disk));
        run("diff -r " + both);
    });
    return copy;
}

}  // namespace

int main() {
    const BenchDrives drives;
    BenchDesk desk(drives.records('C'), *parseDate("15/03/2024"));
    fill(drives.records('C'), *desk.disk);
    const ZipArchiver archiver;
    SafetyCopies copies(*desk.files, archiver, desk.log);
    Transferencia screen(
        desk.at, {*desk.disk, drives, copies, archiver, [](const path&) { return std::nullopt; },
                  [](std::string_view) { return [](auto, auto) { return true; }; }});
    Figure figure("transfer-10000", kMostRatio);
    Figure cached("transfer-10000-cached");
    bool done = true;
    for (int round = 0; round <= kRounds; ++round) {
        drives.makeEmpty('E');
        drives.makeEmpty('F');
        (void)runs("sync -f .");
        const double moved =
            milliseconds([&] { done = screen.transfer(TransferDirection::Export, "E") && done; });
        (void)runs("sync -f .");
        const auto plain = copyPlainly(drives.records('C'), drives.root('F') / "copy", *desk.disk);
        done = plain.done && done;
        figure.add(moved, plain.copied + plain.compared);
        cached.add(moved, plain.copied + plain.comparedCached);
    }
    const bool isWithin = figure.report();
    cached.report();
    return done && isWithin ? 0 : 1;
}
