// "Aplicar Ponto p/Todos" for a company of 999 employees, all that happens after the last question:
// reading register, schedules and leaves, filling the month and writing the cards. The floor writes
// the same bytes of the same files in one batch. Both on the disk on which the bench is run.
//
// `apply-1000`: flushed, as it is. `apply-1000-varied`: with "Minutos Variados". `rotation-99`: for
// the members of ninety-nine rotation groups, planned on the way.

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
constexpr double kMostRotationRatio = 1.5;
const CompanyCode kCompany = *CompanyCode::parse("01");
const CompanyCode kRotating = *CompanyCode::parse("02");
constexpr int kGroups = 99;
constexpr int kGroupSize = 6;
constexpr WorkMonth kMarch = 2024y / 3;

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

std::vector<EmployeeCode> everyone(int count = EmployeeCode::kHighest) {
    std::vector<EmployeeCode> codes;
    for (int number = 1; number <= count; ++number)
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

/// Ninety-nine groups of five with a relief worker each.
void drawGroups(const Store& store) {
    std::vector<EmployeeLine> people;
    GroupLines groups;
    for (const EmployeeCode& code : everyone(kGroups * kGroupSize)) {
        people.push_back(lineOf(testing::employee(code.text(), "MARIA " + code.text(),
                                                  {"Unico", "5x1", "12/03/2020"})));
        const int at = (code.number() - 1) % kGroupSize;
        if (at == 0) groups.push_back(lineOf(GroupRecord()));
        RotationGroup group = groupOf(groups.back().record)
                                  .value_or(RotationGroup{.number = static_cast<int>(groups.size()),
                                                          .firstDayOff = firstDay(kMarch)});
        if (at + 1 < kGroupSize)
            group.places.emplace_back(code);
        else
            group.relief = {{code, plusDays(firstDay(kMarch), at)}};
        groups.back() = lineOf(recordOf(group));
    }
    groupFile(store, kRotating, kMarch).save(groups);
    store.files.replaceAll({EmployeeRegister(store, kRotating).contentOf(people)});
}

/// Ours and the floor in turn, so that both meet the same disk.
bool measure(const char* name, const Store& store, const CompanyCode& company, Minutes minutes) {
    const RecordedAnswers records(store);
    const FixedClock clock({Date{2024y / 3 / 15}, {}});
    const RotationRecords rotation(store, clock);
    MonthSettings march;
    march.month = kMarch;
    const auto codes =
        everyone(company == kRotating ? kGroups * kGroupSize : EmployeeCode::kHighest);
    const ApplicationOrder order{
        .company = company, .settings = march, .minutes = minutes, .situation = {}, .common = {}};
    ListApplication::Batch batch;
    std::vector<double> ours;
    std::vector<double> floor;
    for (int round = 0; round <= kRounds; ++round) {
        const double applied = milliseconds([&] {
            ListApplication application(store, {rotation, records}, order);
            batch = application.fill(codes, {}).value();
            store.files.replaceAll(batch);
        });
        const double written = milliseconds([&] { store.files.replaceAll(batch); });
        if (round == 0) continue;  // fills the caches
        ours.push_back(applied);
        floor.push_back(written);
    }
    const double ratio = report(name, ours, floor);
    return batch.size() == codes.size() &&
           ratio <= (company == kRotating ? kMostRotationRatio : kMostRatio);
}

}  // namespace

int main() {
    const BenchFolder bench;
    const DataFolder folder = bench.folder();
    const auto files = systemFiles();
    const Store store{*files, folder};
    hire(store);
    drawGroups(store);
    const bool fixed = measure("apply-1000", store, kCompany, Minutes::Fixed);
    const bool varied = measure("apply-1000-varied", store, kCompany, Minutes::Varied);
    const bool rotation = measure("rotation-99", store, kRotating, Minutes::Fixed);
    return fixed && varied && rotation ? 0 : 1;
}
