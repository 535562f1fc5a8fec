#pragma once

#include "foundation/files/record_file.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

// A record whose fields are all texts is one constexpr table of RecordField. The table is the one
// place that knows the layout; reading, writing and the screen's captions come from it.

namespace winvrx {

/// One field of a record, with the caption that the screen shows.
template <typename Record>
struct RecordField {
    std::string Record::*member;
    Column column;
    std::string_view caption = {};
    bool isRequired = false;  ///< nothing is recorded without it
};

/// Each field begins where the one before it ends, and the last one ends with the line.
template <typename Fields>
[[nodiscard]] constexpr bool isContiguous(const Fields& fields, std::size_t width) {
    std::size_t next = 1;
    for (const auto& field : fields) {
        if (field.column.start != next) return false;
        next = field.column.end();
    }
    return next == width + 1;
}

/// Fields stand in order, none covers another, and the last one ends with the line.
template <typename Fields>
[[nodiscard]] constexpr bool isOrdered(const Fields& fields, std::size_t width) {
    std::size_t next = 1;
    for (const auto& field : fields) {
        if (field.column.start < next) return false;
        next = field.column.end();
    }
    return next == width + 1;
}

/// Throws std::logic_error for a member that the table does not have.
template <typename Fields, typename Member>
[[nodiscard]] const auto& fieldHolding(const Fields& fields, Member member) {
    for (const auto& field : fields)
        if (field.member == member) return field;
    throw std::logic_error("member without a column");
}

/// A table of fields, the width of a new line, and the least width of a rewritten one.
template <const auto& Fields, std::size_t Width, std::size_t Least = Width>
struct LineLayout {
    static_assert(isOrdered(Fields, Width));
    static constexpr const auto& kFields = Fields;
    static constexpr std::size_t kWidth = Width;
    static constexpr std::size_t kLeast = Least;
};

/// Each such record says what its layout is:
///
///     template <>
///     struct RecordLayout<Company> : LineLayout<kCompanyFields, kCompanyWidth> {};
template <typename Record>
struct RecordLayout;

template <typename Record>
concept LaidOut = requires {
    RecordLayout<Record>::kFields;
};

template <LaidOut Record>
[[nodiscard]] Record decode(std::string_view lineBytes) {
    Record record;
    for (const auto& field : RecordLayout<Record>::kFields)
        record.*field.member = fieldOf(lineBytes, field.column);
    return record;
}

/// The line's bytes, built upon `existing`: only fields whose text changed are written, so that
/// encode(decode(line), line) keeps every byte of the line, whatever stands in it. Throws TextFault
/// when a text cannot be stored.
template <LaidOut Record>
[[nodiscard]] std::string encode(const Record& record, std::string existing = {}) {
    using Layout = RecordLayout<Record>;
    const Record before = decode<Record>(existing);
    const std::size_t least = existing.empty() ? Layout::kWidth : Layout::kLeast;
    RecordLine line(std::move(existing), least);
    for (const auto& field : Layout::kFields)
        if (record.*field.member != before.*field.member)
            line.put(field.column, record.*field.member);
    return line.bytes();
}

}  // namespace winvrx
