#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <string>
#include <utility>
#include <vector>

// What every benchmark measures with.

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

/// Prints a figure beside its floor; true when their ratio is `mostRatio` at most.
inline bool report(const std::string& name, double ours, double floor, double mostRatio,
                   int decimals = 1) {
    const double ratio = ours / floor;
    std::printf("bench %s ours=%.*f floor=%.*f ratio=%.2f\n", name.c_str(), decimals, ours,
                decimals, floor, ratio);
    return ratio <= mostRatio;
}

/// The times of a work and of its floor. They are taken in turns, so that whatever else the machine
/// does weighs on both; the first round fills the caches and does not count.
class Figure {
  public:
    explicit Figure(std::string name, double mostRatio = std::numeric_limits<double>::infinity())
        : name_(std::move(name)), mostRatio_(mostRatio) {}

    template <typename Work>
    void ours(Work&& work) {
        ours_.push_back(milliseconds(work));
    }
    template <typename Work>
    void floor(Work&& work) {
        floor_.push_back(milliseconds(work));
    }
    /// A round that was timed elsewhere.
    void add(double ours, double floor) {
        ours_.push_back(ours);
        floor_.push_back(floor);
    }

    /// Of the medians, after two rounds at least.
    bool report(int decimals = 1) const {
        return winvrx::report(name_, median({ours_.begin() + 1, ours_.end()}),
                              median({floor_.begin() + 1, floor_.end()}), mostRatio_, decimals);
    }

  private:
    std::string name_;
    double mostRatio_;
    std::vector<double> ours_;
    std::vector<double> floor_;
};

}  // namespace winvrx
