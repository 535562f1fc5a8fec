#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "output/labels/etiquetas.h"

namespace winvrx {

class Field;
class OptionGroup;
class OutputChoice;

/// The sheets of the stock control: which, for what, how many.
class EstoqueWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `labels` outlives the window.
    explicit EstoqueWindow(Etiquetas& labels, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildBody();
    void print();

    Etiquetas& labels_;
    OptionGroup* form_ = nullptr;
    Field* subject_ = nullptr;
    Field* sheets_ = nullptr;
    OutputChoice* output_ = nullptr;
};

}  // namespace winvrx
