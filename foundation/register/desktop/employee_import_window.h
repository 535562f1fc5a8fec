#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QCheckBox;
class QTreeWidget;

namespace winvrx {

class EmployeeImport;

/// Shows what a spreadsheet would bring into the employee list, with each row's problem, and
/// records the good rows on confirmation. Accepted when they were recorded. `import` outlives it.
class EmployeeImportWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit EmployeeImportWindow(EmployeeImport& import, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void buildBody();
    void buildClosing();
    void fillRows();
    void tintFindings();
    void showSummary();
    void filter();
    void include();

    EmployeeImport& import_;
    QCheckBox* onlyProblems_ = nullptr;
    QTreeWidget* rows_ = nullptr;
};

}  // namespace winvrx
