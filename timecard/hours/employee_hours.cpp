#include "timecard/hours/employee_hours.h"

#include "timecard/month/overtime_record.h"

namespace winvrx {

namespace {

std::vector<PunchLine> blankDays(const DayPeriod& period) {
    std::vector<PunchLine> lines;
    for (Date date = period.first; date <= period.last; date = plusDays(date, 1))
        lines.emplace_back().label = dayLabel(date);
    return lines;
}

/// Puts each line in its day's place. Of two lines for one day the first counts, and a line whose
/// label is no day of the period has no place.
class DayPlaces {
  public:
    explicit DayPlaces(const DayPeriod& period)
        : lines_(blankDays(period)), taken_(lines_.size(), false) {}

    void put(PunchLine line) {
        for (std::size_t at = 0; at < lines_.size(); ++at) {
            if (lines_[at].label != line.label || taken_[at]) continue;
            lines_[at] = std::move(line);
            taken_[at] = true;
            return;
        }
    }

    [[nodiscard]] std::vector<PunchLine> lines() && { return std::move(lines_); }

  private:
    std::vector<PunchLine> lines_;
    std::vector<bool> taken_;
};

bool putClosingRecord(DayPlaces& places, const Store& store, const EmployeeKey& key,
                      WorkMonth month) {
    const auto lines = RecordFile(store, closingFileName(key, month)).linesIfAny();
    if (!lines) return false;
    for (const std::string& bytes : *lines)
        places.put(decodePunchLine(bytes));
    return true;
}

bool putMonth(DayPlaces& places, const Store& store, const EmployeeKey& key, WorkMonth month) {
    auto lines = loadPunches(store, key, month);
    if (!lines) return false;
    Date date = firstDay(month);
    for (PunchLine& line : *lines) {
        line.label = dayLabel(date);
        places.put(std::move(line));
        date = plusDays(date, 1);
    }
    return true;
}

WorkTerms termsOf(const Store& store, const EmployeeKey& key, const Employee& employee,
                  const MonthSettings& settings, const DayPeriod& period) {
    const auto schedule = loadSchedule(store, key);
    WorkTerms terms =
        workTerms(settings, overtimeOf(store, key, settings), schedule.value_or(StandardSchedule()),
                  employee, loadLeaveCalendar(store, key, employee.admissionDate()));
    if (const WorkMonth first = monthOf(period.first); first != settings.month)
        for (const Date date : loadMonthSettings(store, first).holidays())
            terms.holidays.push_back(date);
    return terms;
}

}  // namespace

std::optional<EmployeeHours> loadEmployeeHours(const Store& store, const CompanyCode& company,
                                               const Employee& employee,
                                               const MonthSettings& settings, HoursPeriod which) {
    const EmployeeKey key{company, employee.employeeCode().value()};
    const DayPeriod month{firstDay(settings.month), lastDay(settings.month)};
    const DayPeriod period = which == HoursPeriod::ClosingPeriod ? closingPeriod(settings) : month;
    DayPlaces places(period);
    bool any = period != month && putClosingRecord(places, store, key, settings.month);
    for (WorkMonth one = monthOf(period.first); one <= settings.month; one += kOneMonth)
        any = putMonth(places, store, key, one) || any;
    if (!any) return std::nullopt;
    return EmployeeHours{period, std::move(places).lines(),
                         termsOf(store, key, employee, settings, period)};
}

}  // namespace winvrx
