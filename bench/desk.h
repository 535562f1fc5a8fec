#pragma once

#include "foundation/desk/command.h"
#include "foundation/files/disk.h"
#include "foundation/files/host.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

// What commands work with when they are measured: the disk and the lock as they are, and nobody who
// has to think.

namespace winvrx {

class ErrorLog final : public Log {
  public:
    void write(std::string_view entry) noexcept override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(entry.size()), entry.data());
    }
};

/// Agrees with everything, and shows what went wrong.
class Agreeing final : public Operator {
  public:
    Answer ask(const Message& message) override {
        if (message.icon != Icon::Information && message.buttons == Buttons::Ok)
            std::fprintf(stderr, "%s %s\n", message.text.c_str(), message.detail.c_str());
        return agreement(message);
    }
};

/// Company "01" of the folder is selected.
struct BenchDesk {
    BenchDesk(std::filesystem::path folder, Date today)
        : clock({today, {}}),
          session{.folder = DataFolder('C', std::move(folder)),
                  .company = CompanyCode::parse("01")} {}

    std::unique_ptr<Disk> disk = systemDisk();
    std::unique_ptr<FileSystem> files = systemFiles();
    std::unique_ptr<Host> host = systemHost();
    Agreeing person;
    FixedClock clock;
    ErrorLog log;
    Session session;
    FolderLock lock{*disk, *host};
    Workplace at{*files, person, clock, log, session, lock};
};

/// The least that a batch for one folder can be: each file flushed, and the folder once.
inline void writeFlushed(Disk& disk, const std::vector<FileSystem::NewContent>& batch) {
    for (const FileSystem::NewContent& one : batch) {
        disk.write(one.file, one.bytes);
        disk.flush({one.file});
    }
    disk.flushFolder(batch.front().file.parent_path());
}

}  // namespace winvrx
