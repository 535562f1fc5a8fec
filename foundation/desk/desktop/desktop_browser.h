#pragma once

#include "foundation/desk/browser.h"

#include <QString>

namespace winvrx {

/// The browser that the desktop opens pages with.
class DesktopBrowser final : public Browser {
  public:
    /// `helpFolder` holds "instalacao.htm".
    explicit DesktopBrowser(QString helpFolder) : helpFolder_(std::move(helpFolder)) {}
    /// At the section of the active window, which the page knows by its object name. In a window
    /// of our own where the desktop has no browser.
    [[nodiscard]] bool openHelp() override;
    [[nodiscard]] bool open(const std::string& path) override;
    [[nodiscard]] bool openPage(const std::string& address) override;

  private:
    QString helpFolder_;
};

/// Whether the desktop has a program for such files: "text/html".
[[nodiscard]] bool hasHandlerOf(const QString& mimeType);

}  // namespace winvrx
