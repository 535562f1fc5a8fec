#pragma once

#include "foundation/register/desktop/register_window.h"

class QMenu;

namespace winvrx {

class EmployeeImport;
class Empregados;

/// The window of the employee register. `empregados` and `import` outlive it.
class EmpregadosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    EmpregadosWindow(Empregados& empregados, EmployeeImport& import, QWidget* parent = nullptr);

  private:
    using Command = void (EmpregadosWindow::*)();

    void addListCommands();
    void addToMenu(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                   Command command);

    void transfer();
    void move();
    void sortByName();
    void sortByAdmission();
    void report();
    void importCsv();
    void exportList();
    void removeAll();

    Empregados& empregados_;
    EmployeeImport& import_;
};

}  // namespace winvrx
