#pragma once

#include <string>

namespace winvrx {

/// What the desktop opens pages and files with, as far as the program needs it.
class Browser {
  public:
    virtual ~Browser() = default;

    /// Opens the help page "instalacao.htm" where it speaks of the screen in front. False when it
    /// could not be opened.
    [[nodiscard]] virtual bool openHelp() = 0;
    /// Opens the file or folder of this path with what the desktop has for it. False when it could
    /// not be opened.
    [[nodiscard]] virtual bool open(const std::string& path) = 0;
    /// Opens the page of this address. False when it could not be opened.
    [[nodiscard]] virtual bool openPage(const std::string& address) = 0;
};

}  // namespace winvrx
