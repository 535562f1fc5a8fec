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
    void addListCommands();
    void addToMenu(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                   std::function<void()> run);
    /// For a command on the whole list.
    void addToMenu(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                   bool (Empregados::*command)());

    void transfer();
    void move();
    void importCsv();
    void exportList();

    Empregados& empregados_;
    EmployeeImport& import_;
};

}  // namespace winvrx
