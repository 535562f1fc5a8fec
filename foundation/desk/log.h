#pragma once

#include <string_view>

namespace winvrx {

/// The program's log file: one entry a line, for whoever looks into a failure.
class Log {
  public:
    virtual ~Log() = default;

    /// Never throws: a log that cannot be written must not stop a command.
    virtual void write(std::string_view entry) noexcept = 0;
};

}  // namespace winvrx
