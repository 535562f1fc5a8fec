#pragma once

#include "foundation/menu/month_calendar.h"

#include <QWidget>

namespace winvrx {

/// A month as a small calendar: weeks from Sunday, rest days and holidays in their colours and
/// with a dot, today ringed. Shows only.
class MonthView : public QWidget {
    Q_OBJECT

  public:
    explicit MonthView(QWidget* parent = nullptr);

    void show(const MonthOverview& overview, Date today);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRectF cell(int row, int column) const;
    void paintDay(QPainter& painter, Date date, const QRectF& area) const;

    MonthOverview overview_;
    Date today_{};
};

}  // namespace winvrx
