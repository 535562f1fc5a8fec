// "Aplicar Ponto p/Todos" for a company of 999 employees, all that happens after the last question:
// reading register, schedules and leaves, filling the month and writing the cards. The floor writes
// the same bytes of the same files in one batch. Both on the disk on which the bench is run.
//
// `apply-1000`: flushed, as it is. `apply-1000-varied`: with "Minutos Variados".

#include "bench/timing.h"
#include "foundation/files/disk.h"
#include "foundation/files/durable_files.h"
#include "foundation/register/employee_register.h"
#include "tests/support/employees.h"
#include "timecard/punches/list_application.h"
#include "timecard/rotation/rotation_records.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;
using std::filesystem::path;

constexpr int kRounds = 9;
constexpr double kMostRatio = 1.3;
const CompanyCode kCompany = *CompanyCode::parse("01");

class BenchFolder {
  public:
    BenchFolder() : path_("bench-apply-" + std::to_string(std::random_device{}())) {
        std::filesystem::create_directories(path_);
    }
    ~BenchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;

    [[nodiscard]] DataFolder folder() const { return {'C', path_}; }

  private:
    path path_;
};

std::vector<EmployeeCode> everyone() {
    std::vector<EmployeeCode> codes;
    for (int number = 1; number <= EmployeeCode::kHighest; ++number)
        codes.push_back(*EmployeeCode::fromNumber(number));
    return codes;
}

void hire(const Store& store) {
    std::vector<EmployeeLine> lines;
    std::vector<FileSystem::NewContent> schedules;
    StandardSchedule schedule;
    schedule.weekday.morning = {parseTime("08:00"), parseTime("12:00")};
    schedule.weekday.afternoon = {parseTime("13:00"), parseTime("17:00")};
    for (const EmployeeCode& code : everyone()) {
        lines.push_back(lineOf(
            testing::employee(code.text(), "MARIA " + code.text(), {.admission = "12/03/2020"})));
        schedules.push_back({store.folder.companyFile(kCompany, scheduleFileName(code)),
                             joinedLines({encode(schedule)})});
    }
    store.files.replaceAll(schedules);
    store.files.replaceAll({EmployeeRegister(store, kCompany).contentOf(lines)});
}

/// Ours and the floor in turn, so that both meet the same disk.
bool measure(const char* name, const Store& store, Minutes minutes) {
    const RecordedAnswers records(store);
    const FixedClock clock({Date{2024y / 3 / 15}, {}});
    const RotationRecords rotation(store, clock);
    MonthSettings march;
    march.month = 2024y / 3;
    const ApplicationOrder order{
        .company = kCompany, .settings = march, .minutes = minutes, .situation = {}, .common = {}};
    ListApplication::Batch batch;
    std::vector<double> ours;
    std::vector<double> floor;
    for (int round = 0; round <= kRounds; ++round) {
        const double applied = milliseconds([&] {
            ListApplication application(store, {rotation, records}, order);
            batch = application.fill(everyone(), {}).value();
            store.files.replaceAll(batch);
        });
        const double written = milliseconds([&] { store.files.replaceAll(batch); });
        if (round == 0) continue;  // fills the caches
        ours.push_back(applied);
        floor.push_back(written);
    }
    const double ratio = report(name, ours, floor);
    return batch.size() == static_cast<std::size_t>(EmployeeCode::kHighest) && ratio <= kMostRatio;
}

}  // namespace

int main() {
    const BenchFolder bench;
    const DataFolder folder = bench.folder();
    const auto files = systemFiles();
    const Store store{*files, folder};
    hire(store);
    const bool fixed = measure("apply-1000", store, Minutes::Fixed);
    const bool varied = measure("apply-1000-varied", store, Minutes::Varied);
    return fixed && varied ? 0 : 1;
}
