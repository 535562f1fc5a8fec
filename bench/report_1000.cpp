// The hours reports of a company of 999 employees and a month: the text and the days behind it,
// beside loading and counting the hours alone; the spreadsheet beside libxlsxwriter writing the
// same cells.
#include "bench/figure.h"
#include "bench/office.h"
#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "output/mirrors/hours_report.h"
#include "tests/support/memory_files.h"
#include "timecard/hours/employee_hours.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;

constexpr int kRounds = 5;
constexpr double kMostRatio = 1.5;
constexpr WorkMonth kMonth = 2024y / 3;

std::vector<Employee> fillOffice(testing::MemoryFiles& files) {
    auto people = staff("MARIA DA CONCEIÇÃO GONÇALVES", {.admission = "01/02/2020"});
    int number = 0;
    for (const Employee& one : people) {
        ++number;
        files.content["/data/01PadrHor" + one.code + ".pdx"] = "08:0012:0013:0017:00";
        std::vector<PunchLine> lines = blankMonth(kMonth);
        for (PunchLine& line : lines) {
            const int off = (number * 7 + line.day() * 3) % 17 - 8;
            line.morningEntry = timeText({std::chrono::minutes{8 * 60 + off}});
            line.morningExit = "12:00";
            line.afternoonEntry = "13:00";
            line.afternoonExit = timeText({std::chrono::minutes{18 * 60 - off}});
        }
        const EmployeeKey key{*CompanyCode::parse("01"), *EmployeeCode::parse(one.code)};
        files.content["/data/" + punchFileName(key, kMonth)] = punchRecordBytes(lines);
    }
    return people;
}

/// The same cells without what surrounds them.
void writeBare(const std::vector<Sheet>& sheets, const QString& path) {
    lxw_workbook* book = workbook_new(QFile::encodeName(path).constData());
    for (const Sheet& sheet : sheets) {
        lxw_worksheet* to = workbook_add_worksheet(book, sheet.name.c_str());
        lxw_row_t row = 1;
        for (const auto& cells : sheet.rows) {
            lxw_col_t column = 0;
            for (const SheetCell& cell : cells) {
                if (const auto* text = std::get_if<std::string>(&cell)) {
                    if (!text->empty())
                        worksheet_write_string(to, row, column, text->c_str(), nullptr);
                } else {
                    worksheet_write_number(to, row, column, 0.123456, nullptr);
                }
                ++column;
            }
            ++row;
        }
    }
    workbook_close(book);
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::MemoryFiles files;
    const DataFolder folder('C', "/data");
    const Store store{files, folder};
    const auto people = fillOffice(files);
    const CompanyCode company = *CompanyCode::parse("01");
    const MonthSettings settings = loadMonthSettings(store, kMonth);
    const DayPeriod days{firstDay(kMonth), lastDay(kMonth)};
    const QTemporaryDir scratch;
    std::size_t lines = 0;
    std::chrono::seconds worked{0};
    Figure text("report-1000", kMostRatio);
    Figure book("report-1000-xlsx", kMostRatio);
    for (int round = 0; round <= kRounds; ++round) {
        text.floor([&] {
            for (const Employee& one : people)
                worked +=
                    loadEmployeeHours(store, company, one, settings, HoursPeriod::CalendarMonth)
                        ->totals()
                        .worked();
        });
        HoursSheets sheets(settings.overtime);
        const MirrorPeriod period(store, company, days);
        text.ours([&] {
            HoursReport report(days, settings.overtime);
            for (const Employee& one : people)
                report.add(period.of(one));
            lines += std::move(report).lines().size();
        });
        for (const Employee& one : people)
            sheets.add(period.of(one));
        const std::vector<Sheet> made = std::move(sheets).sheets();
        XlsxSpreadsheet spreadsheet;
        book.ours([&] { lines += spreadsheet.workbookOf(made, {}).size(); });
        book.floor([&] { writeBare(made, scratch.filePath(QStringLiteral("bare.xlsx"))); });
    }
    const bool within[] = {text.report(), book.report()};
    return lines > 0 && worked.count() > 0 && within[0] && within[1] ? 0 : 1;
}
