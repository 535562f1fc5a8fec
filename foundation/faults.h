#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace winvrx {

/// Base of every fault that a command's catch-all turns into a message. `what()` is for the log;
/// `explanation()` is one Portuguese sentence for the operator.
class Fault : public std::runtime_error {
  public:
    Fault(const std::string& what, std::string explanation)
        : std::runtime_error(what), explanation_(std::move(explanation)) {}

    [[nodiscard]] const std::string& explanation() const { return explanation_; }

  private:
    std::string explanation_;
};

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

    [[nodiscard]] std::error_code cause() const { return cause_; }

  private:
    std::error_code cause_;
};

/// Text that a record cannot hold: a character outside Windows-1252, or a control character.
class TextFault : public Fault {
  public:
    using Fault::Fault;
};

/// The sentence for the operator: a Fault's own explanation, a general one for anything else.
[[nodiscard]] std::string explanationOf(const std::exception& fault);

}  // namespace winvrx

template <>
struct std::is_error_code_enum<winvrx::FileProblem> : std::true_type {};
