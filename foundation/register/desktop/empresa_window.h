#pragma once

#include "foundation/register/desktop/register_window.h"
#include "foundation/register/empresa.h"

namespace winvrx {

/// The window of the company register. `empresa` outlives it.
class EmpresaWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit EmpresaWindow(Empresa& empresa, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildOptions(Empresa& empresa);
};

}  // namespace winvrx
