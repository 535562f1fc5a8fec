#pragma once

#include <QScrollArea>

#include <vector>

class QButtonGroup;
class QGridLayout;

namespace winvrx {

class CardPictures;
class StockOption;
struct CardStock;

/// The options of the stock screen, as many beside each other as there is room for. The arrow keys
/// move the choice, and the option in hand is always in sight.
class StockGrid : public QScrollArea {
    Q_OBJECT

  public:
    /// `pictures` outlives the grid. An option's object name is the grid's, a dot and the code.
    StockGrid(const QString& objectName, const std::vector<const CardStock*>& stocks,
              CardPictures& pictures, QWidget* parent);

    /// nullptr, or a stock that is not offered, leaves none chosen.
    void choose(const CardStock* stock);
    /// The option of a code, as if it had been clicked; false for an unknown code.
    bool click(const QString& code);

  signals:
    /// By the operator, not by choose().
    void picked(const CardStock* stock);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void layOut(int columns);

    std::vector<const CardStock*> stocks_;
    std::vector<StockOption*> options_;
    QButtonGroup* group_;
    QGridLayout* grid_;
    int columns_ = 0;
};

}  // namespace winvrx
