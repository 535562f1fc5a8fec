// The mirror as text.
#include "foundation/values/text.h"
#include "output/mirrors/hours_report.h"
#include "timecard/hours/hours_format.h"
#include "timecard/hours/hours_summary.h"

#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kTitles =
    "   Data   Entr SaídaEntr SaídaEntr.Saída                      Normal    Noturna   Falta     ";
constexpr std::size_t kTimeWidth = 5;
constexpr std::size_t kSituationColumn = 22;
constexpr std::size_t kFigureWidth = 10;
constexpr std::size_t kCaptionWidth = 20;

constexpr std::array kFigures = {HourCategory::NormalDay, HourCategory::NormalNight,
                                 HourCategory::Missing};

std::string dayLine(const MirrorDay& day, TotalsFormat format) {
    const PunchLine& line = day.line;
    const bool worked = line.hasTimes();
    std::string text = line.label;
    for (const std::string* time : {&line.morningEntry, &line.morningExit, &line.afternoonEntry,
                                    &line.afternoonExit, &line.extraEntry, &line.extraExit})
        text += fitted(*time, kTimeWidth);
    text += fitted(" " + (worked ? std::string("Normal") : day.situation), kSituationColumn);
    for (const HourCategory category : kFigures) {
        const bool blank = !worked && day.hours[category].count() == 0;
        text += fitted(blank ? "0:00" : formatted(day.hours[category], format), kFigureWidth);
    }
    return text;
}

}  // namespace

std::vector<std::string> mirrorText(const Company& company, const MirrorSheet& sheet) {
    const Employee& employee = sheet.employee;
    const TotalsFormat format = sheet.overtime.totalsFormat;
    std::vector<std::string> lines = {
        "ESPELHO DE PONTO",
        company.name + "   CNPJ: " + company.taxId,
        employee.code + " " + employee.name + "   " + employee.function,
        "Período: " + dateText(sheet.period.first) + " a " + dateText(sheet.period.last),
        "",
        std::string(kTitles)};
    for (const MirrorDay& day : sheet.days)
        lines.push_back(dayLine(day, format));
    lines.emplace_back();
    for (const HourCategory category : kHourCategories)
        lines.push_back(fitted(captionOf(category, sheet.overtime), kCaptionWidth) +
                        formatted(sheet.totals[category], format));
    const std::vector<std::string> notes = mirrorNotes(sheet);
    if (!notes.empty()) lines.emplace_back();
    lines.insert(lines.end(), notes.begin(), notes.end());
    return lines;
}

}  // namespace winvrx
