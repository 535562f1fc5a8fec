#pragma once

#include "foundation/widgets/desktop/screen_window.h"

#include <QElapsedTimer>

class QBoxLayout;
class QLabel;

namespace winvrx {

class CardPictures;
class StockGrid;
class TipoPonto;
struct CardStock;

/// The screen of card stocks: one option for each stock offered, with the picture of its card. A
/// choice is stored at once. A stock's two digits, typed, choose it too.
class TipoPontoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `stocks` and `pictures` outlive the window; the stored choice is read when it opens.
    TipoPontoWindow(TipoPonto& stocks, CardPictures& pictures, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildInUse(QWidget* parent);
    [[nodiscard]] QLabel* addSheet(QBoxLayout& row, const QString& position, const QString& name);
    void choose(const CardStock* stock);
    void showCurrent();
    void typeDigit(const QString& digit);

    TipoPonto& stocks_;
    CardPictures& pictures_;
    StockGrid* options_ = nullptr;
    QLabel* current_ = nullptr;
    QLabel* description_ = nullptr;
    QWidget* sheets_ = nullptr;
    QLabel* central_ = nullptr;
    QLabel* lateral_ = nullptr;
    QString digits_;
    QElapsedTimer sinceDigit_;
};

}  // namespace winvrx
