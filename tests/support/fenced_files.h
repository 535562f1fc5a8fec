#pragma once

#include "foundation/files/forwarding_files.h"

#include <string>
#include <vector>

namespace winvrx::testing {

/// Files in memory that remember each use of a path outside one folder.
class FencedFiles final : public ForwardingFiles {
  public:
    FencedFiles(FileSystem& files, std::filesystem::path folder)
        : ForwardingFiles(files), folder_(std::move(folder)) {}

    [[nodiscard]] const std::vector<std::string>& trespasses() const { return trespasses_; }

    [[nodiscard]] std::optional<std::string> read(
        const std::filesystem::path& file) const override {
        watch(file);
        return files_.read(file);
    }
    void replace(const std::filesystem::path& file, std::string_view bytes) override {
        watch(file);
        files_.replace(file, bytes);
    }
    void replaceAll(const std::vector<NewContent>& files) override {
        for (const NewContent& one : files)
            watch(one.file);
        files_.replaceAll(files);
    }
    bool remove(const std::filesystem::path& file) override {
        watch(file);
        return files_.remove(file);
    }
    [[nodiscard]] bool exists(const std::filesystem::path& file) const override {
        watch(file);
        return files_.exists(file);
    }
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override {
        watch(folder / "any");
        return files_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override {
        watch(folder / "any");
        return files_.list(folder);
    }
    void makeFolder(const std::filesystem::path& folder) override {
        watch(folder / "any");
        files_.makeFolder(folder);
    }
    [[nodiscard]] bool hasLeftovers(const std::filesystem::path& folder) const override {
        watch(folder / "any");
        return files_.hasLeftovers(folder);
    }
    void removeLeftovers(const std::filesystem::path& folder) override {
        watch(folder / "any");
        files_.removeLeftovers(folder);
    }

  private:
    void watch(const std::filesystem::path& file) const {
        const std::string path = file.string();
        const bool inside = file.lexically_normal() == file && file.parent_path() == folder_;
        if (!inside || path.find('\0') != std::string::npos) trespasses_.push_back(path);
    }

    std::filesystem::path folder_;
    mutable std::vector<std::string> trespasses_;
};

}  // namespace winvrx::testing
