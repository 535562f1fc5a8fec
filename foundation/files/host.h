#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace winvrx {

/// The computer that the program runs on, as the lock of a folder needs to know it.
class Host {
  public:
    virtual ~Host() = default;

    /// The computer's name in the network.
    [[nodiscard]] virtual std::string machine() const = 0;
    [[nodiscard]] virtual std::string user() const = 0;

    /// This process: its number and what tells it from a later process of the same number.
    [[nodiscard]] virtual std::string process() const = 0;

    /// Whether a process of this computer, named as by `process()`, still runs. True when in doubt.
    [[nodiscard]] virtual bool runs(const std::string& process) const = 0;

    virtual void pause(std::chrono::milliseconds duration) = 0;
};

[[nodiscard]] std::unique_ptr<Host> systemHost();

}  // namespace winvrx
