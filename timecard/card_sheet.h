#pragma once

#include "timecard/half_month.h"
#include "timecard/punch_record.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// A cell of the punch grid that takes text, in the order of the record.
enum class PunchCell {
    MorningEntry,
    MorningExit,
    AfternoonEntry,
    AfternoonExit,
    ExtraEntry,
    ExtraExit,
    ShortField,
    Situation
};

inline constexpr std::array kPunchCells = {PunchCell::MorningEntry,   PunchCell::MorningExit,
                                           PunchCell::AfternoonEntry, PunchCell::AfternoonExit,
                                           PunchCell::ExtraEntry,     PunchCell::ExtraExit,
                                           PunchCell::ShortField,     PunchCell::Situation};

[[nodiscard]] constexpr bool isTime(PunchCell cell) {
    return cell < PunchCell::ShortField;
}

/// One employee's month on the screen, as recorded and as edited.
class CardSheet {
  public:
    CardSheet() = default;
    explicit CardSheet(std::vector<PunchLine> recorded);

    [[nodiscard]] const std::vector<PunchLine>& lines() const { return lines_; }
    [[nodiscard]] const std::vector<PunchLine>& recorded() const { return recorded_; }
    /// `day` counts from 1.
    [[nodiscard]] const PunchLine& line(int day) const;
    [[nodiscard]] const std::string& text(int day, PunchCell cell) const;

    /// Takes what was typed: a time is brought to "hh:mm", anything else stays as it is.
    void type(int day, PunchCell cell, std::string_view text);

    /// Why a cell as typed cannot be recorded, in one sentence; empty when it can. What was
    /// recorded before is never a fault.
    [[nodiscard]] std::string findingAt(int day, PunchCell cell) const;
    /// The finding, or else that a recorded time is none and counts for nothing.
    [[nodiscard]] std::string noticeAt(int day, PunchCell cell) const;
    /// The first finding of the month behind the label of its day.
    [[nodiscard]] std::optional<std::string> firstFinding() const;

    [[nodiscard]] bool changed() const { return lines_ != recorded_; }
    void markRecorded() { recorded_ = lines_; }

  private:
    std::vector<PunchLine> lines_;
    std::vector<PunchLine> recorded_;
};

}  // namespace winvrx
