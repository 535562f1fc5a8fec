#pragma once

#include "foundation/desktop/screen_window.h"

class QLabel;

namespace winvrx {

class OptionGroup;
class TipoPonto;

/// The screen of card stocks: one option for each stock offered. A choice is stored at once.
class TipoPontoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `stocks` outlives the window; it is read again when the window opens.
    explicit TipoPontoWindow(TipoPonto& stocks, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildBody();
    void choose(int position);
    void showCurrent();

    TipoPonto& stocks_;
    OptionGroup* options_ = nullptr;
    QLabel* current_ = nullptr;
};

}  // namespace winvrx
