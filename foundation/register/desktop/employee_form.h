#pragma once

#include "foundation/register/employee.h"
#include "foundation/widgets/desktop/record_form.h"

#include <QTabWidget>

#include <vector>

namespace winvrx {

class ChoiceField;
class NotesField;

/// Every field of an employee record, in tabs by subject.
class EmployeeForm : public QTabWidget {
    Q_OBJECT

  public:
    explicit EmployeeForm(QWidget* parent);

    /// `isNew`: the code may be typed. The code of a recorded employee stands in file names.
    /// `status` is shown as the employee's situation.
    void showEmployee(const Employee& employee, bool isNew, const QString& status);
    /// The employee shown, with what was typed since.
    [[nodiscard]] Employee typed() const;
    [[nodiscard]] bool isDirty() const { return typed() != shown_; }
    void focusFirst();
    /// Leads to the first required field that is empty or holds no date; false when there is none.
    bool focusMissing();
    /// From the last field of a tab to the first of the next one; false from any other place.
    bool moveToNextTab();

  signals:
    void edited();

  private:
    void addPage(const QString& title, int tab);
    void addChoices(QWidget* page);
    void addNotes(QWidget* page);
    void addChoice(std::string Employee::*member, ChoiceField* field);
    void checkScale();
    void focus(QWidget* field);

    struct BoundChoice {
        std::string Employee::*member;
        ChoiceField* field;
    };

    RecordForm<Employee> fields_;
    std::vector<BoundChoice> choices_;
    NotesField* notes_ = nullptr;
    Employee shown_;
};

}  // namespace winvrx
