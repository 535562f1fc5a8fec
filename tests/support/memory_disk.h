#pragma once

#include "foundation/files/disk.h"

#include <map>
#include <memory>
#include <random>
#include <string>

namespace winvrx::testing {

/// A disk in memory that knows what a power cut would leave of it. Content lasts only after a
/// flush, and names only after a flush of their folder; what was not flushed may last or not, each
/// piece by itself.
class MemoryDisk final : public Disk {
  public:
    using Files = std::map<std::filesystem::path, std::string>;

    MemoryDisk() = default;
    explicit MemoryDisk(const Files& files);

    [[nodiscard]] std::optional<std::string> read(const std::filesystem::path& file) const override;
    void write(const std::filesystem::path& file, std::string_view bytes) override;
    [[nodiscard]] bool create(const std::filesystem::path& file, std::string_view bytes) override;
    void flush(const std::vector<std::filesystem::path>& files) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    bool remove(const std::filesystem::path& file) override;
    void flushFolder(const std::filesystem::path& folder) override;
    [[nodiscard]] bool exists(const std::filesystem::path& path) const override;
    [[nodiscard]] std::vector<std::string> names(
        const std::filesystem::path& folder) const override;
    [[nodiscard]] std::vector<ListedFile> list(const std::filesystem::path& folder) const override;
    void makeFolder(const std::filesystem::path&) override {}

    /// Loses what was not flushed, or part of it, as the dice fall.
    void cutPower(std::mt19937& dice);

    [[nodiscard]] Files files() const;

  private:
    struct Content {
        std::string bytes;
        std::string lasting;
        std::chrono::nanoseconds written{};
    };
    using Entries = std::map<std::filesystem::path, std::shared_ptr<Content>>;

    std::chrono::nanoseconds time_{};  ///< a minute for each write
    Entries now_;
    Entries lasting_;
};

}  // namespace winvrx::testing
