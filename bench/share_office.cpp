#include "bench/share_office.h"

#include "bench/office.h"
#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/copies/safety_copies.h"
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

/// Everyone has a schedule and cards of each month; the first ones have leaves on record.
void fillEmployees(const Store& store) {
    std::vector<EmployeeLine> lines;
    const std::string times = joinedLines({encode(eightHours())});
    for (const Employee& one : staff("MARIA", {.admission = "12/03/2020"})) {
        const EmployeeKey key{kCompany, *EmployeeCode::parse(one.code)};
        lines.push_back(lineOf(one));
        record(store.folder.companyFile(kCompany, scheduleFileName(key.employee)), times);
        if (key.employee.number() <= kOnLeave)
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

/// As in an office whose records are of other days: what is older than a copy by less than a step
/// of the disk's clock would be read to be compared.
void age(const std::filesystem::path& folder) {
    for (const auto& file : std::filesystem::directory_iterator(folder))
        std::filesystem::last_write_time(file, file.last_write_time() - 1h);
}

void copyYesterday(const Store& store, Log& log) {
    const CopyName name{.made = {*parseDate("14/03/2024"), *parseTime("08:12")}};
    const ZipArchiver archiver;
    SafetyCopies(store.files, archiver, log).makeDailyCopy(store.folder, name.made);
}

}  // namespace

void fillOffice(const Drives& drives, Log& log) {
    const DataFolder folder('C', pathOnDrive(drives, 'C', kDataFolder));
    const auto files = systemFiles();
    const Store store{*files, folder};
    files->makeFolder(folder.path());
    recordCompanies(store);
    saveStock(store, kCompany, *findStock(kPrintOrder.front()));
    fillEmployees(store);
    age(folder.path());
    copyYesterday(store, log);
}

}  // namespace winvrx
