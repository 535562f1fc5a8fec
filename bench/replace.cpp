// A thousand record files replaced in one batch, beside the floor.
//
// `replace-1000`: the same bytes written to the same names, each flushed, the folder flushed once.
// `replace-1000-nosync`: the same protocol with flushes that do nothing, beside plain writes.

#include "bench/desk.h"
#include "bench/figure.h"
#include "foundation/files/durable_files.h"
#include "tests/support/scratch_folder.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

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

}  // namespace

int main() {
    const std::shared_ptr<Disk> disk = systemDisk();
    DurableFiles files(disk);
    DurableFiles unflushed(std::make_shared<UnflushedDisk>(*disk));
    // The flushed ones on the disk on which the bench is run: the system's temporary folder may be
    // memory, which has nothing to flush. The others in memory, where nothing but the protocol is
    // measured: file systems flush on a rename by themselves.
    const path memory = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : ".";
    const testing::ScratchFolder ours(".");
    const testing::ScratchFolder floor(".");
    const testing::ScratchFolder oursInMemory(memory);
    const testing::ScratchFolder floorInMemory(memory);
    Figure flushed("replace-1000");
    Figure nosync("replace-1000-nosync");
    for (int round = 0; round <= kRounds; ++round) {
        const char fill = static_cast<char>('a' + round);
        flushed.ours([&, batch = batchIn(ours.path(), fill)] { files.replaceAll(batch); });
        flushed.floor([&, batch = batchIn(floor.path(), fill)] { writeFlushed(*disk, batch); });
        nosync.ours(
            [&, batch = batchIn(oursInMemory.path(), fill)] { unflushed.replaceAll(batch); });
        nosync.floor(
            [&, batch = batchIn(floorInMemory.path(), fill)] { writePlain(*disk, batch); });
    }
    flushed.report();
    nosync.report();
    return 0;
}
