#pragma once

#include "timecard/hours/hours.h"
#include "timecard/month/closing_period.h"

#include <optional>
#include <string>
#include <vector>

// The days of a period as mirrors and hours reports tell them: read once an employee, counted by
// the calculation of all hours.
//
//     const MirrorPeriod period(store, company, {first, last});
//     for (const Employee& one : people) write(period.of(one));

namespace winvrx {

/// "01/03/2024 a 31/03/2024".
[[nodiscard]] std::string periodText(const DayPeriod& period);
/// The month from its first day to its last.
[[nodiscard]] DayPeriod calendarMonth(WorkMonth month);

/// One day of an employee.
struct MirrorDay {
    Date date;
    Standing standing = Standing::Employed;
    PunchLine line;          ///< without times outside the contract
    DaySchedule contracted;  ///< what the day asks for; blank where it asks for nothing
    HourTotals hours;
    std::string situation;  ///< of a day without times, whole; empty where there is none
};

/// The days of one employee, and their sums.
struct MirrorSheet {
    Employee employee;
    DayPeriod period;
    OvertimeRules overtime;                    ///< of the period's last month, his own rates
    std::optional<StandardSchedule> schedule;  ///< nullopt: none was recorded
    LeaveCalendar leaves;
    std::vector<MirrorDay> days;  ///< every one of the period, in date order
    HourTotals totals;
    bool recorded = false;  ///< some day of the period has a record of punches
};

/// A range of days over as many months as it touches.
class MirrorPeriod {
  public:
    /// Reads the settings of the months. `period` does not end before it begins. Throws FileFault.
    MirrorPeriod(const Store& store, const CompanyCode& company, const DayPeriod& period);

    /// Of the month in which the period ends.
    [[nodiscard]] const MonthSettings& lastMonth() const { return months_.back(); }

    /// A range of days is read from the punch records of its months and each day goes by the
    /// settings of its month; a month without a record counts nothing. A month's closing period is
    /// the one that loadEmployeeHours() reads. Throws FileFault.
    [[nodiscard]] MirrorSheet of(const Employee& employee) const;

  private:
    struct Piece;

    [[nodiscard]] bool isClosing() const;
    [[nodiscard]] std::vector<Piece> piecesOf(const MirrorSheet& sheet,
                                              const EmployeeKey& key) const;
    [[nodiscard]] Piece pieceOf(const MirrorSheet& sheet, const EmployeeKey& key,
                                const MonthSettings& settings) const;

    Store store_;
    CompanyCode company_;
    DayPeriod period_;
    std::vector<MonthSettings> months_;
};

/// What stands under the hours: the leaves of the period, "Afastamento: FÉRIAS, 05/03/2024 a
/// 06/03/2024", the days whose times "Aplicar Ponto" would not have given, and in date order
/// "05/ter/mar: variação de 4 min tolerada" where one was, that there are times on a leave, what is
/// doubtful about the day's times, and what was typed by hand in "Obs.".
[[nodiscard]] std::vector<std::string> mirrorNotes(const MirrorSheet& sheet);

}  // namespace winvrx
