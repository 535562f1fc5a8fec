#pragma once

#include "foundation/values/tax_id.h"

#include <string>
#include <string_view>

// What a form says under a field. A hint never blocks a command; it says early what the command
// would refuse, or what is likely a slip of the finger.

namespace winvrx {

struct Hint {
    enum class Tone { None, Good, Warning };

    Tone tone = Tone::None;
    std::string text = {};

    [[nodiscard]] bool operator==(const Hint&) const = default;
};

/// Whether the operator is still in the field: what is merely unfinished is said only afterwards.
enum class Entry { Typing, Left };

/// Warns of characters that the records cannot hold.
[[nodiscard]] Hint textHint(std::string_view utf8);

/// Warns of a day that does not exist or has not the form "dd/mm/aaaa".
[[nodiscard]] Hint dateHint(std::string_view text, Entry entry);

/// Puts a check of a number in words; `name` is what the number is called: "CPF".
[[nodiscard]] Hint idHint(IdCheck check, std::string_view name, Entry entry);

/// Warns of an amount that cannot be read.
[[nodiscard]] Hint moneyHint(std::string_view text, Entry entry);

/// Warns of a CBO that has not six digits; the dash before the last two may be typed.
[[nodiscard]] Hint occupationHint(std::string_view text, Entry entry);

/// "52998224725" as "529.982.247-25"; what has not eleven digits comes back as it is.
[[nodiscard]] std::string completedCpf(std::string_view text);

/// "12080700" as "12080-700"; what has not eight digits comes back as it is.
[[nodiscard]] std::string completedPostalCode(std::string_view text);

/// "1850" and "R$1.850,0" as "R$ 1.850,00"; what is no amount comes back as it is.
[[nodiscard]] std::string completedMoney(std::string_view text);

/// A date typed on the keypad in its full form: "12032024", "1/3/2024" and "12-03-2024" become
/// "12/03/2024" and the like. What is no such date comes back as it is.
[[nodiscard]] std::string completedDate(std::string_view text);

}  // namespace winvrx
