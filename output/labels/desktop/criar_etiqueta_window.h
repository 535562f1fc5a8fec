#pragma once

#include "foundation/register/desktop/register_window.h"
#include "output/labels/criar_etiqueta.h"

namespace winvrx {

/// The window of the catalogue of label texts. `labels` outlives it.
class CriarEtiquetaWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit CriarEtiquetaWindow(CriarEtiqueta& labels, QWidget* parent = nullptr);
};

}  // namespace winvrx
