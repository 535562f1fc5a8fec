#include "timecard/punches/day_check.h"

#include "timecard/schedule/schedule_hours.h"

#include <array>

namespace winvrx {

namespace {

using std::chrono::minutes;

constexpr minutes kDay{24 * 60};

struct NamedPair {
    const char* name;
    TimePair times;
};

/// From one time of day forward to another.
minutes between(TimeOfDay from, TimeOfDay to) {
    return (to.sinceMidnight - from.sinceMidnight + kDay) % kDay;
}

bool isBackwards(TimeOfDay from, TimeOfDay to) {
    return to < from && between(from, to) > kLongestSpell;
}

bool overlap(const TimePair& one, const TimePair& other) {
    return between(*one.entry, *other.entry) < lengthOf(one) ||
           between(*other.entry, *one.entry) < lengthOf(other);
}

std::string doubtAbout(const NamedPair& pair) {
    const auto& [entry, exit] = pair.times;
    const std::string name = pair.name;
    if (!entry && !exit) return {};
    if (!exit) return name + ": falta a saída; o par não conta.";
    if (!entry) return name + ": falta a entrada; o par não conta.";
    if (*entry == *exit) return name + ": entrada e saída iguais; o par não conta.";
    if (isBackwards(*entry, *exit)) return name + ": a saída vem antes da entrada.";
    return {};
}

}  // namespace

std::string doubtAbout(const PunchLine& line) {
    const std::array<NamedPair, 3> pairs = {NamedPair{"Manhã", line.morning()},
                                            NamedPair{"Tarde", line.afternoon()},
                                            NamedPair{"Extra", line.extra()}};
    for (const NamedPair& pair : pairs)
        if (std::string doubt = doubtAbout(pair); !doubt.empty()) return doubt;
    for (std::size_t one = 0; one < pairs.size(); ++one)
        for (std::size_t other = one + 1; other < pairs.size(); ++other)
            if (pairs[one].times.complete() && pairs[other].times.complete() &&
                overlap(pairs[one].times, pairs[other].times))
                return std::string(pairs[one].name) + " e " + pairs[other].name +
                       ": os horários se sobrepõem.";
    const TimePair& morning = pairs[0].times;
    const TimePair& afternoon = pairs[1].times;
    if (morning.complete() && afternoon.complete() && isBackwards(*morning.entry, *afternoon.exit))
        return "A tarde vem antes da manhã.";
    return {};
}

}  // namespace winvrx
