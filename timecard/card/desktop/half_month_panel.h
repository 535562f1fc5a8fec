#pragma once

#include "timecard/card/cartao_ponto_dados.h"

#include <QWidget>

class QLabel;

namespace winvrx {

class PunchGrid;
class PunchModel;

/// A half-month on the screen: its name and hours, what is to be known of the employee, the grid.
class HalfMonthPanel : public QWidget {
    Q_OBJECT

  public:
    HalfMonthPanel(CartaoPontoDados& command, HalfMonth half, QWidget* parent = nullptr);

    [[nodiscard]] PunchModel& model() const { return *model_; }
    [[nodiscard]] PunchGrid& grid() const { return *grid_; }

    /// The card changed altogether; the cursor stays where it was.
    void showSheet();
    void showHeading();

  private:
    CartaoPontoDados& command_;
    HalfMonth half_;
    QLabel* heading_ = nullptr;
    QLabel* marks_ = nullptr;  ///< leave and closed month
    PunchModel* model_;
    PunchGrid* grid_;
};

}  // namespace winvrx
