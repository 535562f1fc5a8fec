#include "timecard/punches/minute_variation.h"

#include <compare>
#include <cstdint>
#include <cstdlib>

namespace winvrx {

namespace {

constexpr int kBlank = -1;
constexpr int kMinutesOfDay = 24 * 60;

using Time = std::optional<TimeOfDay>;

std::array<Time*, 4> timesOf(DaySchedule& day) {
    return {&day.morning.entry, &day.morning.exit, &day.afternoon.entry, &day.afternoon.exit};
}

int minuteOf(const Time& time) {
    return time ? static_cast<int>(time->sinceMidnight.count()) : kBlank;
}

/// Spreads a number over all bits (the finalizer of SplitMix64).
std::uint64_t mixed(std::uint64_t value) {
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

/// The place of `place` in an order of 0 … count-1 that `key` shuffles: different places stay
/// different. A Feistel network on the next even number of bits, walked until it lands within.
std::uint64_t shuffled(std::uint64_t place, std::uint64_t count, std::uint64_t key) {
    constexpr std::uint64_t kRounds = 4;
    unsigned half = 1;
    while ((std::uint64_t{1} << (2 * half)) < count)
        ++half;
    const std::uint64_t mask = (std::uint64_t{1} << half) - 1;
    do {
        std::uint64_t left = place >> half;
        std::uint64_t right = place & mask;
        for (std::uint64_t round = 0; round < kRounds; ++round) {
            const std::uint64_t next = left ^ (mixed(key ^ mixed(right * kRounds + round)) & mask);
            left = right;
            right = next;
        }
        place = (left << half) | right;
    } while (place >= count);
    return place;
}

std::uint64_t daysSinceEpoch(Date date) {
    constexpr int kEpochsBack = 1'000'000;  // keeps days before 1970 positive
    return static_cast<std::uint64_t>(std::chrono::sys_days{date}.time_since_epoch().count() +
                                      kEpochsBack);
}

}  // namespace

bool MinuteVariation::fits(const Punches& punches, std::size_t place, const Moves& moves) {
    const int moved = punches[place] + moves[place];
    if (moved < 0 || moved >= kMinutesOfDay) return false;
    for (std::size_t before = 0; before < place; ++before) {
        if (punches[before] == kBlank) continue;
        const auto order = punches[before] <=> punches[place];
        if ((punches[before] + moves[before] <=> moved) != order) return false;
    }
    return true;
}

void MinuteVariation::extend(const Punches& punches, std::size_t place, int spent, Moves& moves,
                             std::vector<Moves>& all) {
    if (place == kPunches) {
        all.push_back(moves);
        return;
    }
    const bool blank = punches[place] == kBlank;
    const int most = blank ? 0 : std::min(kMostMinutesOfPunch, kMostMinutesOfDay - spent);
    for (int move = -most; move <= most; ++move) {
        moves[place] = static_cast<std::int8_t>(move);
        if (blank || fits(punches, place, moves))
            extend(punches, place + 1, spent + std::abs(move), moves, all);
    }
}

const std::vector<MinuteVariation::Moves>& MinuteVariation::movesOf(const Punches& punches) {
    std::vector<Moves>& all = known_[punches];
    Moves moves{};
    if (all.empty()) extend(punches, 0, 0, moves, all);
    return all;
}

DaySchedule MinuteVariation::vary(const DaySchedule& day, const EmployeeKey& key, Date date) {
    DaySchedule varied = day;
    const auto times = timesOf(varied);
    Punches punches{};
    for (std::size_t place = 0; place < kPunches; ++place)
        punches[place] = minuteOf(*times[place]);
    const std::vector<Moves>& all = movesOf(punches);
    const auto seed = mixed(static_cast<std::uint64_t>(key.company.number()) * 1000U +
                            static_cast<std::uint64_t>(key.employee.number()));
    const Moves& moves = all[shuffled(daysSinceEpoch(date) % all.size(), all.size(), seed)];
    for (std::size_t place = 0; place < kPunches; ++place)
        if (*times[place]) (*times[place])->sinceMidnight += std::chrono::minutes{moves[place]};
    return varied;
}

}  // namespace winvrx
