// "Aplicar Ponto p/Todos" for a company of 999 employees, all that happens after the last question:
// reading register, schedules and leaves, filling the month and writing the cards. The floor writes
// the same bytes of the same files in one batch. Both on the disk on which the bench is run.
//
// `apply-1000`: flushed, as it is. `apply-1000-varied`: with "Minutos Variados". `rotation-99`: for
// the members of ninety-nine rotation groups, planned on the way.

#include "bench/figure.h"
#include "bench/office.h"
#include "foundation/files/durable_files.h"
#include "foundation/register/employee_register.h"
#include "tests/support/scratch_folder.h"
#include "timecard/punches/list_application.h"
#include "timecard/rotation/rotation_records.h"

#include <filesystem>
#include <vector>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;

constexpr int kRounds = 9;
constexpr double kMostRatio = 1.3;
constexpr double kMostRotationRatio = 1.5;
const CompanyCode kCompany = *CompanyCode::parse("01");
const CompanyCode kRotating = *CompanyCode::parse("02");
constexpr int kGroups = 99;
constexpr int kGroupSize = 6;
constexpr WorkMonth kMarch = 2024y / 3;

std::vector<EmployeeCode> codesOf(const std::vector<Employee>& people) {
    std::vector<EmployeeCode> codes;
    for (const Employee& one : people)
        codes.push_back(*EmployeeCode::parse(one.code));
    return codes;
}

void record(const Store& store, const CompanyCode& company, const std::vector<Employee>& people) {
    std::vector<EmployeeLine> lines;
    for (const Employee& one : people)
        lines.push_back(lineOf(one));
    store.files.replaceAll({EmployeeRegister(store, company).contentOf(lines)});
}

std::vector<EmployeeCode> hire(const Store& store) {
    const auto people = staff("MARIA", {.admission = "12/03/2020"});
    const auto codes = codesOf(people);
    std::vector<FileSystem::NewContent> schedules;
    for (const EmployeeCode& code : codes)
        schedules.push_back({store.folder.companyFile(kCompany, scheduleFileName(code)),
                             joinedLines({encode(eightHours())})});
    store.files.replaceAll(schedules);
    record(store, kCompany, people);
    return codes;
}

/// Ninety-nine groups of five with a relief worker each.
std::vector<EmployeeCode> drawGroups(const Store& store) {
    const auto people = staff("MARIA", {"Unico", "5x1", "12/03/2020"}, kGroups * kGroupSize);
    const auto codes = codesOf(people);
    GroupLines groups;
    for (const EmployeeCode& code : codes) {
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
    record(store, kRotating, people);
    return codes;
}

/// Ours and the floor in turn, so that both meet the same disk.
bool measure(Figure figure, const Store& store, const CompanyCode& company, Minutes minutes,
             const std::vector<EmployeeCode>& codes) {
    const RecordedAnswers records(store);
    const FixedClock clock({Date{2024y / 3 / 15}, {}});
    const RotationRecords rotation(store, clock);
    MonthSettings march;
    march.month = kMarch;
    const ApplicationOrder order{
        .company = company, .settings = march, .minutes = minutes, .situation = {}, .common = {}};
    ListApplication::Batch batch;
    for (int round = 0; round <= kRounds; ++round) {
        figure.ours([&] {
            ListApplication application(store, {rotation, records}, order);
            batch = application.fill(codes, {}).value();
            store.files.replaceAll(batch);
        });
        figure.floor([&] { store.files.replaceAll(batch); });
    }
    return figure.report() && batch.size() == codes.size();
}

}  // namespace

int main() {
    const testing::ScratchFolder scratch(".");
    const DataFolder folder('C', scratch.path());
    const auto files = systemFiles();
    const Store store{*files, folder};
    const auto everyone = hire(store);
    const auto rotating = drawGroups(store);
    const bool fixed =
        measure(Figure("apply-1000", kMostRatio), store, kCompany, Minutes::Fixed, everyone);
    const bool varied = measure(Figure("apply-1000-varied", kMostRatio), store, kCompany,
                                Minutes::Varied, everyone);
    const bool rotation = measure(Figure("rotation-99", kMostRotationRatio), store, kRotating,
                                  Minutes::Fixed, rotating);
    return fixed && varied && rotation ? 0 : 1;
}
