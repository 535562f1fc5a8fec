#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace winvrx {

class EmployeePicker;
class Turnos;

/// The window of the screen that changes shifts: pick the filter, an employee, the new shift.
/// `turnos` outlives it.
class TurnosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit TurnosWindow(Turnos& turnos, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildShifts();
    void buildCommands();
    void showSelected();
    void changeShift();

    Turnos& turnos_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* details_ = nullptr;
    QListWidget* shifts_ = nullptr;
};

}  // namespace winvrx
