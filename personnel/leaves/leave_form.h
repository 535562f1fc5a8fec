#pragma once

#include "foundation/register/leave_record.h"
#include "personnel/leaves/termination_dates.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

// What stands in the fields of the leave screen. Days follow from the dates and the last day from
// the days; of a termination every date is worked out as soon as its inputs stand, from the first
// day, the types and the admission. What is typed in place of such a date stays until it is
// emptied.

namespace winvrx {

enum class LeaveInput {
    Type,
    FirstDay,
    LastDay,
    Days,
    Hours,
    TerminationType,
    NoticeType,
    NoticeGiven,
    NoticeBegins,
    NoticeEnds,
    LastDayWorked,
    PaymentDue,
    Homologation,
    Dismissal
};
inline constexpr std::size_t kLeaveInputs = 14;

/// The hour of the homologation where the record does not say another one.
inline constexpr std::string_view kHomologationHour = "09:00";
/// What a duration can hold.
inline constexpr int kMostLeaveDays = 9999;
inline constexpr int kMostLeaveHours = 23;

class LeaveForm {
  public:
    /// Blank. Without an admission no notice can be worked out.
    explicit LeaveForm(std::optional<Date> admission = {}) : admission_(admission) {}
    /// Filled from a line on record; what it leaves blank is worked out.
    LeaveForm(const Leave& stored, std::optional<Date> admission);

    [[nodiscard]] const std::string& text(LeaveInput input) const { return texts_[place(input)]; }
    /// Takes what the operator typed or chose.
    void type(LeaveInput input, std::string_view typed);
    /// Shows the day since which the employee is inactive; nullopt leaves the one worked out.
    void showDismissal(std::optional<Date> date);

    [[nodiscard]] const std::optional<Date>& admission() const { return admission_; }
    [[nodiscard]] bool isTermination() const;
    [[nodiscard]] bool isChanged() const { return texts_ != shown_; }
    /// Whether a field that belongs to the line of the leave is.
    [[nodiscard]] bool isLineChanged() const;
    /// Whether something else stands where a date was worked out.
    [[nodiscard]] bool isTypedOver(LeaveInput input) const;
    /// What gives the value of the field, in one line, and the value where another one stands in
    /// its place; empty while its inputs do not stand.
    [[nodiscard]] std::string rule(LeaveInput input) const;

    [[nodiscard]] std::optional<LeavePeriod> period() const { return leave().period(); }
    [[nodiscard]] std::optional<int> days() const;
    /// None typed is none.
    [[nodiscard]] std::optional<int> hours() const;
    /// As it is recorded. Blank in what belongs to a termination, for any other leave.
    [[nodiscard]] Leave leave() const;

  private:
    [[nodiscard]] static std::size_t place(LeaveInput input) {
        return static_cast<std::size_t>(input);
    }
    [[nodiscard]] std::optional<Date> date(LeaveInput input) const;
    void put(LeaveInput input, std::string text) { texts_[place(input)] = std::move(text); }
    void followDays(LeaveInput typed);
    void workOut();
    void workOutDates();
    void give(LeaveInput input, std::string value, std::string rule);

    std::optional<Date> admission_;
    std::array<std::string, kLeaveInputs> texts_;
    std::array<std::string, kLeaveInputs> shown_;  ///< as they stood before anything was typed
    std::array<Explained<std::string>, kLeaveInputs> workedOut_;
    std::array<bool, kLeaveInputs> typedOver_{};
    std::string unreadHour_;  ///< what stands on record in its place and is no hour; it is kept
};

}  // namespace winvrx
