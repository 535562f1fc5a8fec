#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/employer/domestic_month.h"

class QLabel;
class QTreeWidget;

namespace winvrx {

/// The single guide of a domestic employer's month: its figures by employee, their sum, and by when
/// it is paid. `month` is read, and outlives the window.
class GuiaWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit GuiaWindow(const DomesticMonth& month, QWidget* parent = nullptr);

  signals:
    /// Whoever listens shows the page.
    void pageRequested();

  private:
    [[nodiscard]] QWidget* buildGuide();
    void addRow(const std::string& name, const GuideAmounts& amounts, bool isTotal);
    void buildCommands();
    void showMemo();

    const DomesticMonth& month_;
    QTreeWidget* lines_ = nullptr;
    QLabel* memo_ = nullptr;
};

}  // namespace winvrx
