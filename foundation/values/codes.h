#pragma once

#include "foundation/values/digits.h"

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Codes stand in file names. They are built only from digits, so no code read from a file or typed
// on the screen can name a path outside the data folder.

namespace winvrx {

/// A fixed count of decimal digits, kept as text: "01", "001".
template <int Digits>
class DigitCode {
  public:
    static constexpr std::size_t kDigits = Digits;
    static constexpr int kHighest = Digits == 2 ? 99 : 999;

    /// nullopt unless `text` is exactly the right count of digits.
    [[nodiscard]] static std::optional<DigitCode> parse(std::string_view text) {
        if (text.size() != Digits || !isDigits(text)) return std::nullopt;
        return DigitCode(std::string(text));
    }

    /// nullopt outside 0 … kHighest.
    [[nodiscard]] static std::optional<DigitCode> fromNumber(int number) {
        if (number < 0 || number > kHighest) return std::nullopt;
        std::string text = std::to_string(number);
        return parse(std::string(Digits - text.size(), '0') + text);
    }

    [[nodiscard]] const std::string& text() const { return text_; }
    [[nodiscard]] int number() const { return std::stoi(text_); }
    [[nodiscard]] auto operator<=>(const DigitCode&) const = default;

  private:
    explicit DigitCode(std::string text) : text_(std::move(text)) {}

    std::string text_;
};

/// The two characters that open a company record.
using CompanyCode = DigitCode<2>;

/// The employee's number within the company, "000" to "999".
using EmployeeCode = DigitCode<3>;

/// Names one employee of one company, and so his records.
struct EmployeeKey {
    CompanyCode company;
    EmployeeCode employee;

    [[nodiscard]] auto operator<=>(const EmployeeKey&) const = default;
};

}  // namespace winvrx
