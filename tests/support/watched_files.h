#pragma once

#include "foundation/files/forwarding_files.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx::testing {

/// Passes everything on, and says first what is asked for.
class WatchedFiles : public ForwardingFiles {
  public:
    using ForwardingFiles::ForwardingFiles;

    [[nodiscard]] std::optional<std::string> read(const std::filesystem::path& file) const final {
        atFile("read", file);
        return files_.read(file);
    }
    void replace(const std::filesystem::path& file, std::string_view bytes) final {
        atFile("write", file);
        files_.replace(file, bytes);
    }
    void replaceAll(const std::vector<NewContent>& files) final {
        for (const NewContent& one : files)
            atFile("write", one.file);
        files_.replaceAll(files);
    }
    bool remove(const std::filesystem::path& file) final {
        atFile("remove", file);
        return files_.remove(file);
    }
    [[nodiscard]] bool exists(const std::filesystem::path& file) const final {
        atFile("look for", file);
        return files_.exists(file);
    }
    [[nodiscard]] std::vector<std::string> names(const std::filesystem::path& folder) const final {
        atFolder("list", folder);
        return files_.names(folder);
    }
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const final {
        atFolder("list", folder);
        return files_.list(folder);
    }
    void makeFolder(const std::filesystem::path& folder) final {
        atFolder("make", folder);
        files_.makeFolder(folder);
    }
    [[nodiscard]] bool hasLeftovers(const std::filesystem::path& folder) const final {
        atFolder("list for leftovers", folder);
        return files_.hasLeftovers(folder);
    }
    void removeLeftovers(const std::filesystem::path& folder) final {
        atFolder("list for leftovers", folder);
        files_.removeLeftovers(folder);
    }

  private:
    virtual void atFile(const char* act, const std::filesystem::path& file) const = 0;
    virtual void atFolder(const char* act, const std::filesystem::path& folder) const = 0;
};

}  // namespace winvrx::testing
