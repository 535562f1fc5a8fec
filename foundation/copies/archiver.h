#pragma once

#include "foundation/values/faults.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// A file within an archive. The name is what the archive says: whoever uses it checks it first.
struct ArchiveEntry {
    std::string name;  ///< UTF-8
    std::string bytes;
};

/// What an archive may hold: far more than any data folder does. What claims or turns out to be
/// larger is refused.
struct ArchiveLimits {
    std::size_t files = 500'000;
    std::uint64_t bytesInFile = 256ULL << 20U;
    std::uint64_t bytesInAll = 1ULL << 30U;
};

/// An archive that is not whole, or not what this program packs.
class DamagedArchive : public Fault {
  public:
    explicit DamagedArchive(const std::string& what)
        : Fault("archive: " + what, "A cópia está danificada e não pode ser usada.") {}
};

/// Many files in one compressed file that the desktop's own tools can open.
class Archiver {
  public:
    /// The next file to be packed; nullopt after the last.
    using Source = std::function<std::optional<ArchiveEntry>()>;
    /// Asked for each name, in order: whether the file is to be handed over.
    using Choice = std::function<bool(const std::string& name)>;
    using Visitor = std::function<void(ArchiveEntry)>;

    virtual ~Archiver() = default;

    /// The bytes of an archive of the source's files. Throws Fault when they are too many.
    [[nodiscard]] virtual std::string pack(const Source& next) const = 0;

    /// Hands over each chosen file with its bytes, checked against the archive's own sums. Throws
    /// DamagedArchive, perhaps after some files were handed over.
    virtual void unpack(std::string_view archive, const Choice& chosen,
                        const Visitor& visit) const = 0;
};

}  // namespace winvrx
