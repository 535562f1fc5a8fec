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

  signals:
    /// Whoever listens shows the page.
    void pageRequested();

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

}  // namespace winvrx
