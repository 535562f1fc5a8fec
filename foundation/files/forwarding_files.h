#pragma once

#include "foundation/files/file_system.h"

namespace winvrx {

/// Passes everything on to another file system: base of those that stand before one and do
/// something of their own before a file is written.
class ForwardingFiles : public FileSystem {
  public:
    explicit ForwardingFiles(FileSystem& files) : files_(files) {}

    [[nodiscard]] std::optional<std::string> read(
        const std::filesystem::path& file) const override {
        return files_.read(file);
    }
    void replace(const std::filesystem::path& file, std::string_view bytes) override {
        beforeChange(file);
        files_.replace(file, bytes);
    }
    void replaceAll(const std::vector<NewContent>& files) override {
        for (const NewContent& content : files)
            beforeChange(content.file);
        files_.replaceAll(files);
    }
    bool remove(const std::filesystem::path& file) override { return files_.remove(file); }
    [[nodiscard]] bool exists(const std::filesystem::path& file) const override {
        return files_.exists(file);
    }
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override {
        return files_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override {
        return files_.list(folder);
    }
    void makeFolder(const std::filesystem::path& folder) override { files_.makeFolder(folder); }
    [[nodiscard]] bool hasLeftovers(const std::filesystem::path& folder) const override {
        return files_.hasLeftovers(folder);
    }
    void removeLeftovers(const std::filesystem::path& folder) override {
        files_.removeLeftovers(folder);
    }

  protected:
    /// Called for each file that is about to be written.
    virtual void beforeChange(const std::filesystem::path&) {}

    FileSystem& files_;
};

}  // namespace winvrx
