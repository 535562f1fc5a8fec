#pragma once

#include "foundation/register/leave_calendar.h"

#include <QWidget>

#include <chrono>

class QLabel;

namespace winvrx {

class YearDays;

/// A year of an employee: twelve rows of days, each leave in its colour with the number of its
/// type, and below what the numbers mean. Days outside the contract are crossed out.
class YearStrip : public QWidget {
    Q_OBJECT

  public:
    explicit YearStrip(QWidget* parent);

    /// Stays on its year where `year` is none.
    void show(LeaveCalendar calendar, std::optional<std::chrono::year> year);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void turn(int years);
    void refresh();

    LeaveCalendar calendar_;
    std::chrono::year year_{2000};
    QLabel* title_;
    YearDays* days_;
    QLabel* legend_;
};

}  // namespace winvrx
