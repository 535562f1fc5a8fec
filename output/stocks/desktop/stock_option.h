#pragma once

#include "output/stocks/card_stock.h"

#include <QRadioButton>

namespace winvrx {

class CardPictures;

/// An option of the stock screen: the picture of the pre-printed card over its code and name.
class StockOption : public QRadioButton {
    Q_OBJECT

  public:
    /// `pictures` outlives the option.
    StockOption(const CardStock& stock, CardPictures& pictures, QWidget* parent);

    /// Less than the usual height where a window is low.
    void setCompact(bool compact);

    [[nodiscard]] QSize sizeHint() const override;
    /// The height of an option that is not compact.
    [[nodiscard]] int usualHeight() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;

  private:
    [[nodiscard]] int heightAt(double scale) const;
    void paintFrame(QPainter& painter) const;
    void paintCard(QPainter& painter, const QRect& area) const;
    void paintTexts(QPainter& painter, const QRect& area) const;

    const CardStock& stock_;
    CardPictures& pictures_;
    double scale_;  ///< pixels to a millimetre
};

}  // namespace winvrx
