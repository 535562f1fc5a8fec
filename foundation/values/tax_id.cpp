#include "foundation/values/tax_id.h"

#include "foundation/values/digits.h"

#include <algorithm>
#include <string>

namespace winvrx {

namespace {

constexpr std::string_view kPunctuation = ".-/ ";
constexpr std::size_t kCnpjLength = 14;
constexpr std::size_t kCpfLength = 11;
constexpr std::size_t kPisLength = 11;
constexpr int kCnpjHighestWeight = 9;
constexpr int kCpfHighestWeight = 11;

bool isLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

std::string withoutPunctuation(std::string_view typed) {
    std::string kept;
    for (const char c : typed) {
        if (kPunctuation.find(c) != std::string_view::npos) continue;
        kept.push_back(c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c);
    }
    return kept;
}

/// The check digit of `base`: each character counts as its ASCII code less 48, times a weight that
/// grows from 2 at the right end to `highestWeight` and starts again.
char checkDigit(std::string_view base, int highestWeight) {
    int sum = 0;
    int weight = 2;
    for (auto c = base.rbegin(); c != base.rend(); ++c) {
        sum += (*c - '0') * weight;
        weight = weight == highestWeight ? 2 : weight + 1;
    }
    const int rest = sum % 11;
    return static_cast<char>(rest < 2 ? '0' : '0' + 11 - rest);
}

struct Form {
    std::size_t length;
    std::size_t checkDigits;
    int highestWeight;
    bool letters;
    std::string_view mask = {};  ///< '#' is a character of the number
};

constexpr Form kCnpj{kCnpjLength, 2, kCnpjHighestWeight, true, "##.###.###/####-##"};
constexpr Form kCpf{kCpfLength, 2, kCpfHighestWeight, false, "###.###.###-##"};
constexpr Form kPis{kPisLength, 1, kCnpjHighestWeight, false};

bool hasAllowedCharacters(const std::string& number, const Form& form) {
    const std::size_t base = form.length - form.checkDigits;
    for (std::size_t i = 0; i < number.size(); ++i)
        if (!isDigit(number[i]) && !(form.letters && i < base && isLetter(number[i]))) return false;
    return true;
}

/// One digit repeated satisfies the rule, and no such number was ever given out.
bool isOneCharacterRepeated(const std::string& number) {
    return number.find_first_not_of(number.front()) == std::string::npos;
}

IdCheck check(std::string_view typed, const Form& form) {
    const std::string number = withoutPunctuation(typed);
    if (number.empty()) return IdCheck::Empty;
    if (number.size() > form.length || !hasAllowedCharacters(number, form)) return IdCheck::Wrong;
    if (number.size() < form.length) return IdCheck::TooShort;
    if (isOneCharacterRepeated(number)) return IdCheck::Wrong;
    for (std::size_t i = form.length - form.checkDigits; i < form.length; ++i)
        if (number[i] != checkDigit(std::string_view(number).substr(0, i), form.highestWeight))
            return IdCheck::Wrong;
    return IdCheck::Valid;
}

/// A word, as "ISENTO", is no number although letters may be part of one.
std::string punctuated(std::string_view typed, const Form& form) {
    const std::string number = withoutPunctuation(typed);
    const bool begins = number.size() <= form.length && hasAllowedCharacters(number, form) &&
                        std::ranges::any_of(number, isDigit);
    if (!begins) return std::string(typed);
    std::string text;
    auto next = number.begin();
    for (auto place = form.mask.begin(); next != number.end(); ++place)
        text += *place == '#' ? *next++ : *place;
    return text;
}

/// "529.982.247-2" can only become a CPF: a CNPJ has its bar before the dash.
bool hasCpfMask(std::string_view typed) {
    return typed.find('-') != std::string_view::npos && typed.find('/') == std::string_view::npos;
}

}  // namespace

IdCheck checkCnpj(std::string_view typed) {
    return check(typed, kCnpj);
}

IdCheck checkCpf(std::string_view typed) {
    return check(typed, kCpf);
}

IdCheck checkPis(std::string_view typed) {
    return check(typed, kPis);
}

IdCheck checkCnpjOrCpf(std::string_view typed) {
    const IdCheck asCpf = checkCpf(typed);
    return asCpf == IdCheck::Valid || hasCpfMask(typed) ? asCpf : checkCnpj(typed);
}

std::string punctuatedCnpj(std::string_view typed) {
    return punctuated(typed, kCnpj);
}

std::string punctuatedCpf(std::string_view typed) {
    return punctuated(typed, kCpf);
}

std::string punctuatedCnpjOrCpf(std::string_view typed) {
    const std::string number = withoutPunctuation(typed);
    return punctuated(
        typed, number.size() <= kCpf.length && hasAllowedCharacters(number, kCpf) ? kCpf : kCnpj);
}

}  // namespace winvrx
