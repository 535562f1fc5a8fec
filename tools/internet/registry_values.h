#pragma once

#include "tools/internet/web_switch.h"

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

namespace winvrx {

/// A value of the Windows registry as a switch writes it: 32-bit numbers and texts.
struct RegistryValue {
    enum class Hive { CurrentUser, LocalMachine };

    Hive hive = Hive::CurrentUser;
    std::string_view key;
    std::string_view name;
    std::variant<std::uint32_t, std::string_view> value;
};

/// What a switch writes when it blocks, and when it releases.
[[nodiscard]] std::vector<RegistryValue> registryValues(WebSwitch which, bool blocked);

/// Where Windows has the browser that the screen opens.
inline constexpr std::string_view kWindowsBrowser =
    "C:\\Arquivos de programas\\Internet Explorer\\Iexplore.exe";

}  // namespace winvrx
