#include "tools/internet/registry_values.h"

namespace winvrx {

namespace {

using Hive = RegistryValue::Hive;

constexpr std::string_view kProxyKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
/// Of the control that plays videos, by its class identifier.
constexpr std::string_view kVideoKey =
    "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility\\"
    "{D27CDB6E-AE6D-11CF-96B8-444553540000}";
constexpr std::string_view kImageKey = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr std::uint32_t kNotLoaded = 0x400;

}  // namespace

std::vector<RegistryValue> registryValues(WebSwitch which, bool blocked) {
    const std::uint32_t on = blocked ? 1 : 0;
    switch (which) {
        case WebSwitch::Internet:
            return {{Hive::CurrentUser, kProxyKey, "ProxyEnable", on},
                    {Hive::CurrentUser, kProxyKey, "ProxyServer",
                     std::string_view(blocked ? "27.0.0.1: 5555" : "")}};
        case WebSwitch::Videos:
            return {{Hive::LocalMachine, kVideoKey, "Compatibility Flags", on * kNotLoaded}};
        case WebSwitch::Images:
            return {{Hive::CurrentUser, kImageKey, "Display Inline Images",
                     std::string_view(blocked ? "no" : "yes")}};
    }
    return {};
}

}  // namespace winvrx
