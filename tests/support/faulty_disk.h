#pragma once

#include "foundation/files/disk.h"
#include "foundation/files/file_faults.h"

#include <functional>

namespace winvrx::testing {

/// Thrown where the power goes: no handler of the program catches it.
struct PowerCut {};

/// Passes everything on to another disk until operation number `failAt`, counted from 1.
class FaultyDisk final : public Disk {
  public:
    enum class Failure {
        Once,     ///< that operation fails, later ones succeed
        Late,     ///< that operation is carried out and then fails, as when an answer is lost
        ForGood,  ///< that operation and all after it fail
        Power     ///< a PowerCut is thrown there
    };

    /// Done there in place of a failure, if set: what is asked then meets the disk as it is.
    std::function<void()> event;

    FaultyDisk(Disk& disk, int failAt, Failure failure, std::errc error)
        : disk_(disk), failAt_(failAt), failure_(failure), error_(error) {}

    [[nodiscard]] bool failed() const { return operations_ >= failAt_; }

    [[nodiscard]] std::optional<std::string> read(
        const std::filesystem::path& file) const override {
        step(FileFault::Operation::Read, file);
        return disk_.read(file);
    }
    /// A write that fails leaves half of the bytes behind.
    void write(const std::filesystem::path& file, std::string_view bytes) override {
        change(
            FileFault::Operation::Write, file, [&] { disk_.write(file, bytes); },
            [&] { disk_.write(file, bytes.substr(0, bytes.size() / 2)); });
    }
    /// Cut short for good, half of the bytes stay behind as after a write.
    [[nodiscard]] bool create(const std::filesystem::path& file, std::string_view bytes) override {
        bool made = false;
        change(
            FileFault::Operation::Write, file, [&] { made = disk_.create(file, bytes); },
            [&] {
                if (failure_ != Failure::Once)
                    (void)disk_.create(file, bytes.substr(0, bytes.size() / 2));
            });
        return made;
    }
    void flush(const std::vector<std::filesystem::path>& files) override {
        change(FileFault::Operation::Write, files.front(), [&] { disk_.flush(files); });
    }
    void forget(const std::vector<std::filesystem::path>& files) const override {
        disk_.forget(files);
    }
    void rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
        change(FileFault::Operation::Write, to, [&] { disk_.rename(from, to); });
    }
    bool remove(const std::filesystem::path& file) override {
        bool there = false;
        change(FileFault::Operation::Remove, file, [&] { there = disk_.remove(file); });
        return there;
    }
    void flushFolder(const std::filesystem::path& folder) override {
        change(FileFault::Operation::Write, folder, [&] { disk_.flushFolder(folder); });
    }
    [[nodiscard]] bool exists(const std::filesystem::path& path) const override {
        step(FileFault::Operation::Read, path);
        return disk_.exists(path);
    }
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override {
        step(FileFault::Operation::List, folder);
        return disk_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override {
        step(FileFault::Operation::List, folder);
        return disk_.list(folder);
    }
    void makeFolder(const std::filesystem::path& folder) override {
        change(FileFault::Operation::MakeFolder, folder, [&] { disk_.makeFolder(folder); });
    }

  private:
    /// Carries out `whole`, or, where it fails, what is left of it.
    void change(
        FileFault::Operation operation, const std::filesystem::path& path,
        const std::function<void()>& whole, const std::function<void()>& part = [] {}) {
        try {
            step(operation, path);
        } catch (...) {
            if (operations_ == failAt_) (failure_ == Failure::Late ? whole : part)();
            throw;
        }
        whole();
    }

    void step(FileFault::Operation operation, const std::filesystem::path& path) const {
        const int number = ++operations_;
        if (event) {
            if (number == failAt_) event();
            return;
        }
        if (number < failAt_ || (number > failAt_ && isPassing())) return;
        if (failure_ == Failure::Power) throw PowerCut{};
        throw FileFault(operation, path, std::make_error_code(error_));
    }

    [[nodiscard]] bool isPassing() const {
        return failure_ == Failure::Once || failure_ == Failure::Late;
    }

    Disk& disk_;
    int failAt_;
    Failure failure_;
    std::errc error_;
    mutable int operations_ = 0;
};

}  // namespace winvrx::testing
