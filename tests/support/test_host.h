#pragma once

#include "foundation/files/host.h"

#include <functional>
#include <set>

namespace winvrx::testing {

/// A computer whose processes are named by the test. Its pauses take no time.
class TestHost final : public Host {
  public:
    std::string name = "BALCAO";
    std::string userName = "ana";
    std::string own = "100";
    std::set<std::string> running = {"100"};
    std::chrono::milliseconds paused{0};
    std::function<void()> onPause = [] {};

    [[nodiscard]] std::string machine() const override { return name; }
    [[nodiscard]] std::string user() const override { return userName; }
    [[nodiscard]] std::string process() const override { return own; }
    [[nodiscard]] bool runs(const std::string& process) const override {
        return running.contains(process);
    }
    void pause(std::chrono::milliseconds duration) override {
        paused += duration;
        onPause();
    }
};

}  // namespace winvrx::testing
