#pragma once

#include "foundation/register/desktop/register_window.h"

namespace winvrx {

class Eventos;

/// The window of a catalogue of payroll events. `events` outlives it.
class EventosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    /// `owner` says whose catalogue it is: the company, or an employee.
    EventosWindow(Eventos& events, const QString& owner, QWidget* parent = nullptr);
};

}  // namespace winvrx
