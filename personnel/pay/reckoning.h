#pragma once

#include "personnel/pay/fraction.h"

#include <chrono>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// How an amount came about, told to the person who receives it. The sum is worked out and written
// down by the same calls, so that words and figures cannot differ:
//
//     Sum(salary).over(220).times({3, 2}).hours(10h).rounded("Horas extras")
//         amount  204,55
//         memo    "Horas extras: 3.000,00 ÷ 220 × 1,5 × 10:00 = 204,55"

namespace winvrx {

/// One line of an explanation. Of a remark the figures are empty.
struct MemoLine {
    std::string words;
    std::string figures = {};

    [[nodiscard]] bool operator==(const MemoLine&) const = default;
};

/// "Horas extras: 3.000,00 ÷ 220 × 1,5 × 10:00 = 204,55".
[[nodiscard]] std::string memoText(const MemoLine& line);

using Memo = std::vector<MemoLine>;

/// An amount with its explanation.
struct Reckoning {
    Money amount;
    Memo memo = {};

    [[nodiscard]] bool operator==(const Reckoning&) const = default;
};

void append(Memo& memo, const Memo& more);

/// Both amounts, one explanation behind the other.
[[nodiscard]] Reckoning operator+(Reckoning sum, const Reckoning& part);
/// The last of several steps, explained with those before it.
[[nodiscard]] Reckoning following(const Memo& steps, const Reckoning& last);

/// The smaller, with both explanations and what decides.
[[nodiscard]] Reckoning smallerOf(const Reckoning& a, const Reckoning& b, std::string_view words);

[[nodiscard]] Money operator+(Money a, Money b);
[[nodiscard]] Money operator-(Money a, Money b);
/// `money`, or nothing where it is below zero.
[[nodiscard]] Money atLeastZero(Money money);

/// A sum as it is worked out: exact to its end, where it is rounded once.
class Sum {
  public:
    explicit Sum(Money start) : value_(start), text_(moneyText(start)) {}
    /// "(100,00 + 50,00)"; amounts of zero stand out.
    explicit Sum(std::initializer_list<Money> terms);

    /// Requires divisor != 0.
    [[nodiscard]] Sum over(const Fraction& divisor) &&;
    [[nodiscard]] Sum times(const Fraction& factor) &&;
    /// × 7,5%
    [[nodiscard]] Sum percent(const Fraction& rate) &&;
    /// × 10:00; × 10,01 h where it has seconds
    [[nodiscard]] Sum hours(std::chrono::seconds duration) &&;
    [[nodiscard]] Sum minus(Money amount) &&;
    /// The value so far in whole cents, half up, as some employers round an hour's value.
    [[nodiscard]] Sum inCents() &&;

    [[nodiscard]] const Fraction& value() const { return value_; }
    [[nodiscard]] const std::string& text() const { return text_; }

    [[nodiscard]] Reckoning rounded(std::string words) const;
    [[nodiscard]] Reckoning truncated(std::string words) const;

  private:
    [[nodiscard]] Reckoning reckoned(std::string words, std::int64_t cents) const;

    Fraction value_;
    std::string text_;
};

}  // namespace winvrx
