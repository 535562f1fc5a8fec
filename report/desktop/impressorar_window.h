#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QLabel;
class QListWidget;

namespace winvrx {

class Impressorar;
class OptionGroup;
class Printers;
struct Workplace;

/// The printer screen: the default printer or one of those installed. A choice is stored at once.
class ImpressorarWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `screen` outlives the window; it is read again when the window opens, and its printers
    /// whenever it becomes the active one, since printers are added in another program.
    explicit ImpressorarWindow(Impressorar& screen, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildBody();
    void buildCommands();
    void connectAll();
    void refresh();
    void chooseKind(int kind);
    void chooseRow(int row);
    void showPrinters();
    void showChoice();

    Impressorar& screen_;
    OptionGroup* kind_ = nullptr;
    QListWidget* list_ = nullptr;
    QLabel* empty_ = nullptr;
};

/// Opens the screen; returns when it is closed.
void openPrinters(const Workplace& at, Printers& printers, QWidget* parent);

}  // namespace winvrx
