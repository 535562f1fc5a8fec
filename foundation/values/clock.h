#pragma once

#include "foundation/values/date.h"

namespace winvrx {

/// The desk's calendar and clock. "Today" decides which month a form prints, so it is asked for.
class Clock {
  public:
    struct Moment {
        Date date;
        TimeOfDay time;
    };

    virtual ~Clock() = default;
    [[nodiscard]] virtual Moment now() const = 0;
    [[nodiscard]] Date today() const { return now().date; }
};

/// A clock that stands still.
class FixedClock final : public Clock {
  public:
    explicit FixedClock(Moment moment) : moment_(moment) {}
    [[nodiscard]] Moment now() const override { return moment_; }

  private:
    Moment moment_;
};

}  // namespace winvrx
