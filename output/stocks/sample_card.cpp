#include "output/stocks/sample_card.h"

#include <array>

namespace winvrx {

namespace {

/// In the middle of each half of the month.
constexpr std::array<std::size_t, 2> kMonthRows = {7, 22};

DaySchedule sampleTimes() {
    return {.morning = {parseTime("08:00"), parseTime("12:00")},
            .afternoon = {parseTime("13:00"), parseTime("17:00")}};
}

std::vector<PunchLine> samplePunches(WorkMonth month) {
    std::vector<PunchLine> lines = blankMonth(month);
    for (PunchLine& line : lines) {
        line.morningEntry = "08:00";
        line.morningExit = "12:00";
        line.afternoonEntry = "13:00";
        line.afternoonExit = "17:00";
        line.extraEntry = "18:00";
        line.extraExit = "19:00";
    }
    for (const std::size_t row : kMonthRows) {
        PunchLine said;
        said.label = lines.at(row).label;
        said.situation = monthTitle(month);
        lines.at(row) = said;
    }
    return lines;
}

}  // namespace

ReportRows sampleCardRows(const Company& company, WorkMonth month) {
    Employee employee;
    employee.code = "000";
    employee.name = "CARTÃO DE TESTE";
    employee.function = "TESTE DE ALINHAMENTO";
    employee.admission = dateText(firstDay(month));
    MonthSettings settings;
    settings.month = month;
    StandardSchedule schedule;
    schedule.weekday = sampleTimes();
    return cardRows({.company = company,
                     .employee = employee,
                     .settings = settings,
                     .schedule = schedule,
                     .punches = samplePunches(month)});
}

}  // namespace winvrx
