#pragma once

#include <cstddef>
#include <filesystem>

// What two programs do to one folder at a time, on one computer or on two.

namespace winvrx::testing {

inline constexpr int kTurns = 500;

/// Fills the folder with counters at zero: the notes of two employees, and the telephone of the
/// company.
bool beginCounting(const std::filesystem::path& root);

/// Counts up to `kTurns` in the notes of the employee of this position, and in the telephone, which
/// another process may count up as well. False when a count is not as it was left.
bool countUp(const std::filesystem::path& root, std::size_t position);

/// Whether no turn of both is lost.
[[nodiscard]] bool isCountedUp(const std::filesystem::path& root);

/// Holds the folder until the process is killed, at most some minutes.
bool keepFolder(const std::filesystem::path& root);

/// Whether another computer holds the folder, so that a writing command changes nothing and says
/// who it is, when the operator does not take the folder over.
bool isKeptOut(const std::filesystem::path& root);

/// Whether a writing command takes a folder over that was left held, and does not ask.
bool takesOverUnasked(const std::filesystem::path& root);

}  // namespace winvrx::testing
