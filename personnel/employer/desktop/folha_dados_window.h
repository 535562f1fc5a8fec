#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/employer/folha_dados.h"

#include <optional>
#include <vector>

class QLabel;

namespace winvrx {

class EmployeePicker;
class Field;

/// What the payroll needs of each employee besides: employees at the left, the facts of the one
/// chosen at the right. `facts` outlives it.
class FolhaDadosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    FolhaDadosWindow(FolhaDados& facts, const std::optional<EmployeeCode>& inHand,
                     QWidget* parent = nullptr);

  signals:
    /// Whoever listens shows the end of his contract.
    void terminationRequested(const winvrx::Employee& employee);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildFacts();
    void buildCommands();
    void choose(std::size_t position);
    void showEmployee();
    [[nodiscard]] std::vector<std::string> typed() const;
    void save();

    FolhaDados& facts_;
    EmployeePicker* employees_ = nullptr;
    QLabel* name_ = nullptr;
    QWidget* form_ = nullptr;
    std::vector<Field*> fields_;
    std::optional<std::size_t> position_;
};

}  // namespace winvrx
