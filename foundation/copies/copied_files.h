#pragma once

#include <string>
#include <string_view>

// Which files of the data folder a safety copy holds, and what they are called in words.

namespace winvrx {

/// True for the name of a file that every system takes as it stands and that leads nowhere else:
/// no folders, drives, devices or control characters, and only characters of Windows-1252.
[[nodiscard]] bool isPlainFileName(std::string_view name);

/// True for the files that are copied and brought back: all of the folder but the files of the run,
/// the scratch database of the report engine, locks and half-written files.
[[nodiscard]] bool isCopiedFile(std::string_view name);

/// What the file is about, as its name tells: "Empresa 01: cartões de março/2024".
[[nodiscard]] std::string subjectOfFile(std::string_view name);

}  // namespace winvrx
