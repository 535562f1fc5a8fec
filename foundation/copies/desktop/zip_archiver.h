#pragma once

#include "foundation/copies/archiver.h"

namespace winvrx {

/// Zip files through libarchive, with names in UTF-8.
class ZipArchiver final : public Archiver {
  public:
    explicit ZipArchiver(const ArchiveLimits& limits = {}) : limits_(limits) {}

    [[nodiscard]] std::string pack(const Source& next) const override;
    void unpack(std::string_view archive, const Choice& chosen,
                const Visitor& visit) const override;

  private:
    ArchiveLimits limits_;
};

}  // namespace winvrx
