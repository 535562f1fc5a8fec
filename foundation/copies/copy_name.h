#pragma once

#include "foundation/values/clock.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// What a safety copy is called, which tells when and why it was made:
///
///     2024-03-15-0812.zip            the day's copy, made at 08:12
///     2024-03-15-1020-antes.zip      the state before a copy was restored or much was deleted
///     2024-03-15-1020-antes-2.zip    a second one within that minute
struct CopyName {
    enum class Kind { Daily, Before };

    Clock::Moment made;
    Kind kind = Kind::Daily;
    int number = 1;

    /// nullopt for any other file.
    [[nodiscard]] static std::optional<CopyName> parse(std::string_view fileName);
    [[nodiscard]] std::string text() const;

    [[nodiscard]] bool isOlderThan(const CopyName& other) const;
    [[nodiscard]] bool operator==(const CopyName& other) const { return text() == other.text(); }
};

/// "sex, 15/03/2024 às 08:12".
[[nodiscard]] std::string momentOfCopy(const CopyName& name);

/// On how many days of use the copies reach back.
inline constexpr std::size_t kDaysOfCopies = 7;

/// Those of `copies` that are older than the last seven days with a copy of their own. Days after
/// `today` are the work of a wrong clock: they are neither counted nor removed.
[[nodiscard]] std::vector<CopyName> outdated(const std::vector<CopyName>& copies, Date today);

}  // namespace winvrx
