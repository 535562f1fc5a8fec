#pragma once

#include "foundation/desk/command.h"
#include "tools/internet/browser_settings.h"

#include <array>
#include <chrono>
#include <optional>

namespace winvrx {

/// The check box of the screen: while this file stands, the switches are applied again at each
/// start of the program.
inline constexpr std::string_view kKeepBlockedMarker = "Wbse.pdx";
inline constexpr std::string_view kKeepBlockedLine = "System WbLc";

/// The screen that takes browsing, videos and images from this computer's browsers.
class WebNi {
  public:
    struct State {
        bool blocked = false;
        std::optional<std::chrono::nanoseconds> since = {};  ///< from 1970, of the marker
        std::vector<std::string> places = {};                ///< where it blocks
        std::vector<std::string> problems = {};              ///< of the last change
    };

    WebNi(const Workplace& at, BrowserSettings& browsers) : at_(at), browsers_(browsers) {}

    /// Reads the markers. False, and told, when the folder cannot be read.
    bool load();
    [[nodiscard]] const State& state(WebSwitch which) const {
        return states_[static_cast<std::size_t>(which)];
    }
    [[nodiscard]] bool keepsBlocked() const { return keepsBlocked_; }

    bool block(WebSwitch which);
    /// Asks first.
    bool release(WebSwitch which);
    bool setKeepsBlocked(bool keeps);
    /// Applies all switches as their markers say, where the box is ticked. For the start.
    void applyAgain();
    void openBrowser();

  private:
    [[nodiscard]] bool changeMarker(WebSwitch which, bool blocked);
    void apply(WebSwitch which, bool blocked);

    Workplace at_;
    BrowserSettings& browsers_;
    std::array<State, kWebSwitches.size()> states_;
    bool keepsBlocked_ = false;
};

}  // namespace winvrx
