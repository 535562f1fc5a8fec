#pragma once

#include "foundation/files/disk.h"
#include "foundation/files/file_system.h"

namespace winvrx {

/// Ends the name of a file that is still being written.
inline constexpr std::string_view kTemporarySuffix = ".winvrx-tmp";

/// The operator knows the record, not the name under which it is being written.
[[nodiscard]] std::filesystem::path recordOf(const std::filesystem::path& file);

/// Safe files on any disk: a file is written under a temporary name beside the old one, flushed,
/// renamed over it, and the folder is flushed. Whatever happens, a reader finds the old bytes or
/// the new ones.
class DurableFiles final : public FileSystem {
  public:
    explicit DurableFiles(std::shared_ptr<Disk> disk) : disk_(std::move(disk)) {}

    [[nodiscard]] std::optional<std::string> read(const std::filesystem::path& file) const override;
    void replace(const std::filesystem::path& file, std::string_view bytes) override;
    void replaceAll(const std::vector<NewContent>& files) override;
    bool remove(const std::filesystem::path& file) override;
    [[nodiscard]] bool exists(const std::filesystem::path& file) const override;
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override;
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override;
    void makeFolder(const std::filesystem::path& folder) override;

    [[nodiscard]] bool hasLeftovers(const std::filesystem::path& folder) const override;
    /// Removes the temporaries that a crash left in the folder. Records are not touched.
    void removeLeftovers(const std::filesystem::path& folder) override;

  private:
    void flushFolder(const std::filesystem::path& folder, FileFault::Operation operation,
                     const std::filesystem::path& file);
    void discard(const std::vector<NewContent>& files) noexcept;

    std::shared_ptr<Disk> disk_;
};

}  // namespace winvrx
