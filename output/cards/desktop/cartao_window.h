#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "output/cards/cartao.h"

#include <functional>

class QLabel;

namespace winvrx {

class EmployeePicker;
class PrintChoicesBox;
class Progress;

/// The screens that the printing screen opens. Each returns when its screen is closed.
struct CartaoWindowDesk {
    std::function<void(QWidget* parent)> openStocks = {};
    std::function<void(QWidget* parent)> openWorkMonth = {};
    std::function<void(QWidget* parent)> openPrinters = {};
    std::function<void(QWidget* parent)> openAlignment = {};
};

/// The time-card printing screen: employees at the left, header block and choices at the right.
class CartaoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `cartao` outlives the window; it is read again when the window opens.
    CartaoWindow(Cartao& cartao, CartaoWindowDesk desk, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] bool mayClose() override;

  private:
    void buildCommands();
    void buildClosingButtons();
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildPage();
    [[nodiscard]] QWidget* buildPreview(QWidget* parent);
    void connectAll();

    void visit(const std::function<void(QWidget*)>& screen);
    void printOne();
    void printAll();
    [[nodiscard]] PrintRun runWith(Progress* progress);

    void showList();
    void showPreview();
    void showContext();
    Cartao& cartao_;
    CartaoWindowDesk desk_;
    EmployeePicker* employees_ = nullptr;
    QLabel* header_ = nullptr;
    QLabel* headerHint_ = nullptr;
    PrintChoicesBox* choices_ = nullptr;
};

}  // namespace winvrx
