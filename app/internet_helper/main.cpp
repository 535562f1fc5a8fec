// Writes or takes away one rule for the browsers of all users. Run with the system's rights by
// pkexec, so it takes nothing but the name of a switch and "on" or "off", and touches no other file
// than the program's own rules.
//
// usage: winvrx-internet videos|images on|off

#include "foundation/files/file_system.h"
#include "tools/internet/browser_policies.h"

#include <cstdio>
#include <exception>
#include <optional>
#include <string_view>

namespace {

constexpr int kWrongUse = 2;

std::optional<winvrx::WebSwitch> switchNamed(std::string_view name) {
    for (const winvrx::WebSwitch which : {winvrx::WebSwitch::Videos, winvrx::WebSwitch::Images})
        if (winvrx::wordsOf(which).key == name) return which;
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    const auto which = argc == 3 ? switchNamed(argv[1]) : std::nullopt;
    const std::string_view state = argc == 3 ? argv[2] : "";
    if (!which || (state != "on" && state != "off")) {
        std::fputs("usage: winvrx-internet videos|images on|off\n", stderr);
        return kWrongUse;
    }
    try {
        (void)winvrx::applyPolicy(*winvrx::systemFiles(), "/", *which, state == "on");
        return 0;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
