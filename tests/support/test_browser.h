#pragma once

#include "foundation/desk/browser.h"

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
};

}  // namespace winvrx::testing
