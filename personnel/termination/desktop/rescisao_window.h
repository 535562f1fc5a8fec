#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/termination/rescisao.h"

class QLabel;
class QTreeWidget;

namespace winvrx {

/// The figures of an end of contract: terms at the left, the lines at the right, and below them the
/// sum of the line in hand. `command` has its sheet, and outlives the window.
class RescisaoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit RescisaoWindow(const Rescisao& command, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildTerms(QWidget* parent);
    [[nodiscard]] QWidget* buildLines(QWidget* parent);
    void buildCommands();
    void addLines(const std::vector<TerminationLine>& lines, const char* group, int column);
    void addTotals();
    void showMemo();

    const Rescisao& command_;
    QTreeWidget* lines_ = nullptr;
    QLabel* memo_ = nullptr;
    std::vector<const TerminationLine*> shown_;  ///< by row; nullptr for a total
};

/// Shows the figures of the employee's end of contract and returns when their screen is closed;
/// what is missing on record is told instead. `legalFolder` has the delivered tables.
void openTermination(const Workplace& at, ReportEngine& engine,
                     const std::filesystem::path& legalFolder, const Employee& employee,
                     QWidget* parent);

}  // namespace winvrx
