#pragma once

#include "foundation/data_folder.h"
#include "output/report_engine.h"

#include <string>
#include <string_view>

// The settings that every print takes along: the alignment `Config` and the printer `ConfigX`,
// both in the data folder itself and so the same for all companies.

namespace winvrx {

inline constexpr std::string_view kAlignmentName = "Config";
inline constexpr std::string_view kPrinterName = "ConfigX";

/// Twips.
inline constexpr int kDefaultOffset = 10;
inline constexpr int kGreatestOffset = 1500;

/// The offsets of the first entry, brought into 0 … kGreatestOffset; the default where an offset is
/// missing or is no number. Throws FileFault.
[[nodiscard]] Alignment loadAlignment(FileSystem& files, const DataFolder& folder);

/// The chosen printer; empty stands for the system's default printer. Throws FileFault.
[[nodiscard]] std::string loadPrinterName(FileSystem& files, const DataFolder& folder);

}  // namespace winvrx
