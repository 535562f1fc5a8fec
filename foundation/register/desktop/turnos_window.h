#pragma once

#include "foundation/register/employee.h"
#include "foundation/widgets/desktop/screen_window.h"

#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace winvrx {

class RegisterList;
class Turnos;

/// The window of the screen that changes shifts: pick the filter, an employee, the new shift.
/// `turnos` outlives it.
class TurnosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit TurnosWindow(Turnos& turnos, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildLists();
    [[nodiscard]] QWidget* buildShifts();
    [[nodiscard]] QComboBox* buildFilter(QWidget* parent);
    void buildCommands();
    void showList();
    void select(std::optional<std::size_t> position);
    void changeShift();

    Turnos& turnos_;
    std::vector<Employee> shown_;
    std::optional<std::size_t> current_;
    RegisterList* list_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* details_ = nullptr;
    QListWidget* shifts_ = nullptr;
};

}  // namespace winvrx
