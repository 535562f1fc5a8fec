#pragma once

#include "foundation/menu/menu.h"

namespace winvrx::testing {

/// No other copy of the program runs.
struct OnlyCopy final : SingleInstance {
    [[nodiscard]] bool claim() override { return true; }
};

}  // namespace winvrx::testing
