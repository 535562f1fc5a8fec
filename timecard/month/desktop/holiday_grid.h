#pragma once

#include "timecard/month/data_mes_corrente.h"

#include <QWidget>

#include <array>

class QCheckBox;

namespace winvrx {

/// Marks what is offered, beside a word.
inline constexpr QChar kOfferSign(u'◇');

/// The calendar of the month shown, one check box a day, six weeks that start on Sunday. The arrow
/// keys go from day to day; for TAB the calendar is one stop. An offered day that is not ticked
/// bears the sign of the offer.
class HolidayGrid : public QWidget {
    Q_OBJECT

  public:
    HolidayGrid(DataMesCorrente& command, QWidget* parent = nullptr);

    /// Shows the command's month and ticks.
    void refresh();

  signals:
    /// The operator ticked or cleared a day; the command holds it already.
    void ticked();

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QCheckBox* buildCell(std::size_t cell);
    void take(std::size_t cell, bool holiday);
    void showDay(QCheckBox& box, Date date);
    /// The day that TAB leads to.
    void setTabStop(std::size_t cell);
    [[nodiscard]] bool moveFrom(std::size_t cell, int key);

    DataMesCorrente& command_;
    std::array<QCheckBox*, kHolidayCells> cells_{};
};

}  // namespace winvrx
