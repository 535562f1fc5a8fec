#pragma once

#include "foundation/copies/safety_copies.h"
#include "foundation/desk/log.h"
#include "foundation/desk/session.h"
#include "foundation/files/forwarding_files.h"
#include "foundation/values/clock.h"

#include <optional>

namespace winvrx {

/// The file system with which the commands work: passes everything on, and before the day's first
/// change of a record in the data folder has the folder copied. A copy that fails is logged and
/// never stops the change; it is tried again at the next start or on the next day.
class DailyCopyFiles final : public ForwardingFiles {
  public:
    DailyCopyFiles(FileSystem& files, SafetyCopies& copies, const Session& session,
                   const Clock& clock, Log& log)
        : ForwardingFiles(files), copies_(copies), session_(session), clock_(clock), log_(log) {}

    bool remove(const std::filesystem::path& file) override;

  private:
    struct Attempt {
        std::filesystem::path folder;
        Date day;

        [[nodiscard]] bool operator==(const Attempt&) const = default;
    };

    void beforeChange(const std::filesystem::path& file) override;

    SafetyCopies& copies_;
    const Session& session_;
    const Clock& clock_;
    Log& log_;
    std::optional<Attempt> last_;
};

}  // namespace winvrx
