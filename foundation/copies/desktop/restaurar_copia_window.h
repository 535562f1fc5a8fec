#pragma once

#include "foundation/copies/restaurar_copia.h"
#include "foundation/widgets/desktop/screen_window.h"

#include <optional>

class QLabel;
class QTreeWidget;

namespace winvrx {

/// The window of the safety copies: the copies at the left, what the selected one would bring back
/// at the right. `copies` outlives it.
class RestaurarCopiaWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit RestaurarCopiaWindow(RestaurarCopia& copies, QWidget* parent = nullptr);

  private:
    void addCommands();
    [[nodiscard]] QWidget* buildList();
    [[nodiscard]] QWidget* buildPreview();

    void fillList();
    void showPreview();
    void restore();
    [[nodiscard]] std::optional<CopyName> current() const;

    RestaurarCopia& copies_;
    QTreeWidget* list_ = nullptr;
    QLabel* summary_ = nullptr;
    QTreeWidget* changes_ = nullptr;
};

}  // namespace winvrx
