// Ten thousand record files to an empty folder of another drive by the window's own command, which
// reads both sides, writes, flushes, compares and renames; beside `cp -a`, a flush and `diff -r` of
// the same files. Both on the disk on which the bench is run.
//
// `transfer-10000`: both compare with what the disk holds. `transfer-10000-cached`, without a
// limit: `diff` reads the copy from the system's memory, where `cp` has just left it.

#include "bench/timing.h"
#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/files/durable_files.h"
#include "foundation/files/host.h"
#include "foundation/register/company.h"
#include "foundation/values/text.h"
#include "tools/transfer/transferencia.h"

#include <cstdlib>
#include <filesystem>
#include <random>

namespace {

using namespace winvrx;
using std::filesystem::path;

constexpr int kFiles = 10'000;
constexpr int kRounds = 5;
constexpr double kMostRatio = 1.5;

/// Agrees with everything, and shows what went wrong.
class Agreeing final : public Operator {
  public:
    Answer ask(const Message& message) override {
        if (message.icon != Icon::Information && message.buttons == Buttons::Ok)
            std::fprintf(stderr, "%s %s\n", message.text.c_str(), message.detail.c_str());
        return agreement(message);
    }
};

class ErrorLog final : public Log {
  public:
    void write(std::string_view entry) noexcept override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(entry.size()), entry.data());
    }
};

/// A folder for each drive beside the place of the run: the system's temporary one may be memory.
class BenchDrives final : public Drives {
  public:
    BenchDrives() { std::filesystem::create_directories(records('C')); }
    ~BenchDrives() override {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    BenchDrives(const BenchDrives&) = delete;
    BenchDrives& operator=(const BenchDrives&) = delete;

    [[nodiscard]] path root(char letter) const override { return path_ / std::string(1, letter); }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'E', 'F'}; }
    [[nodiscard]] path records(char letter) const {
        return pathOnDrive(*this, letter, kDataFolder);
    }
    void makeEmpty(char letter) const {
        std::filesystem::remove_all(root(letter));
        std::filesystem::create_directories(root(letter));
    }

  private:
    path path_ =
        std::filesystem::absolute("bench-transfer-" + std::to_string(std::random_device{}()));
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

/// Times of one round of `cp -a`, a flush and `diff -r`.
class PlainCopy {
  public:
    PlainCopy(const path& from, path to, const Disk& disk)
        : from_("'" + from.string() + "' "), copy_(std::move(to)), disk_(disk) {}

    std::vector<double> floor;
    std::vector<double> cachedFloor;

    bool measure(bool isKept) {
        const std::string to = "'" + copy_.string() + "'";
        bool done = true;
        const auto diff = [&] { done = runs("diff -r " + from_ + to) && done; };
        const double copied =
            milliseconds([&] { done = runs("cp -a " + from_ + to + " && sync -f " + to); });
        const double cached = milliseconds(diff);
        const double compared = milliseconds([&] {
            disk_.forget(filesIn(copy_, disk_));
            diff();
        });
        if (!isKept) return done;
        floor.push_back(copied + compared);
        cachedFloor.push_back(copied + cached);
        return done;
    }

  private:
    std::string from_;
    path copy_;
    const Disk& disk_;
};

}  // namespace

int main() {
    const BenchDrives drives;
    const auto disk = systemDisk();
    fill(drives.records('C'), *disk);
    const auto files = systemFiles();
    Agreeing person;
    ErrorLog log;
    const FixedClock clock({*parseDate("15/03/2024"), {}});
    Session session;
    session.folder = DataFolder('C', drives.records('C'));
    const auto host = systemHost();
    FolderLock lock(*disk, *host);
    const ZipArchiver archiver;
    SafetyCopies copies(*files, archiver, log);
    Transferencia screen({*files, person, clock, log, session, lock},
                         {*disk, drives, copies, archiver, [](const path&) { return std::nullopt; },
                          [](std::string_view) { return [](auto, auto) { return true; }; }});
    PlainCopy plain(drives.records('C'), drives.root('F') / "copy", *disk);
    std::vector<double> ours;
    bool done = true;
    for (int round = 0; round <= kRounds; ++round) {
        drives.makeEmpty('E');
        drives.makeEmpty('F');
        (void)runs("sync -f .");
        const double moved =
            milliseconds([&] { done = screen.transfer(TransferDirection::Export, "E") && done; });
        (void)runs("sync -f .");
        done = plain.measure(round > 0) && done;  // the first fills the caches
        if (round > 0) ours.push_back(moved);
    }
    const double ratio = report("transfer-10000", ours, plain.floor);
    (void)report("transfer-10000-cached", ours, plain.cachedFloor);
    return done && ratio <= kMostRatio ? 0 : 1;
}
