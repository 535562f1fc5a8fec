#pragma once

#include "timecard/schedule/standard_schedule.h"

#include <array>
#include <map>
#include <vector>

namespace winvrx {

/// Longest that a punch, and all punches of a day together, may stray from the standard times
/// (CLT, art. 58, § 1º).
inline constexpr int kMostMinutesOfPunch = 5;
inline constexpr int kMostMinutesOfDay = 10;

/// "Minutos Variados": moves the times of a day by a few minutes.
///
/// The same employee, day and schedule always give the same times, on every machine. Each punch
/// stays within kMostMinutesOfPunch and the day within kMostMinutesOfDay; over the days earlier and
/// later balance. A punch neither passes nor meets another, nor leaves its own side of midnight,
/// and two that coincide move together. Days that follow each other are never moved alike, as long
/// as the times leave room for more than one way to move them.
///
/// An object keeps what it worked out for a schedule; one serves a whole list of employees.
class MinuteVariation {
  public:
    [[nodiscard]] DaySchedule vary(const DaySchedule& day, const EmployeeKey& key, Date date);

  private:
    static constexpr std::size_t kPunches = 4;
    using Punches = std::array<int, kPunches>;  ///< minutes since midnight, or kBlank
    using Moves = std::array<std::int8_t, kPunches>;

    [[nodiscard]] const std::vector<Moves>& movesOf(const Punches& punches);
    static void extend(const Punches& punches, std::size_t place, int spent, Moves& moves,
                       std::vector<Moves>& all);
    [[nodiscard]] static bool fits(const Punches& punches, std::size_t place, const Moves& moves);

    std::map<Punches, std::vector<Moves>> known_;
};

}  // namespace winvrx
