#pragma once

#include "foundation/files/file_system.h"

#include <QJsonObject>
#include <QString>

#include <optional>

// The proxy of the user's desktop, which browsers follow. Blocking names 27.0.0.1, port 5555, where
// no proxy answers; what was set before is handed back to be kept, and set again with the release.

namespace winvrx {

/// GNOME and the desktops that share its settings, by its own command.
class GnomeProxy {
  public:
    [[nodiscard]] static bool isThere();
    [[nodiscard]] static bool isBlocked();
    /// What is set, to be kept before a block; nullopt when it cannot be told.
    [[nodiscard]] static std::optional<QJsonObject> present();
    /// False when it could not be changed.
    [[nodiscard]] static bool block();
    /// Sets what was kept again; what is not in it as if nobody had ever set it.
    [[nodiscard]] static bool release(const QJsonObject& before);
};

/// KDE, by its settings file. Throws FileFault.
class KdeProxy {
  public:
    explicit KdeProxy(FileSystem& files);

    [[nodiscard]] bool isThere() const;
    [[nodiscard]] bool isBlocked() const;
    [[nodiscard]] QJsonObject present() const;
    void block();
    void release(const QJsonObject& before);

  private:
    FileSystem& files_;
    std::filesystem::path file_;
};

}  // namespace winvrx
