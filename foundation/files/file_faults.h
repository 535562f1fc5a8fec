#pragma once

#include "foundation/values/faults.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>

namespace winvrx {

/// Far above any record file, and what a file read whole may hold.
inline constexpr std::size_t kLargestFile = std::size_t{64} << 20U;

/// Far above any record file; a file of more lines is refused, since each line costs memory.
inline constexpr std::size_t kMostLines = 100'000;

/// What keeps a file from being used as a record although the system would let it.
enum class FileProblem {
    Link = 1,       ///< a symbolic link stands in the file's place
    NotAPlainFile,  ///< a pipe, a device or a socket does
    TooLarge,       ///< more than kLargestFile bytes
    TooManyLines    ///< more than kMostLines lines
};
[[nodiscard]] std::error_code make_error_code(FileProblem problem);

/// An operation of the file system that failed. Names the operation, the file and the cause.
class FileFault : public Fault {
  public:
    enum class Operation { Read, Write, Remove, List, MakeFolder };

    FileFault(Operation operation, const std::filesystem::path& file, std::error_code cause);

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    [[nodiscard]] std::error_code cause() const { return cause_; }

  private:
    std::filesystem::path file_;
    std::error_code cause_;
};

}  // namespace winvrx

template <>
struct std::is_error_code_enum<winvrx::FileProblem> : std::true_type {};
