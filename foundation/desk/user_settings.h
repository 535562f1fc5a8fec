#pragma once

#include <string>
#include <string_view>

namespace winvrx {

/// What is kept for the user of this computer, apart from the records: short texts by name. It may
/// be lost without harm.
class UserSettings {
  public:
    virtual ~UserSettings() = default;

    /// Empty for what was never kept.
    [[nodiscard]] virtual std::string value(std::string_view name) const = 0;
    virtual void keep(std::string_view name, std::string_view value) = 0;
};

}  // namespace winvrx
