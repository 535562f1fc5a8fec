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
    std::string_view caption;
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

template <typename Record, typename Fields>
[[nodiscard]] Record decodeFields(const Fields& fields, std::string_view lineBytes) {
    Record record;
    for (const auto& field : fields)
        record.*field.member = fieldOf(lineBytes, field.column);
    return record;
}

/// Writes the fields whose text is not that of `before`. Throws TextFault when a text cannot be
/// stored.
template <typename Record, typename Fields>
void putFields(const Fields& fields, const Record& record, const Record& before, RecordLine& line) {
    for (const auto& field : fields)
        if (record.*field.member != before.*field.member)
            line.put(field.column, record.*field.member);
}

}  // namespace winvrx
