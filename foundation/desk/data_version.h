#pragma once

#include "foundation/desk/session.h"
#include "foundation/files/forwarding_files.h"

#include <compare>
#include <optional>
#include <string>
#include <string_view>

// Which version of the program wrote in a data folder: an older program must not guess at what a
// newer one recorded.

namespace winvrx {

/// In the data folder: the newest version that changed a record there, "1.0.0", on one line.
inline constexpr std::string_view kDataVersionName = "VersaoDados";

struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    [[nodiscard]] auto operator<=>(const ProgramVersion&) const = default;
    [[nodiscard]] std::string text() const;
};

/// "1.0.0"; nullopt for anything else.
[[nodiscard]] std::optional<ProgramVersion> parseProgramVersion(std::string_view text);

/// The version of this program.
[[nodiscard]] ProgramVersion programVersion();

/// That which wrote in the folder last; nullopt where none said so. Throws FileFault.
[[nodiscard]] std::optional<ProgramVersion> dataVersion(const FileSystem& files,
                                                        const DataFolder& folder);

/// Notes this program's version with its first change of a record in the data folder in use. The
/// mark of a newer program stays, and a folder that is only read is not touched.
class VersionedFiles final : public ForwardingFiles {
  public:
    VersionedFiles(FileSystem& files, const Session& session)
        : ForwardingFiles(files), session_(session) {}

  private:
    void beforeChange(const std::filesystem::path& file) override;

    const Session& session_;
    std::filesystem::path marked_;
};

}  // namespace winvrx
