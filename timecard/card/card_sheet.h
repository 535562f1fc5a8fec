#pragma once

#include "timecard/month/half_month.h"
#include "timecard/punches/day_check.h"
#include "timecard/punches/punch_record.h"

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

/// Why a text cannot be recorded in a cell of this kind, in one sentence; empty when it can.
[[nodiscard]] std::string findingOf(PunchCell cell, const std::string& text);

/// Characters that a cell takes of a text: its column's, or all of a situation's longer word.
[[nodiscard]] std::size_t roomFor(PunchCell cell, std::string_view text);

/// What is to be said of a text that is still being typed: that no more typing makes a time of it,
/// or how much of the column it fills.
[[nodiscard]] std::string noticeWhileTyping(PunchCell cell, std::string_view text);

/// A text for one cell of a day, which counts from 1.
struct TypedCell {
    int day;
    PunchCell cell;
    std::string text;

    [[nodiscard]] bool operator==(const TypedCell&) const = default;
};

/// One employee's month on the screen, as recorded and as edited. Edits can be taken back and made
/// again until they are recorded.
class CardSheet {
  public:
    CardSheet() = default;
    explicit CardSheet(std::vector<PunchLine> recorded);

    [[nodiscard]] const std::vector<PunchLine>& lines() const { return lines_; }
    [[nodiscard]] const std::vector<PunchLine>& recorded() const { return recorded_; }
    /// `day` counts from 1.
    [[nodiscard]] const PunchLine& line(int day) const;
    [[nodiscard]] const std::string& text(int day, PunchCell cell) const;

    /// Takes what was typed: a time is brought to "hh:mm", a situation to its word, anything else
    /// stays as it is. A situation of the whole day empties the times of its day.
    void type(int day, PunchCell cell, std::string_view text);
    /// The same for many cells, taken back as one edit.
    void type(const std::vector<TypedCell>& cells);
    /// What the last edit did beyond what was typed, in one sentence; empty when nothing.
    [[nodiscard]] const std::string& note() const { return note_; }
    /// A day that the last edit touched; nullopt when there is none to take back.
    [[nodiscard]] std::optional<int> lastEditedDay() const;
    /// Takes back the last edit, or makes the last one taken back again. A day that it touched;
    /// nullopt when there is none.
    std::optional<int> undo() { return move(done_, undone_); }
    std::optional<int> redo() { return move(undone_, done_); }

    /// Why a cell as typed cannot be recorded, in one sentence; empty when it can. What was
    /// recorded before is never a fault.
    [[nodiscard]] std::string findingAt(int day, PunchCell cell) const;
    /// The finding, or else that a recorded time counts for nothing, because it is none or the day
    /// is marked as an absence, or that the card prints the times and not the situation.
    [[nodiscard]] std::string noticeAt(int day, PunchCell cell) const;
    /// The first finding of the month behind the label of its day.
    [[nodiscard]] std::optional<std::string> firstFinding() const;

    /// No time and no situation stands on the day.
    [[nodiscard]] bool isBlank(int day) const;
    /// Why the times of the day are doubtful; they can be recorded all the same.
    [[nodiscard]] std::string doubtAt(int day) const { return doubtAbout(line(day)); }

    [[nodiscard]] bool changed() const { return lines_ != recorded_; }
    void markRecorded();

  private:
    /// The texts that an edit put out of place.
    using Edit = std::vector<TypedCell>;

    [[nodiscard]] std::string& place(int day, PunchCell cell);
    /// Puts the texts into their cells; returns those that stood there, the last one first.
    Edit exchange(const Edit& edit);
    /// Empties the times of the days that `cells` give to a situation of the whole day.
    Edit clearWholeDays(const std::vector<TypedCell>& cells);
    std::optional<int> move(std::vector<Edit>& from, std::vector<Edit>& to);

    std::vector<Edit> done_;
    std::vector<Edit> undone_;
    std::string note_;
    std::vector<PunchLine> lines_;
    std::vector<PunchLine> recorded_;
};

}  // namespace winvrx
