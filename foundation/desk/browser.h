#pragma once

namespace winvrx {

/// The desktop's web browser, as far as the program needs it.
class Browser {
  public:
    virtual ~Browser() = default;

    /// Opens the help page "instalacao.htm". False when it could not be opened.
    [[nodiscard]] virtual bool openHelp() = 0;
};

}  // namespace winvrx
