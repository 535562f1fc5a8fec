#include "foundation/values/input_checks.h"

#include "foundation/values/codes.h"
#include "foundation/values/digits.h"
#include "foundation/values/faults.h"
#include "foundation/values/money.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace winvrx {

namespace {

constexpr std::size_t kDateWidth = 10;
constexpr std::size_t kOccupationDigits = 6;

bool isDateCharacter(char c) {
    return isDigit(c) || c == '/' || c == '-' || c == '.';
}

/// Every two-digit year has a day that is not after this one.
constexpr Date kLastOfCentury{std::chrono::year{2099}, std::chrono::December, std::chrono::day{31}};

/// Day, month and year as typed; nullopt when they cannot be told apart.
std::optional<std::vector<std::string>> dateParts(std::string_view text) {
    if (!std::all_of(text.begin(), text.end(), isDateCharacter)) return std::nullopt;
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (isDigit(c))
            parts.back().push_back(c);
        else
            parts.emplace_back();
    }
    if (parts.size() == 1 && (parts[0].size() == 8 || parts[0].size() == 6))
        parts = {parts[0].substr(0, 2), parts[0].substr(2, 2), parts[0].substr(4)};
    if (parts.size() != 3 || (parts[2].size() != 4 && parts[2].size() != 2)) return std::nullopt;
    return parts;
}

/// The digits of a number typed with or without points, dashes, bars and blanks; nullopt when it
/// has another count of digits or other characters.
std::optional<std::string> digitsOf(std::string_view text, std::size_t count) {
    std::string digits;
    for (const char c : text) {
        if (isDigit(c))
            digits += c;
        else if (c != '.' && c != '-' && c != '/' && c != ' ')
            return std::nullopt;
    }
    return digits.size() == count ? std::optional(digits) : std::nullopt;
}

std::string twoDigits(const std::string& digits) {
    return digits.size() == 1 ? "0" + digits : digits;
}

/// The full form of a date, the year of which has four digits or stands for the last such day that
/// is not after `latest`. What is no such date comes back as it is.
std::string completedUntil(std::string_view text, Date latest) {
    const auto parts = dateParts(text);
    if (!parts) return std::string(text);
    const std::string beginning = twoDigits((*parts)[0]) + "/" + twoDigits((*parts)[1]) + "/";
    const std::string& year = (*parts)[2];
    if (const std::string full = beginning + year; parseDate(full)) return full;
    for (const int back : {0, 1}) {
        const std::string full = beginning + padded(int{latest.year()} / 100 - back, 2) + year;
        if (const auto date = parseDate(full); date && *date <= latest) return full;
    }
    return std::string(text);
}

/// Puts a check of a number in words; `name` is what the number is called: "CPF".
Hint idHint(IdCheck check, std::string_view name, Entry entry) {
    const std::string number(name);
    if (check == IdCheck::Valid) return {Hint::Tone::Good, number + " válido"};
    if (check == IdCheck::Wrong) return {Hint::Tone::Warning, number + " não confere."};
    if (check == IdCheck::Empty || entry == Entry::Typing) return {};
    return {Hint::Tone::Warning, number + " incompleto."};
}

}  // namespace

Hint textHint(std::string_view utf8) {
    try {
        (void)encodeWindows1252(utf8);
        return {};
    } catch (const TextFault&) {
        return {Hint::Tone::Warning, "Contém um caractere que não pode ser gravado."};
    }
}

Hint dateHint(std::string_view text, Entry entry) {
    const std::string completed = completedUntil(trimmed(text), kLastOfCentury);
    if (completed.empty() || parseDate(completed)) return {};
    const bool finished = entry == Entry::Left || completed.size() >= kDateWidth;
    if (!std::all_of(completed.begin(), completed.end(), isDateCharacter) || finished)
        return {Hint::Tone::Warning, dateParts(completed) ? "Esta data não existe no calendário."
                                                          : "Digite a data como dd/mm/aaaa."};
    return {};
}

Hint cnpjHint(std::string_view text, Entry entry) {
    return idHint(checkCnpj(text), "CNPJ", entry);
}

Hint cpfHint(std::string_view text, Entry entry) {
    return idHint(checkCpf(text), "CPF", entry);
}

Hint cnpjOrCpfHint(std::string_view text, Entry entry) {
    const IdCheck check = checkCnpjOrCpf(text);
    // The first eleven digits of a CNPJ look like a CPF.
    const bool mayGrow = check == IdCheck::Wrong && entry == Entry::Typing && digitsOf(text, 11);
    return mayGrow ? Hint{} : idHint(check, "CNPJ/CPF", entry);
}

Hint pisHint(std::string_view text, Entry entry) {
    return idHint(checkPis(text), "PIS", entry);
}

Hint moneyHint(std::string_view text, Entry entry) {
    if (trimmed(text).empty() || entry == Entry::Typing || parseMoney(text)) return {};
    return {Hint::Tone::Warning, "Digite o valor como 1.234,56."};
}

Hint occupationHint(std::string_view text, Entry entry) {
    if (trimmed(text).empty() || digitsOf(text, kOccupationDigits)) return {};
    const bool mayBecome = std::all_of(text.begin(), text.end(), isDigit);
    if (entry == Entry::Typing && mayBecome) return {};
    return {Hint::Tone::Warning, "O CBO tem seis algarismos."};
}

std::string completedCpf(std::string_view text) {
    return digitsOf(text, 11) ? punctuatedCpf(text) : std::string(text);
}

std::string completedPostalCode(std::string_view text) {
    const auto digits = digitsOf(text, 8);
    return digits ? digits->substr(0, 5) + "-" + digits->substr(5) : std::string(text);
}

std::string completedMoney(std::string_view text) {
    const auto money = parseMoney(text);
    return money ? "R$ " + moneyText(*money) : std::string(text);
}

std::string storedMoney(std::string_view text) {
    const auto money = parseMoney(text);
    return money ? moneyText(*money) : std::string(text);
}

std::string completedEmployeeCode(std::string_view text) {
    const bool isNumber = !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
    if (!isNumber || text.size() > EmployeeCode::kDigits) return std::string(text);
    return std::string(EmployeeCode::kDigits - text.size(), '0') + std::string(text);
}

std::string completedDate(std::string_view text) {
    const auto parts = dateParts(text);
    return parts && parts->back().size() == 4 ? completedUntil(text, kLastOfCentury)
                                              : std::string(text);
}

std::string completedPastDate(std::string_view text, Date today) {
    return completedUntil(text, today);
}

std::string completedContractDate(std::string_view text, Date today) {
    return completedUntil(text, today + std::chrono::years{1});
}

}  // namespace winvrx
