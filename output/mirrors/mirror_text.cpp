// The mirror as text.
#include "foundation/values/text.h"
#include "output/mirrors/hours_report.h"
#include "output/stocks/card_rows.h"
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
    const bool worked = day.line.hasTimes();
    std::string text = day.line.label;
    for (const auto time : kPunchTimes)
        text += fitted(day.line.*time, kTimeWidth);
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
        "Período: " + periodText(sheet.period),
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
