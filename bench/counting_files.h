#pragma once

#include "foundation/files/forwarding_files.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace winvrx {

/// Counts what is asked of the disk, and names it.
class CountingFiles final : public ForwardingFiles {
  public:
    CountingFiles(std::unique_ptr<FileSystem> files, std::vector<std::string>& asked)
        : ForwardingFiles(*files), own_(std::move(files)), asked_(asked) {}

    [[nodiscard]] std::optional<std::string> read(
        const std::filesystem::path& file) const override {
        note("read", file);
        return files_.read(file);
    }
    void replace(const std::filesystem::path& file, std::string_view bytes) override {
        note("write", file);
        files_.replace(file, bytes);
    }
    void replaceAll(const std::vector<NewContent>& files) override {
        for (const NewContent& one : files)
            note("write", one.file);
        files_.replaceAll(files);
    }
    bool remove(const std::filesystem::path& file) override {
        note("remove", file);
        return files_.remove(file);
    }
    [[nodiscard]] bool exists(const std::filesystem::path& file) const override {
        note("look for", file);
        return files_.exists(file);
    }
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override {
        note("list", folder);
        return files_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override {
        note("list", folder);
        return files_.list(folder);
    }
    void makeFolder(const std::filesystem::path& folder) override {
        note("make", folder);
        files_.makeFolder(folder);
    }
    [[nodiscard]] bool hasLeftovers(const std::filesystem::path& folder) const override {
        note("list for leftovers", folder);
        return files_.hasLeftovers(folder);
    }
    void removeLeftovers(const std::filesystem::path& folder) override {
        note("list for leftovers", folder);
        files_.removeLeftovers(folder);
    }

  private:
    void note(const char* what, const std::filesystem::path& file) const {
        asked_.push_back(std::string(what) + " " + file.filename().string());
    }

    std::unique_ptr<FileSystem> own_;
    std::vector<std::string>& asked_;
};

}  // namespace winvrx
