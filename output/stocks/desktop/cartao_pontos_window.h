#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "output/stocks/cartao_pontos.h"
#include "output/stocks/desktop/card_sample.h"

class QTreeWidget;

namespace winvrx {

class AlignmentPad;
class ScalePanel;

/// The alignment screen: the stocks at the left, a sample of the print in the middle, and what
/// moves it at the right.
class CartaoPontosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `screen` outlives the window; it is read again when the window opens.
    CartaoPontosWindow(CartaoPontos& screen, LayoutSource layouts, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] bool mayClose() override;

  private:
    void buildCommands();
    [[nodiscard]] QWidget* buildEntries(QWidget* parent);
    [[nodiscard]] QWidget* buildSample(LayoutSource layouts, QWidget* parent);
    [[nodiscard]] QWidget* buildAdjustments(QWidget* parent);
    void connectAll();

    void select(int entry);
    void move(Direction direction);
    void reset();
    void printTest();
    void showEntry();
    void showAlignment();
    void showEntries();

    CartaoPontos& screen_;
    QTreeWidget* entries_ = nullptr;
    CardSample* sample_ = nullptr;
    AlignmentPad* pad_ = nullptr;
    ScalePanel* scale_ = nullptr;
};

}  // namespace winvrx
