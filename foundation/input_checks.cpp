#include "foundation/input_checks.h"

#include "foundation/date.h"
#include "foundation/faults.h"
#include "foundation/text.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace winvrx {

namespace {

constexpr std::size_t kDateWidth = 10;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isDateCharacter(char c) {
    return isDigit(c) || c == '/' || c == '-' || c == '.';
}

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
    if (parts.size() == 1 && parts[0].size() == 8)
        parts = {parts[0].substr(0, 2), parts[0].substr(2, 2), parts[0].substr(4)};
    if (parts.size() != 3 || parts[2].size() != 4) return std::nullopt;
    return parts;
}

std::string twoDigits(const std::string& digits) {
    return digits.size() == 1 ? "0" + digits : digits;
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
    const std::string completed = completedDate(trimmed(text));
    if (completed.empty() || parseDate(completed)) return {};
    const bool finished = entry == Entry::Left || completed.size() >= kDateWidth;
    if (!std::all_of(completed.begin(), completed.end(), isDateCharacter) || finished)
        return {Hint::Tone::Warning, dateParts(completed) ? "Esta data não existe no calendário."
                                                          : "Digite a data como dd/mm/aaaa."};
    return {};
}

Hint idHint(IdCheck check, std::string_view name, Entry entry) {
    const std::string number(name);
    switch (check) {
        case IdCheck::Empty:
            return {};
        case IdCheck::Valid:
            return {Hint::Tone::Good, number + " válido"};
        case IdCheck::Wrong:
            return {Hint::Tone::Warning, number + " não confere."};
        case IdCheck::TooShort:
            break;
    }
    if (entry == Entry::Typing) return {};
    return {Hint::Tone::Warning, number + " incompleto."};
}

std::string completedDate(std::string_view text) {
    if (const auto parts = dateParts(text)) {
        std::string full =
            twoDigits((*parts)[0]) + "/" + twoDigits((*parts)[1]) + "/" + (*parts)[2];
        if (parseDate(full)) return full;
    }
    return std::string(text);
}

}  // namespace winvrx
