#pragma once

#include "foundation/desk/browser.h"

#include <QString>

namespace winvrx {

/// The browser that the desktop opens pages with.
class DesktopBrowser final : public Browser {
  public:
    /// `helpFolder` holds "instalacao.htm".
    explicit DesktopBrowser(QString helpFolder) : helpFolder_(std::move(helpFolder)) {}
    [[nodiscard]] bool openHelp() override;
    [[nodiscard]] bool open(const std::string& path) override;

  private:
    QString helpFolder_;
};

}  // namespace winvrx
