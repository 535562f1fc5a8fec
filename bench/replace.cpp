// A thousand record files replaced in one batch, beside the floor.
//
// `replace-1000`: the same bytes written to the same names, each flushed, the folder flushed once.
// `replace-1000-nosync`: the same protocol with flushes that do nothing, beside plain writes.

#include "bench/timing.h"
#include "foundation/files/disk.h"
#include "foundation/files/durable_files.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <string>

namespace {

using namespace winvrx;
using std::filesystem::path;

constexpr int kFiles = 1000;
constexpr int kRounds = 7;

/// Passes everything on but the flushes.
class UnflushedDisk final : public Disk {
  public:
    explicit UnflushedDisk(Disk& disk) : disk_(disk) {}

    [[nodiscard]] std::optional<std::string> read(const path& file) const override {
        return disk_.read(file);
    }
    void write(const path& file, std::string_view bytes) override { disk_.write(file, bytes); }
    [[nodiscard]] bool create(const path& file, std::string_view bytes) override {
        return disk_.create(file, bytes);
    }
    void flush(const std::vector<path>&) override {}
    void rename(const path& from, const path& to) override { disk_.rename(from, to); }
    bool remove(const path& file) override { return disk_.remove(file); }
    void flushFolder(const path&) override {}
    [[nodiscard]] bool exists(const path& file) const override { return disk_.exists(file); }
    [[nodiscard]] std::vector<std::string> names(const path& folder) const override {
        return disk_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const path& folder) const override {
        return disk_.list(folder);
    }
    void makeFolder(const path& folder) override { disk_.makeFolder(folder); }

  private:
    Disk& disk_;
};

/// The size of a month's punch record.
std::vector<FileSystem::NewContent> batchIn(const path& folder, char fill) {
    constexpr std::size_t kRecordBytes = 4 + 31 * 62;
    std::vector<FileSystem::NewContent> batch;
    for (int number = 0; number < kFiles; ++number)
        batch.push_back(
            {folder / (std::to_string(number) + ".bdx"), std::string(kRecordBytes, fill)});
    return batch;
}

void writePlain(Disk& disk, const std::vector<FileSystem::NewContent>& batch) {
    for (const FileSystem::NewContent& one : batch)
        disk.write(one.file, one.bytes);
}

void writeFlushed(Disk& disk, const std::vector<FileSystem::NewContent>& batch) {
    for (const FileSystem::NewContent& one : batch) {
        disk.write(one.file, one.bytes);
        disk.flush({one.file});
    }
    disk.flushFolder(batch.front().file.parent_path());
}

/// A folder of its own for files of ours and of the floor.
class BenchFolder {
  public:
    explicit BenchFolder(const path& parent)
        : path_(parent / ("bench-replace-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(path_ / "ours");
        std::filesystem::create_directories(path_ / "floor");
    }
    ~BenchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;

    [[nodiscard]] path ours() const { return path_ / "ours"; }
    [[nodiscard]] path floor() const { return path_ / "floor"; }

  private:
    path path_;
};

}  // namespace

int main() {
    const std::shared_ptr<Disk> disk = systemDisk();
    DurableFiles files(disk);
    DurableFiles unflushed(std::make_shared<UnflushedDisk>(*disk));
    // The flushed ones on the disk on which the bench is run: the system's temporary folder may be
    // memory, which has nothing to flush. The others in memory, where nothing but the protocol is
    // measured: file systems flush on a rename by themselves.
    const BenchFolder onDisk(".");
    const bool hasMemory = std::filesystem::is_directory("/dev/shm");
    const BenchFolder inMemory(hasMemory ? path("/dev/shm") : path("."));
    std::array<std::vector<double>, 4> times;
    for (int round = 0; round <= kRounds; ++round) {
        const char fill = static_cast<char>('a' + round);
        const std::array<std::function<void()>, 4> works = {
            [&, batch = batchIn(onDisk.ours(), fill)] { files.replaceAll(batch); },
            [&, batch = batchIn(onDisk.floor(), fill)] { writeFlushed(*disk, batch); },
            [&, batch = batchIn(inMemory.ours(), fill)] { unflushed.replaceAll(batch); },
            [&, batch = batchIn(inMemory.floor(), fill)] { writePlain(*disk, batch); }};
        for (std::size_t i = 0; i < works.size(); ++i) {
            const double time = milliseconds(works[i]);
            if (round > 0) times[i].push_back(time);
        }
    }
    report("replace-1000", times[0], times[1]);
    report("replace-1000-nosync", times[2], times[3]);
    return 0;
}
