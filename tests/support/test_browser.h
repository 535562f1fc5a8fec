#pragma once

#include "foundation/desk/browser.h"

#include <string>
#include <vector>

namespace winvrx::testing {

/// Counts what it was asked to show; `works` is its answer.
class TestBrowser final : public Browser {
  public:
    bool works = true;
    int opened = 0;

    bool openHelp() override {
        ++opened;
        return works;
    }
    std::vector<std::string> files;
    bool open(const std::string& path) override {
        files.push_back(path);
        return works;
    }
    bool openPage(const std::string& address) override { return open(address); }
};

}  // namespace winvrx::testing
