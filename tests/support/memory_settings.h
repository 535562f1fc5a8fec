#pragma once

#include "foundation/desk/user_settings.h"

#include <map>

namespace winvrx::testing {

class MemorySettings final : public UserSettings {
  public:
    std::map<std::string, std::string, std::less<>> kept;

    [[nodiscard]] std::string value(std::string_view name) const override {
        const auto found = kept.find(name);
        return found == kept.end() ? std::string() : found->second;
    }
    void keep(std::string_view name, std::string_view value) override {
        kept[std::string(name)] = value;
    }
};

}  // namespace winvrx::testing
