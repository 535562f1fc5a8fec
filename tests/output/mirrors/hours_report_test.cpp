#include "output/mirrors/hours_report.h"

#include "output/stocks/card_rows.h"
#include "tests/support/hours_office.h"
#include "timecard/hours/employee_hours.h"
#include "timecard/hours/hours_format.h"
#include "timecard/hours/hours_summary.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

namespace winvrx {
namespace {

using ::testing::HasSubstr;

const CompanyCode kCompany = *CompanyCode::parse("01");

struct HoursReportTest : ::testing::Test {
    testing::HoursOffice office;

    [[nodiscard]] MirrorPeriod days(const char* first, const char* last) {
        return {office.desk.store(), kCompany, {*parseDate(first), *parseDate(last)}};
    }
    [[nodiscard]] const std::vector<Employee>& people() {
        return office.reports.list().employees();
    }
    [[nodiscard]] std::vector<std::string> report(const char* first, const char* last) {
        const MirrorPeriod period = days(first, last);
        HoursReport made({*parseDate(first), *parseDate(last)}, period.lastMonth().overtime);
        for (const Employee& one : people())
            made.add(period.of(one));
        return std::move(made).lines();
    }
};

std::string expected(const std::string& name) {
    std::ifstream file(std::string(WINVRX_MIRROR_FILES) + "/" + name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

TEST_F(HoursReportTest, IsTheWholeFile) {
    EXPECT_EQ(joined(report("01/03/2024", "06/03/2024")), expected("RelHorasExtras.txt"));
    office.setFormat(TotalsFormat::DecimalHours);
    EXPECT_EQ(joined(report("04/03/2024", "05/03/2024")), expected("RelHorasExtras_decimal.txt"));
}

TEST_F(HoursReportTest, LinesAreAsWideAsTheirRulers) {
    const auto lines = report("01/03/2024", "31/03/2024");
    std::map<std::size_t, int> widths;
    for (std::size_t at = 4; at < lines.size(); ++at)
        ++widths[characterCount(lines[at])];
    EXPECT_EQ(widths, (std::map<std::size_t, int>{{0, 3}, {56, 1}, {140, 78}, {141, 1}}));
    EXPECT_EQ(lines[6],
              "--------------------------------+-----------+-----------------------------------+"
              "-----------+-----------+-----------+-----------+----------+");
    EXPECT_EQ(lines[8],
              "--------------------------------+-----------+-----------------------------------+"
              "-----------+-----------+-----------+-----------+----------|");
}

TEST_F(HoursReportTest, TheMirrorIsTheWholeText) {
    const MirrorSheet sheet = days("01/03/2024", "06/03/2024").of(people().front());
    Company company;
    company.name = "PADARIA SÃO JOÃO LTDA";
    company.taxId = "12.345.678/0001-95";
    EXPECT_EQ(joined(mirrorText(company, sheet)), expected("EspelhoTexto.txt"));
}

/// The sums of a month: of the report's figures, the sheets, the CSV, the screen and the card.
TEST_F(HoursReportTest, EveryOutputHasTheSameSums) {
    office.setFormat(TotalsFormat::DecimalHours);
    const MirrorPeriod period = days("01/03/2024", "31/03/2024");
    const Employee& ana = people().front();
    const MirrorSheet sheet = period.of(ana);
    const EmployeeKey key{kCompany, *ana.employeeCode()};
    const MonthSettings& settings = period.lastMonth();
    const auto loaded =
        loadEmployeeHours(office.desk.store(), kCompany, ana, settings, HoursPeriod::CalendarMonth);
    const HoursSummary screen(loaded->lines, settings.month, loaded->terms);
    EXPECT_EQ(sheet.totals, screen.totals(std::nullopt));

    HoursSheets sheets(settings.overtime);
    sheets.add(sheet);
    const std::vector<Sheet> book = std::move(sheets).sheets();
    std::map<std::string, std::chrono::seconds> sums;
    for (const Sheet* one : {&book[0], &book[1]})
        for (const auto& row : one->rows)
            for (std::size_t at = 0; at < row.size(); ++at)
                if (one->columns[at].summed)
                    sums[one->name + "." + one->columns[at].title] +=
                        std::get<std::chrono::seconds>(row[at]);
    const HourTotals& month = screen.totals(std::nullopt);
    EXPECT_EQ(sums["Dias.Hora Normal"], month[HourCategory::NormalDay]);
    EXPECT_EQ(sums["Dias.Ext 50/100%"],
              month[HourCategory::ExtraMinimum] + month[HourCategory::ExtraMaximum]);
    EXPECT_EQ(sums["Dias.Not 50/120%"], month.nightExtra());
    EXPECT_EQ(sums["Dias.HorasFalta"], sums["Resumo.H Falta"]);
    EXPECT_EQ(sums["Resumo.Extra 50%"], month[HourCategory::ExtraMinimum]);
    EXPECT_EQ(sums["Resumo.NotExtr 50%"], month[HourCategory::NightExtraMinimum]);

    HoursCsv csv(settings.overtime);
    csv.add(sheet);
    for (std::size_t at = 0; at < kHourCategories.size(); ++at)
        EXPECT_EQ(csv.rows()[1][3 + at], screen.figure(kHourCategories[at], std::nullopt));

    CardData card{.company = {},
                  .employee = ana,
                  .settings = settings,
                  .schedule = loadSchedule(office.desk.store(), key),
                  .punches = loadPunches(office.desk.store(), key, settings.month)};
    EXPECT_EQ(cardRows(card).front()[cardColumn("total")],
              decimalHours(sheet.totals.worked(), Decimals::Two));
}

}  // namespace
}  // namespace winvrx
