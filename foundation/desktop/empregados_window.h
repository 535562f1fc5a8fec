#pragma once

#include "foundation/desktop/register_window.h"

namespace winvrx {

class EmployeeForm;
class Empregados;

/// The window of the employee register. `empregados` outlives it.
class EmpregadosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit EmpregadosWindow(Empregados& empregados, QWidget* parent = nullptr);

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
    void showCounts();

    Empregados& empregados_;
    EmployeeForm* form_;
};

}  // namespace winvrx
