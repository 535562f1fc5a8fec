#pragma once

#include "foundation/register/leave_calendar.h"
#include "foundation/widgets/desktop/colors.h"

#include <QWidget>

#include <chrono>

class QPainter;

namespace winvrx {

/// The colour of a leave's type.
[[nodiscard]] look::Tint tintOf(const Leave& leave);
/// The number that stands for the type: "6" for "006 FÉRIAS".
[[nodiscard]] QString numberOf(const Leave& leave);

/// The days of a year, a row for each month.
class YearDays : public QWidget {
    Q_OBJECT

  public:
    explicit YearDays(QWidget* parent);

    /// `calendar` outlives what is shown of it.
    void show(const LeaveCalendar& calendar, std::chrono::year year);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] QRect cellOf(Date date) const;
    [[nodiscard]] std::optional<Date> dateAt(QPoint place) const;
    void paintDay(QPainter& painter, Date date) const;
    /// The leave whose period has the day; those that make it a day away come first.
    [[nodiscard]] const DatedLeave* leaveOn(Date date) const;
    [[nodiscard]] int monthWidth() const;

    const LeaveCalendar* calendar_ = nullptr;
    std::chrono::year year_{2000};
};

}  // namespace winvrx
