#include "personnel/contract/amount_in_words.h"

#include "foundation/values/text.h"

#include <cstdint>

namespace winvrx {

namespace {

constexpr int kThousand = 1000;
constexpr int kHundred = 100;

/// The words by their numbers; the last entry, of the cents, has none.
constexpr auto kWords = [] {
    std::array<std::string_view, kThousand + 1> words{};
    for (std::size_t entry = kNumberWords.size() - 1; entry-- > 0;) {
        const std::string_view text = kNumberWords[entry];
        const std::size_t end = text.find("=#");
        std::size_t number = 0;
        for (const char digit : text.substr(1, end - 1))
            number = number * 10 + static_cast<std::size_t>(digit - '0');
        words[number] = text.substr(end + 2);
    }
    return words;
}();
static_assert(kWords[kHundred] == "Cento" && kWords[kThousand] == "Mil" && kWords[1] == "Um");

/// Three digits or two.
void appendGroup(std::string& text, int group) {
    constexpr int kTen = 10;
    constexpr int kLastOwnWord = 20;
    if (group == kHundred) {
        text += "Cem";
        return;
    }
    std::string_view between;
    const auto append = [&](int number) {
        text += between;
        text += kWords[static_cast<std::size_t>(number)];
        between = " e ";
    };
    const int rest = group % kHundred;
    if (group > kHundred) append(group - rest);
    if (rest > kLastOwnWord) {
        append(rest - rest % kTen);
        if (rest % kTen != 0) append(rest % kTen);
    } else if (rest > 0) {
        append(rest);
    }
}

void replaceFirst(std::string& text, std::string_view part, std::string_view by) {
    if (const std::size_t at = text.find(part); at != std::string::npos)
        text.replace(at, part.size(), by);
}

}  // namespace

std::string amountInWords(Money amount) {
    const auto whole = static_cast<int>(amount.cents / kHundred);
    const auto cents = static_cast<int>(amount.cents % kHundred);
    std::string text;
    if (whole / kThousand == 1)
        text = "Mil, ";
    else if (whole / kThousand > 1) {
        appendGroup(text, whole / kThousand);
        text += " Mil, ";
    }
    appendGroup(text, whole % kThousand);
    text += " Reais ";
    if (cents == 0) return text;
    text += " e ";
    appendGroup(text, cents);
    text += " Centavos";
    return text;
}

std::string amountInProse(Money amount) {
    constexpr std::int64_t kReal = kHundred;
    std::string text = amountInWords(amount);
    if (amount.cents < kReal && amount.cents > 0) text.erase(0, text.find(" e ") + 3);
    if (amount.cents == 0) text.insert(0, "Zero");
    replaceFirst(text, ",  Reais", " Reais");
    replaceFirst(text, "Reais  e", "Reais e");
    if (amount.cents / kReal == 1) replaceFirst(text, "Reais", "Real");
    if (amount.cents % kReal == 1) replaceFirst(text, "Centavos", "Centavo");
    return std::string(trimmed(text));
}

std::optional<Money> parseAmountForWords(std::string_view typed) {
    const auto amount = parseMoney(typed);
    return amount && *amount <= kGreatestInWords ? amount : std::nullopt;
}

}  // namespace winvrx
