#include "output/mirrors/mirror_period.h"

#include "output/stocks/card_rows.h"
#include "timecard/hours/employee_hours.h"
#include "timecard/month/overtime_record.h"

#include <algorithm>
#include <utility>

namespace winvrx {

/// Days that follow each other and go by the same terms.
struct MirrorPeriod::Piece {
    Date first;
    std::vector<PunchLine> lines;
    WorkTerms terms;
    bool recorded = false;
};

namespace {

void putDay(MirrorDay& day, PunchLine&& line, Date date, const WorkTerms& terms, bool recorded) {
    day.date = date;
    day.standing = terms.leaves.standingOn(date);
    if (isWithinContract(day.standing)) day.line = std::move(line);
    day.line.label = dayLabel(date);
    if (!isWithinContract(day.standing)) return;
    day.contracted = contractedTimes(day.line, date, terms);
    if (!day.line.hasTimes()) day.situation = situationOf(day.line, date, terms);
    if (recorded) day.hours = dayHours(day.line, date, terms);
}

}  // namespace

std::string periodText(const DayPeriod& period) {
    return dateText(period.first) + " a " + dateText(period.last);
}

DayPeriod calendarMonth(WorkMonth month) {
    return {firstDay(month), lastDay(month)};
}

MirrorPeriod::MirrorPeriod(const Store& store, const CompanyCode& company, const DayPeriod& period)
    : store_(store), company_(company), period_(period) {
    for (WorkMonth month = monthOf(period.first); month <= monthOf(period.last);
         month += std::chrono::months{1})
        months_.push_back(loadMonthSettings(store, month));
}

bool MirrorPeriod::isClosing() const {
    return !lastMonth().fixedMonth && period_ == closingPeriod(lastMonth());
}

MirrorSheet MirrorPeriod::of(const Employee& employee) const {
    const EmployeeKey key{company_, employee.employeeCode().value()};
    MirrorSheet sheet{.employee = employee,
                      .period = period_,
                      .overtime = {},
                      .schedule = loadSchedule(store_, key),
                      .leaves = loadLeaveCalendar(store_, key, employee.admissionDate()),
                      .days = {},
                      .totals = {}};
    for (Piece& piece : piecesOf(sheet, key)) {
        Date date = piece.first;
        sheet.days.reserve(sheet.days.size() + piece.lines.size());
        for (PunchLine& line : piece.lines) {
            MirrorDay& day = sheet.days.emplace_back();
            putDay(day, std::move(line), date, piece.terms, piece.recorded);
            sheet.totals += day.hours;
            date = plusDays(date, 1);
        }
        sheet.overtime = piece.terms.overtime;
        sheet.recorded = sheet.recorded || piece.recorded;
    }
    return sheet;
}

std::vector<MirrorPeriod::Piece> MirrorPeriod::piecesOf(const MirrorSheet& sheet,
                                                        const EmployeeKey& key) const {
    if (isClosing())
        if (auto hours = loadEmployeeHours(store_, company_, sheet.employee, lastMonth(),
                                           HoursPeriod::ClosingPeriod))
            return {{period_.first, std::move(hours->lines), std::move(hours->terms), true}};
    std::vector<Piece> pieces;
    for (const MonthSettings& settings : months_)
        pieces.push_back(pieceOf(sheet, key, settings));
    return pieces;
}

MirrorPeriod::Piece MirrorPeriod::pieceOf(const MirrorSheet& sheet, const EmployeeKey& key,
                                          const MonthSettings& settings) const {
    auto punches = loadPunches(store_, key, settings.month);
    Piece piece{.first = std::max(period_.first, firstDay(settings.month)),
                .lines = {},
                .terms = workTerms(settings, overtimeOf(store_, key, settings),
                                   sheet.schedule.value_or(StandardSchedule()), sheet.employee,
                                   sheet.leaves),
                .recorded = punches.has_value()};
    const Date last = std::min(period_.last, lastDay(settings.month));
    piece.lines = punches ? std::move(*punches) : blankMonth(settings.month);
    piece.lines.erase(piece.lines.begin() + dayNumber(last), piece.lines.end());
    piece.lines.erase(piece.lines.begin(), piece.lines.begin() + dayNumber(piece.first) - 1);
    return piece;
}

}  // namespace winvrx
