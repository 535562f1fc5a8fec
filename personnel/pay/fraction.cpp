#include "personnel/pay/fraction.h"

#include "foundation/values/digits.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <cstdlib>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace winvrx {

namespace {

constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
constexpr std::size_t kMostWholeDigits = 12;
constexpr std::size_t kMostDecimals = 9;
constexpr int kExactDigits = 6;

[[noreturn]] void throwTooLarge() {
    throw Fault("payroll figure past 64 bits", "O valor é grande demais para ser calculado.");
}

std::int64_t product(std::int64_t a, std::int64_t b) {
    if (b != 0 && std::abs(a) > kHighest / std::abs(b)) throwTooLarge();
    return a * b;
}

std::int64_t sum(std::int64_t a, std::int64_t b) {
    if (b > 0 ? a > kHighest - b : a < -kHighest - b) throwTooLarge();
    return a + b;
}

std::int64_t powerOfTen(int exponent) {
    std::int64_t power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

std::string groupedWhole(std::int64_t whole) {
    const std::string text = moneyText({product(whole, 100)});
    return text.substr(0, text.size() - 3);
}

}  // namespace

Fraction::Fraction(std::int64_t numerator, std::int64_t denominator) {
    if (denominator == 0) throw std::invalid_argument("fraction over zero");
    const std::int64_t common = std::gcd(numerator, denominator) * (denominator < 0 ? -1 : 1);
    numerator_ = numerator / common;
    denominator_ = denominator / common;
}

Fraction operator+(const Fraction& a, const Fraction& b) {
    const std::int64_t common = std::gcd(a.denominator_, b.denominator_);
    const std::int64_t upper = sum(product(a.numerator_, b.denominator_ / common),
                                   product(b.numerator_, a.denominator_ / common));
    return {upper, product(a.denominator_, b.denominator_ / common)};
}

Fraction operator-(const Fraction& a, const Fraction& b) {
    return a + b * Fraction(-1);
}

Fraction operator*(const Fraction& a, const Fraction& b) {
    const Fraction crossed(a.numerator_, b.denominator_);
    const Fraction other(b.numerator_, a.denominator_);
    return {product(crossed.numerator_, other.numerator_),
            product(crossed.denominator_, other.denominator_)};
}

Fraction operator/(const Fraction& a, const Fraction& b) {
    return a * Fraction(b.denominator_, b.numerator_);
}

std::strong_ordering Fraction::operator<=>(const Fraction& other) const {
    return (*this - other).numerator_ <=> 0;
}

std::int64_t roundedHalfUp(const Fraction& value) {
    const std::int64_t twice = product(value.numerator(), 2);
    const std::int64_t half = value.denominator();
    return sum(twice, twice < 0 ? -half : half) / product(half, 2);
}

std::int64_t truncated(const Fraction& value) {
    return value.numerator() / value.denominator();
}

std::optional<Fraction> parseDecimal(std::string_view text, char point) {
    text = trimmed(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative) text.remove_prefix(1);
    const std::size_t place = text.find(point);
    const std::string_view whole = text.substr(0, place);
    const std::string_view rest =
        place == std::string_view::npos ? std::string_view() : text.substr(place + 1);
    if (!isDigits(whole) || whole.size() > kMostWholeDigits || rest.size() > kMostDecimals ||
        (place != std::string_view::npos && !isDigits(rest)))
        return std::nullopt;
    Fraction value = std::stoll(std::string(whole));
    if (!rest.empty())
        value = value +
                Fraction(std::stoll(std::string(rest)), powerOfTen(static_cast<int>(rest.size())));
    return isNegative ? value * Fraction(-1) : value;
}

std::string decimalText(const Fraction& value, int digits) {
    const std::int64_t power = powerOfTen(digits);
    const std::int64_t scaled = roundedHalfUp(value * Fraction(power));
    const std::int64_t size = std::abs(scaled);
    std::string text = (scaled < 0 ? "-" : "") + groupedWhole(size / power);
    if (digits > 0) text += "," + padded(static_cast<int>(size % power), digits);
    return text;
}

std::string exactText(const Fraction& value) {
    for (int digits = 0; digits <= kExactDigits; ++digits)
        if (powerOfTen(digits) % value.denominator() == 0) return decimalText(value, digits);
    return std::to_string(value.numerator()) + "/" + std::to_string(value.denominator());
}

}  // namespace winvrx
