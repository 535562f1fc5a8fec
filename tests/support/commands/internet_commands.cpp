// What the screen of the browser switches writes in the data folder.
#include "tests/support/commands/writing_commands.h"
#include "tools/internet/web_ni.h"

namespace winvrx::testing {

namespace {

struct NoBrowsers final : BrowserSettings {
    Outcome apply(WebSwitch, bool) override { return {}; }
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch) const override { return {}; }
    [[nodiscard]] bool openBrowser() override { return true; }
};

template <typename Next>
auto atSwitches(Next next) {
    return [next](const Workplace& at, const Drives&) {
        NoBrowsers browsers;
        WebNi screen(at, browsers);
        return next(screen);
    };
}

}  // namespace

std::vector<WritingCommand> internetCommands() {
    FileTable blocked = filledOffice();
    blocked[inDataFolder("Wblc.pdx")] = "System WbLc\r\n";
    return {{"block_internet", filledOffice(),
             atSwitches([](WebNi& screen) { return screen.block(WebSwitch::Internet); })},
            {"release_internet", blocked,
             atSwitches([](WebNi& screen) { return screen.release(WebSwitch::Internet); })}};
}

}  // namespace winvrx::testing
