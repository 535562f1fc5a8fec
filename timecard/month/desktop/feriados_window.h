#pragma once

#include "foundation/register/desktop/register_window.h"
#include "timecard/month/feriados.h"

namespace winvrx {

/// The window of the town's and the state's holidays. `holidays` outlives it.
class FeriadosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit FeriadosWindow(Feriados& holidays, QWidget* parent = nullptr);
};

}  // namespace winvrx
