#pragma once

#include "foundation/widgets/desktop/register_window.h"

#include <functional>

class QMenu;

namespace winvrx {

class EmployeeForm;
class EmployeeImport;
class Empregados;
struct EmployeeLine;

/// The window of the employee register. `empregados` and `import` outlive it.
class EmpregadosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    EmpregadosWindow(Empregados& empregados, EmployeeImport& import, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] std::vector<RegisterList::Row> rows() const override;
    void showRecord(std::optional<std::size_t> position) override;
    [[nodiscard]] bool isDirty() const override;
    void focusForm() override;
    [[nodiscard]] QString newRecordTitle() const override;
    [[nodiscard]] bool includeTyped() override;
    [[nodiscard]] bool changeTyped(std::size_t position) override;
    [[nodiscard]] bool removeRecord(std::size_t position) override;
    [[nodiscard]] bool mayDiscardTyped() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    using Command = void (EmpregadosWindow::*)();

    void addListCommands();
    void addToMenu(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                   Command command);
    void showCounts();
    [[nodiscard]] QString statusOf(const EmployeeLine& line) const;
    /// Runs a command on the list unless typed text stays; the employee stays selected.
    void runOnList(const std::function<bool()>& command);

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
    EmployeeForm* form_;
};

}  // namespace winvrx
