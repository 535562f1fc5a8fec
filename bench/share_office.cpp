#include "bench/share_office.h"

#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/copies/safety_copies.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/register/leave_record.h"
#include "output/stocks/card_stock.h"
#include "timecard/month/month_settings.h"
#include "timecard/punches/punch_record.h"
#include "timecard/schedule/standard_schedule.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace winvrx {

namespace {

using namespace std::chrono_literals;

const WorkMonth kMonth = 2024y / 3;
const WorkMonth kFirstMonth = 2022y / 5;

void record(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

void fillCompanies(const Store& store) {
    std::vector<CompanyLine> lines;
    for (int number = 1; number <= CompanyCode::kHighest; ++number) {
        Company company = sampleCompany(*parseDate("15/03/2024"));
        company.code = CompanyCode::fromNumber(number)->text();
        company.name = "PADARIA " + company.code;
        lines.push_back({encode(company), company});
    }
    companyFile(store).save(lines);
    saveStock(store, kCompany, *findStock(kPrintOrder.front()));
}

/// Everyone has a schedule and cards of each month; the first ones have leaves on record.
void fillEmployees(const Store& store) {
    std::vector<EmployeeLine> lines;
    StandardSchedule schedule;
    schedule.weekday.morning = {parseTime("08:00"), parseTime("12:00")};
    schedule.weekday.afternoon = {parseTime("13:00"), parseTime("17:00")};
    const std::string times = joinedLines({encode(schedule)});
    for (int number = 1; number <= kEmployees; ++number) {
        const EmployeeKey key{kCompany, *EmployeeCode::fromNumber(number)};
        Employee one;
        one.code = key.employee.text();
        one.name = "MARIA " + one.code;
        one.admission = "12/03/2020";
        one.shift = "Unico";
        one.scale = "Normal";
        lines.push_back(lineOf(one));
        record(store.folder.companyFile(kCompany, scheduleFileName(key.employee)), times);
        if (number <= kOnLeave)
            record(store.folder.companyFile(kCompany, leaveFileName(key.employee)),
                   joinedLines({leaveStatusLine(std::nullopt)}));
        for (WorkMonth month = kFirstMonth; month <= kMonth; month += std::chrono::months(1))
            record(store.folder.file(punchFileName(key, month)), "  \r\n01/sex/mar08:0012:00\r\n");
    }
    store.files.replaceAll({EmployeeRegister(store, kCompany).contentOf(lines)});
    for (WorkMonth month = kFirstMonth; month <= kMonth; month += std::chrono::months(1)) {
        MonthSettings settings;
        settings.month = month;
        saveMonthSettings(store, settings);
    }
}

}  // namespace

void fillOffice(const Store& store) {
    fillCompanies(store);
    fillEmployees(store);
}

void copyYesterday(FileSystem& files, const DataFolder& folder, Log& log) {
    const CopyName name{.made = {*parseDate("14/03/2024"), *parseTime("08:12")}};
    const ZipArchiver archiver;
    SafetyCopies(files, archiver, log).makeDailyCopy(folder, name.made);
    const auto file = folder.path() / kCopiesSubfolder / name.text();
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + 10s);
}

}  // namespace winvrx
