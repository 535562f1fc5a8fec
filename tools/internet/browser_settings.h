#pragma once

#include "tools/internet/web_switch.h"

#include <string>
#include <vector>

namespace winvrx {

/// The settings of this computer's browsers, as far as the switches reach them.
class BrowserSettings {
  public:
    struct Outcome {
        std::vector<std::string> reached;   ///< "Chromium", "Área de trabalho (GNOME)"
        std::vector<std::string> problems;  ///< what could not be done, a sentence each
    };

    virtual ~BrowserSettings() = default;

    /// Blocks or releases; twice the same changes nothing more. What stood before a block comes
    /// back with the release.
    virtual Outcome apply(WebSwitch which, bool blocked) = 0;
    /// Where the switch blocks now.
    [[nodiscard]] virtual std::vector<std::string> blockedIn(WebSwitch which) const = 0;
    /// Starts a browser. False when there is none.
    [[nodiscard]] virtual bool openBrowser() = 0;
};

}  // namespace winvrx
