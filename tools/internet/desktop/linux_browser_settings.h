#pragma once

#include "tools/internet/desktop/system_browser_settings.h"

#include <filesystem>

class QJsonObject;

namespace winvrx {

/// The desktop's proxy for browsing; rules of the browsers for videos and images, written directly
/// where the user has the right, else by the helper under the system's own dialog.
class LinuxBrowserSettings final : public BrowserSettings {
  public:
    /// `root` is "/" but in tests.
    explicit LinuxBrowserSettings(BrowserSettingsDesk desk, std::filesystem::path root = "/")
        : desk_(std::move(desk)), root_(std::move(root)) {}

    Outcome apply(WebSwitch which, bool blocked) override;
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch which) const override;
    [[nodiscard]] bool openBrowser() override;

  private:
    [[nodiscard]] Outcome applyProxy(bool blocked);
    void keep(const QString& place, const QJsonObject& before, QJsonObject& kept);
    void applyGnome(bool blocked, QJsonObject& kept, Outcome& outcome);
    void applyKde(bool blocked, QJsonObject& kept, Outcome& outcome);
    [[nodiscard]] Outcome applyRule(WebSwitch which, bool blocked);
    [[nodiscard]] std::string askForRights(WebSwitch which, bool blocked) const;
    [[nodiscard]] std::filesystem::path memory() const;

    BrowserSettingsDesk desk_;
    std::filesystem::path root_;
};

}  // namespace winvrx
