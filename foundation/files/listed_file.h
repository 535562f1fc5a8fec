#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace winvrx {

/// A file as the listing of its folder tells of it.
struct ListedFile {
    std::string name;
    std::uint64_t size = 0;
    std::chrono::nanoseconds written{};  ///< since 1970, by the clock of the disk's own system

    [[nodiscard]] bool operator==(const ListedFile&) const = default;
};

}  // namespace winvrx
