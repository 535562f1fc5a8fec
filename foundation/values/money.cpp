#include "foundation/values/money.h"

#include "foundation/values/digits.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::size_t kMostDigits = 12;

/// The digits of "1.234" or "1234"; nullopt when a point does not stand before three digits.
std::optional<std::string> wholeDigits(std::string_view text) {
    std::string digits(text.substr(0, text.find('.')));
    for (std::size_t point = text.find('.'); point != std::string_view::npos;) {
        const std::size_t next = text.find('.', point + 1);
        const std::string_view group = text.substr(point + 1, next - point - 1);
        if (digits.empty() || group.size() != 3) return std::nullopt;
        digits.append(group);
        point = next;
    }
    if (!isDigits(digits) || digits.size() > kMostDigits) return std::nullopt;
    return digits;
}

}  // namespace

std::optional<Money> parseMoney(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with("R$")) text = trimmed(text.substr(2));
    const std::size_t comma = text.find(',');
    const auto whole = wholeDigits(text.substr(0, comma));
    if (!whole) return std::nullopt;
    std::string cents = "00";
    if (comma != std::string_view::npos) {
        cents = text.substr(comma + 1);
        if (!isDigits(cents) || cents.size() > 2) return std::nullopt;
        cents.resize(2, '0');
    }
    return Money{std::stoll(*whole + cents)};
}

std::string moneyText(Money money) {
    if (money.cents < 0) return "-" + moneyText({-money.cents});
    std::string whole = std::to_string(money.cents / 100);
    for (auto place = static_cast<std::ptrdiff_t>(whole.size()) - 3; place > 0; place -= 3)
        whole.insert(static_cast<std::size_t>(place), ".");
    return whole + "," + padded(static_cast<int>(money.cents % 100), 2);
}

}  // namespace winvrx
