#pragma once

#include "foundation/values/date.h"
#include "foundation/values/tax_id.h"

#include <string>
#include <string_view>
#include <vector>

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

/// Say whether a number is complete and its check digits agree.
[[nodiscard]] Hint cnpjHint(std::string_view text, Entry entry);
[[nodiscard]] Hint cpfHint(std::string_view text, Entry entry);
[[nodiscard]] Hint cnpjOrCpfHint(std::string_view text, Entry entry);
[[nodiscard]] Hint pisHint(std::string_view text, Entry entry);

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

/// The same as the record holds it: "1.850,00".
[[nodiscard]] std::string storedMoney(std::string_view text);

/// "7" as "007"; what is no number of at most three digits comes back as it is.
[[nodiscard]] std::string completedEmployeeCode(std::string_view text);

/// A date typed on the keypad in its full form: "12032024", "1/3/2024" and "12-03-2024" become
/// "12/03/2024" and the like. What is no such date comes back as it is.
[[nodiscard]] std::string completedDate(std::string_view text);

/// The same where the year may have two digits, "15/3/80" and "150380": the last such day that is
/// not after today, for a birth, or after the same day next year, for a day on a contract.
[[nodiscard]] std::string completedPastDate(std::string_view text, Date today);
[[nodiscard]] std::string completedContractDate(std::string_view text, Date today);

/// One of a few codes that a field takes, and the text that it is shown by.
struct Choice {
    std::string code;
    std::string text;
};

/// What a field of a form takes: how it is picked or typed, checked, and brought into its full
/// form. A plain text has none of these.
struct FieldKind {
    Hint (*hint)(std::string_view text, Entry entry) = nullptr;
    /// The full form that a field shows when it is left; of a choice, the code that a stored text
    /// means.
    std::string (*completed)(std::string_view text) = nullptr;
    /// The full form of what is told from the day on which it is typed.
    std::string (*completedOn)(std::string_view text, Date today) = nullptr;
    /// What the record holds, where a field shows more than that.
    std::string (*stored)(std::string_view shown) = nullptr;
    std::vector<Choice> (*choices)() = nullptr;
    bool isNotes = false;       ///< wrapped over several lines
    std::size_t lineWidth = 0;  ///< of notes that are lines of so many characters; ENTER ends one
    bool completesTyping = false;  ///< the full form is given with every key, as far as it goes
    enum class Shape { Text, Number, Time } shape = Shape::Text;
};

inline constexpr FieldKind kTextField{};
inline constexpr FieldKind kNotesField{.isNotes = true};
inline constexpr FieldKind kNumberField{.shape = FieldKind::Shape::Number};
inline constexpr FieldKind kBirthDateField{.hint = dateHint, .completedOn = completedPastDate};
inline constexpr FieldKind kContractDateField{.hint = dateHint,
                                              .completedOn = completedContractDate};
inline constexpr FieldKind kCnpjField{
    .hint = cnpjHint, .completed = punctuatedCnpj, .completesTyping = true};
inline constexpr FieldKind kCpfField{
    .hint = cpfHint, .completed = punctuatedCpf, .completesTyping = true};
inline constexpr FieldKind kCnpjOrCpfField{
    .hint = cnpjOrCpfHint, .completed = punctuatedCnpjOrCpf, .completesTyping = true};
inline constexpr FieldKind kPisField{pisHint};
inline constexpr FieldKind kOccupationField{occupationHint};
inline constexpr FieldKind kPostalCodeField{nullptr, completedPostalCode};
inline constexpr FieldKind kMoneyField{
    .hint = moneyHint, .completed = completedMoney, .stored = storedMoney};
inline constexpr FieldKind kEmployeeCodeField{nullptr, completedEmployeeCode};

}  // namespace winvrx
