#pragma once

#include "foundation/register/desktop/record_form.h"
#include "foundation/register/employee.h"

class QTabWidget;

namespace winvrx {

class Empregados;

/// Every field of an employee record, in tabs by subject. `employees` outlives it.
class EmployeeForm : public RecordForm<Employee> {
  public:
    EmployeeForm(Empregados& employees, QWidget* window);

    void show(std::optional<std::size_t> position) override;
    void focusFirst() override;

  private:
    [[nodiscard]] static QVBoxLayout& addPage(QTabWidget& pages, const QString& title);

    Empregados& employees_;
};

}  // namespace winvrx
