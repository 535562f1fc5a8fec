#pragma once

#include "foundation/files/record_fields.h"
#include "foundation/values/input_checks.h"
#include "foundation/values/tax_id.h"
#include "foundation/values/text.h"

#include <string>
#include <string_view>
#include <vector>

// What speaks against a text of a record, so that it can be said beside its field, be named in a
// message and lead the cursor there.

namespace winvrx {

template <typename Record>
struct Finding {
    std::string Record::*member;
    std::string text;  ///< "31/02/1980 não existe."
};

template <typename Record>
using Findings = std::vector<Finding<Record>>;

/// "Nascimento: 31/02/1980 não existe."
template <typename Record>
[[nodiscard]] std::string captioned(const Finding<Record>& finding) {
    const auto& field = fieldHolding(RecordLayout<Record>::kFields, finding.member);
    return std::string(field.caption) + ": " + finding.text;
}

/// The required fields that are empty; their texts are the captions.
template <typename Record>
[[nodiscard]] Findings<Record> missingIn(const Record& typed) {
    Findings<Record> missing;
    for (const auto& field : RecordLayout<Record>::kFields)
        if (field.isRequired && trimmed(typed.*field.member).empty())
            missing.push_back({field.member, std::string(field.caption)});
    return missing;
}

/// "Falta preencher: Nome, Turno."
template <typename Record>
[[nodiscard]] std::string missingText(const Findings<Record>& missing) {
    return "Falta preencher: " + joined(missing, ", ", &Finding<Record>::text) + ".";
}

/// The texts changed since `before` that no record can hold.
template <typename Record>
[[nodiscard]] Findings<Record> unstorableIn(const Record& typed, const Record& before) {
    Findings<Record> found;
    for (const auto& field : RecordLayout<Record>::kFields) {
        const std::string& text = typed.*field.member;
        if (text == before.*field.member) continue;
        if (const Hint hint = textHint(text); hint.tone == Hint::Tone::Warning)
            found.push_back({field.member, hint.text});
    }
    return found;
}

/// A field that holds a number with check digits.
template <typename Record>
struct CheckedNumber {
    std::string Record::*member;
    IdCheck (*check)(std::string_view typed);
};

/// The numbers changed since `before` whose check digits do not agree.
template <typename Record, typename Numbers>
[[nodiscard]] Findings<Record> doubtfulNumbers(const Numbers& numbers, const Record& typed,
                                               const Record& before) {
    Findings<Record> found;
    for (const CheckedNumber<Record>& number : numbers) {
        const std::string& text = typed.*number.member;
        if (text == before.*number.member) continue;
        const IdCheck check = number.check(text);
        if (check == IdCheck::Wrong) found.push_back({number.member, text + " não confere."});
        if (check == IdCheck::TooShort)
            found.push_back({number.member, text + " está incompleto."});
    }
    return found;
}

}  // namespace winvrx
