#include "timecard/employee_hours.h"

#include "timecard/overtime_record.h"

namespace winvrx {

namespace {

constexpr std::string_view kClosingEnd = ".prd";

/// Where an employee's records lie.
struct Records {
    FileSystem& files;
    const DataFolder& folder;
    const CompanyCode& company;
    EmployeeCode employee;
};

std::vector<PunchLine> blankDays(const DayPeriod& period) {
    std::vector<PunchLine> lines;
    for (Date date = period.first; date <= period.last; date = plusDays(date, 1))
        lines.emplace_back().label = dayLabel(date);
    return lines;
}

/// Puts each line in its day's place; a day number occurs once in a period. Of two lines for one
/// day the first counts, as in a month's record.
class DayPlaces {
  public:
    explicit DayPlaces(const DayPeriod& period)
        : period_(period), lines_(blankDays(period)), taken_(lines_.size(), false) {}

    void put(PunchLine line) {
        Date date = period_.first;
        for (std::size_t at = 0; at < lines_.size(); ++at, date = plusDays(date, 1)) {
            if (dayNumber(date) != line.day() || taken_[at]) continue;
            lines_[at] = std::move(line);
            taken_[at] = true;
            return;
        }
    }

    [[nodiscard]] std::vector<PunchLine> lines() && { return std::move(lines_); }

  private:
    DayPeriod period_;
    std::vector<PunchLine> lines_;
    std::vector<bool> taken_;
};

std::optional<std::vector<PunchLine>> fromClosingRecord(const Records& at, WorkMonth month,
                                                        const DayPeriod& period) {
    const RecordFile record(at.files,
                            at.folder.file(closingFileName(at.company, at.employee, month)));
    if (!record.exists()) return std::nullopt;
    DayPlaces places(period);
    for (const std::string& bytes : record.lines())
        places.put(decodePunchLine(bytes));
    return std::move(places).lines();
}

std::optional<std::vector<PunchLine>> fromMonths(const Records& at, const DayPeriod& period) {
    DayPlaces places(period);
    bool any = false;
    for (WorkMonth month = monthOf(period.first); month <= monthOf(period.last);
         month += std::chrono::months{1}) {
        const auto lines = loadPunches(at.files, at.folder, at.company, at.employee, month);
        if (!lines) continue;
        any = true;
        Date date = firstDay(month);
        for (const PunchLine& line : *lines) {
            if (date >= period.first && date <= period.last) places.put(line);
            date = plusDays(date, 1);
        }
    }
    return any ? std::optional(std::move(places).lines()) : std::nullopt;
}

WorkTerms termsOf(const Records& at, const Employee& employee, const MonthSettings& settings,
                  const DayPeriod& period) {
    const auto schedule = loadSchedule(at.files, at.folder, at.company, at.employee);
    WorkTerms terms =
        workTerms(settings, overtimeOf(at.files, at.folder, at.company, at.employee, settings),
                  schedule.value_or(StandardSchedule()), employee);
    if (const WorkMonth first = monthOf(period.first); first != settings.month)
        for (const Date date : loadMonthSettings(at.files, at.folder, first).holidays())
            terms.holidays.push_back(date);
    return terms;
}

}  // namespace

std::optional<EmployeeHours> loadEmployeeHours(FileSystem& files, const DataFolder& folder,
                                               const CompanyCode& company, const Employee& employee,
                                               const MonthSettings& settings, HoursPeriod which) {
    const Records at{files, folder, company, employee.employeeCode().value()};
    const DayPeriod month{firstDay(settings.month), lastDay(settings.month)};
    const DayPeriod period = which == HoursPeriod::ClosingPeriod ? closingPeriod(settings) : month;
    auto lines = period == month ? std::nullopt : fromClosingRecord(at, settings.month, period);
    if (!lines) lines = fromMonths(at, period);
    if (!lines) return std::nullopt;
    return EmployeeHours{period, std::move(*lines), termsOf(at, employee, settings, period)};
}

std::string closingFileName(const CompanyCode& company, const EmployeeCode& employee,
                            WorkMonth month) {
    std::string name = punchFileName(company, employee, month);
    return name.replace(name.rfind('.'), std::string::npos, kClosingEnd);
}

}  // namespace winvrx
