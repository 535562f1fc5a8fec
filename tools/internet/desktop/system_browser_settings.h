#pragma once

#include "foundation/files/file_system.h"
#include "tools/internet/browser_settings.h"

#include <QString>

#include <memory>

namespace winvrx {

/// What the adapter of a system takes from outside.
struct BrowserSettingsDesk {
    FileSystem& files;
    QString ownFolder;      ///< the user's own, where what stood before a block is kept
    QString programFolder;  ///< the helper that writes rules for all users lies in it
};

/// The settings of this computer: registry values on Windows; elsewhere the proxy of the desktop
/// and the browsers' rules.
[[nodiscard]] std::unique_ptr<BrowserSettings> systemBrowserSettings(BrowserSettingsDesk desk);

}  // namespace winvrx
