#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

// What every benchmark measures with: the time of a piece of work, and its line beside the floor.

namespace winvrx {

template <typename Work>
[[nodiscard]] double milliseconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// `values` holds at least one; of two in the middle the later.
[[nodiscard]] inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Prints the medians and returns their ratio.
inline double report(const char* name, const std::vector<double>& ours,
                     const std::vector<double>& floor) {
    const double ratio = median(ours) / median(floor);
    std::printf("bench %s ours=%.1f floor=%.1f ratio=%.2f\n", name, median(ours), median(floor),
                ratio);
    return ratio;
}

}  // namespace winvrx
