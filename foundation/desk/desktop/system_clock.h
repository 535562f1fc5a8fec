#pragma once

#include "foundation/values/clock.h"

namespace winvrx {

/// The computer's own date and time, in its time zone.
class SystemClock final : public Clock {
  public:
    [[nodiscard]] Moment now() const override;
};

}  // namespace winvrx
