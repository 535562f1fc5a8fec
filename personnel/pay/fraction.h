#pragma once

#include "foundation/values/money.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Exact arithmetic between the figures of a payroll and its one rounding. An amount in a Fraction
// is in cents.

namespace winvrx {

/// A quotient of whole numbers, always reduced. A result that 64 bits cannot hold throws a Fault:
/// nothing wraps around.
class Fraction {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): a whole number is a fraction
    constexpr Fraction(std::int64_t whole = 0) : numerator_(whole) {}
    // NOLINTNEXTLINE(google-explicit-constructor): an amount is a count of cents
    constexpr Fraction(Money money) : numerator_(money.cents) {}
    /// Requires denominator != 0.
    Fraction(std::int64_t numerator, std::int64_t denominator);

    [[nodiscard]] std::int64_t numerator() const { return numerator_; }
    [[nodiscard]] std::int64_t denominator() const { return denominator_; }

    friend Fraction operator+(const Fraction& a, const Fraction& b);
    friend Fraction operator-(const Fraction& a, const Fraction& b);
    friend Fraction operator*(const Fraction& a, const Fraction& b);
    /// Requires b != 0.
    friend Fraction operator/(const Fraction& a, const Fraction& b);

    [[nodiscard]] bool operator==(const Fraction&) const = default;
    [[nodiscard]] std::strong_ordering operator<=>(const Fraction& other) const;

  private:
    std::int64_t numerator_ = 0;
    std::int64_t denominator_ = 1;  ///< above zero
};

/// The nearest whole number; of two that are as near the one further from zero.
[[nodiscard]] std::int64_t roundedHalfUp(const Fraction& value);
/// Without what lies behind the whole number.
[[nodiscard]] std::int64_t truncated(const Fraction& value);

/// "12", "7,5" or, with '.' as `point`, "7.5": digits with at most nine behind the point, a sign in
/// front allowed; nullopt for anything else.
[[nodiscard]] std::optional<Fraction> parseDecimal(std::string_view text, char point = ',');

/// "13,6364": half up at so many digits behind the comma.
[[nodiscard]] std::string decimalText(const Fraction& value, int digits);
/// "1,5", as short as it is exact; "8/7" for what no decimal number of six digits says.
[[nodiscard]] std::string exactText(const Fraction& value);

}  // namespace winvrx
