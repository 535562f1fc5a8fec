#pragma once

#include "timecard/schedule/standard_schedule.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// The schedule panel: an employee's standard schedule as recorded, and its eight times as typed.
class TypedSchedule {
  public:
    TypedSchedule() = default;
    explicit TypedSchedule(const StandardSchedule& recorded);

    /// Positions as `timeAt` counts them.
    [[nodiscard]] const std::string& text(std::size_t position) const { return texts_[position]; }
    /// Takes what was typed, brought to "hh:mm" when it is a time.
    void type(std::size_t position, std::string_view text);
    /// Why a time, as typed or as recorded, is none, in one sentence; empty when it is one.
    [[nodiscard]] std::string findingAt(std::size_t position) const;

    [[nodiscard]] std::optional<std::string> firstFinding() const;

    [[nodiscard]] bool hasSaturdayTimes() const;
    [[nodiscard]] bool saturdayIsNormal() const { return recorded_.saturdayIsNormal; }

    /// The panel's second check box.
    [[nodiscard]] bool secondFlag() const { return secondFlag_; }
    void setSecondFlag(bool on) { secondFlag_ = on; }

    [[nodiscard]] bool changed() const {
        return texts_ != TypedSchedule(recorded_).texts_ || secondFlag_ != recorded_.secondFlag;
    }
    /// The recorded schedule with the typed times; what is no time counts as empty.
    [[nodiscard]] StandardSchedule schedule() const;
    [[nodiscard]] const StandardSchedule& recorded() const { return recorded_; }

  private:
    StandardSchedule recorded_;
    std::array<std::string, kScheduleTimes> texts_;
    bool secondFlag_ = false;
};

}  // namespace winvrx
