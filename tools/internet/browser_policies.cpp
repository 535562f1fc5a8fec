#include "tools/internet/browser_policies.h"

#include <array>

namespace winvrx {

namespace {

enum class RuleKind { Chromium, Firefox };

struct RuledBrowser {
    std::string_view name;
    std::string_view program;
    std::string_view folder;  ///< where it reads rules
    RuleKind kind;
};

constexpr std::array<RuledBrowser, 8> kBrowsers = {{
    {"Chromium", "usr/bin/chromium", "etc/chromium/policies/managed", RuleKind::Chromium},
    {"Chromium", "usr/bin/chromium-browser", "etc/chromium-browser/policies/managed",
     RuleKind::Chromium},
    {"Google Chrome", "usr/bin/google-chrome", "etc/opt/chrome/policies/managed",
     RuleKind::Chromium},
    {"Google Chrome", "usr/bin/google-chrome-stable", "etc/opt/chrome/policies/managed",
     RuleKind::Chromium},
    {"Microsoft Edge", "usr/bin/microsoft-edge", "etc/opt/edge/policies/managed",
     RuleKind::Chromium},
    {"Brave", "usr/bin/brave-browser", "etc/brave/policies/managed", RuleKind::Chromium},
    {"Firefox ESR", "usr/bin/firefox-esr", "etc/firefox-esr", RuleKind::Firefox},
    {"Firefox", "usr/bin/firefox", "etc/firefox/defaults/pref", RuleKind::Firefox},
}};

/// The rule's text; nullptr for a switch without one.
const char* ruleOf(RuleKind kind, WebSwitch which) {
    const bool isChromium = kind == RuleKind::Chromium;
    switch (which) {
        case WebSwitch::Videos:
            return isChromium ? "{\"AutoplayAllowed\": false}\n"
                              : "pref(\"media.autoplay.default\", 5, locked);\n"
                                "pref(\"media.autoplay.blocking_policy\", 2, locked);\n";
        case WebSwitch::Images:
            return isChromium ? "{\"DefaultImagesSetting\": 2}\n"
                              : "pref(\"permissions.default.image\", 2, locked);\n";
        case WebSwitch::Internet:
            break;
    }
    return nullptr;
}

std::filesystem::path ruleFile(const std::filesystem::path& root, const RuledBrowser& browser,
                               WebSwitch which) {
    const std::string name = "winvrx-" + std::string(wordsOf(which).key) +
                             (browser.kind == RuleKind::Chromium ? ".json" : ".js");
    return root / browser.folder / name;
}

void addOnce(std::vector<std::string>& names, std::string_view name) {
    if (names.empty() || names.back() != name) names.emplace_back(name);
}

void writeRule(FileSystem& files, const std::filesystem::path& file, std::string_view rule) {
    if (files.exists(file) && files.read(file) == rule) return;
    files.makeFolder(file.parent_path());
    files.replace(file, rule);
}

}  // namespace

std::vector<std::string> applyPolicy(FileSystem& files, const std::filesystem::path& root,
                                     WebSwitch which, bool blocked) {
    std::vector<std::string> reached;
    for (const RuledBrowser& browser : kBrowsers) {
        const char* rule = ruleOf(browser.kind, which);
        if (!rule) continue;
        const auto file = ruleFile(root, browser, which);
        if (blocked && files.exists(root / browser.program)) {
            writeRule(files, file, rule);
            addOnce(reached, browser.name);
        } else if (!blocked && files.exists(file)) {
            (void)files.remove(file);
            addOnce(reached, browser.name);
        }
    }
    return reached;
}

std::vector<std::string> browsersWithPolicy(const FileSystem& files,
                                            const std::filesystem::path& root, WebSwitch which) {
    std::vector<std::string> names;
    for (const RuledBrowser& browser : kBrowsers)
        if (ruleOf(browser.kind, which) && files.exists(ruleFile(root, browser, which)))
            addOnce(names, browser.name);
    return names;
}

}  // namespace winvrx
