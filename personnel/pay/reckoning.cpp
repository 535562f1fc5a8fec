#include "personnel/pay/reckoning.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kMinutesAnHour = 60;
constexpr int kSecondsAnHour = 3600;

Fraction hoursOf(std::chrono::seconds duration) {
    return {duration.count(), kSecondsAnHour};
}

std::string hoursText(std::chrono::seconds duration) {
    const std::int64_t minutes = duration.count() / kMinutesAnHour;
    if (duration.count() % kMinutesAnHour != 0) return decimalText(hoursOf(duration), 4) + " h";
    const std::int64_t rest = minutes % kMinutesAnHour;
    return std::to_string(minutes / kMinutesAnHour) + (rest < 10 ? ":0" : ":") +
           std::to_string(rest);
}

}  // namespace

std::string memoText(const MemoLine& line) {
    return line.figures.empty() ? line.words : line.words + ": " + line.figures;
}

void append(Memo& memo, const Memo& more) {
    memo.insert(memo.end(), more.begin(), more.end());
}

Reckoning operator+(Reckoning sum, const Reckoning& part) {
    append(sum.memo, part.memo);
    return {sum.amount + part.amount, std::move(sum.memo)};
}

Reckoning following(const Memo& steps, const Reckoning& last) {
    Reckoning whole{last.amount, steps};
    append(whole.memo, last.memo);
    return whole;
}

Reckoning smallerOf(const Reckoning& a, const Reckoning& b, std::string_view words) {
    Reckoning smaller{std::min(a.amount, b.amount), (a + b).memo};
    smaller.memo.push_back({std::string(words), moneyText(smaller.amount)});
    return smaller;
}

Money operator+(Money a, Money b) {
    return {a.cents + b.cents};
}

Money operator-(Money a, Money b) {
    return {a.cents - b.cents};
}

Money atLeastZero(Money money) {
    return std::max(money, Money{});
}

Sum::Sum(std::initializer_list<Money> terms) {
    int shown = 0;
    for (const Money& term : terms) {
        if (term.cents == 0) continue;
        value_ = value_ + Fraction(term);
        text_ += (shown++ == 0 ? "" : " + ") + moneyText(term);
    }
    if (shown == 0) text_ = moneyText({});
    if (shown > 1) text_ = "(" + text_ + ")";
}

Sum Sum::over(const Fraction& divisor) && {
    value_ = value_ / divisor;
    text_ += " ÷ " + exactText(divisor);
    return std::move(*this);
}

Sum Sum::times(const Fraction& factor) && {
    value_ = value_ * factor;
    text_ += " × " + exactText(factor);
    return std::move(*this);
}

Sum Sum::percent(const Fraction& rate) && {
    value_ = value_ * rate / Fraction(100);
    text_ += " × " + exactText(rate) + "%";
    return std::move(*this);
}

Sum Sum::hours(std::chrono::seconds duration) && {
    value_ = value_ * hoursOf(duration);
    text_ += " × " + hoursText(duration);
    return std::move(*this);
}

Sum Sum::minus(Money amount) && {
    value_ = value_ - Fraction(amount);
    text_ += " − " + moneyText(amount);
    return std::move(*this);
}

Sum Sum::inCents() && {
    const Money cents{roundedHalfUp(value_)};
    if (value_ != Fraction(cents)) text_ += " = " + moneyText(cents);
    value_ = cents;
    return std::move(*this);
}

Reckoning Sum::rounded(std::string words) const {
    return reckoned(std::move(words), roundedHalfUp(value_));
}

Reckoning Sum::truncated(std::string words) const {
    return reckoned(std::move(words), winvrx::truncated(value_));
}

Reckoning Sum::reckoned(std::string words, std::int64_t cents) const {
    const Money amount{cents};
    const std::string result = moneyText(amount);
    return {amount, {{std::move(words), text_ == result ? result : text_ + " = " + result}}};
}

}  // namespace winvrx
