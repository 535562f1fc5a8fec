// "GRAVAR TODOS" of 999 employees, each with a card, beside writing the same bytes, each file
// flushed and the folder once.
#include "bench/timing.h"
#include "foundation/files/durable_files.h"
#include "foundation/values/text.h"
#include "personnel/payroll/folha.h"
#include "tests/support/employees.h"
#include "timecard/punches/punch_record.h"

#include <filesystem>
#include <random>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;

constexpr int kEmployees = 999;
constexpr int kRounds = 5;
constexpr double kMostRatio = 1.5;
constexpr WorkMonth kMonth = 2026y / 3;

/// Agrees with everything.
class Agreeing final : public Operator {
  public:
    Answer ask(const Message& message) override { return agreement(message); }
};

class NoLog final : public Log {
  public:
    void write(std::string_view entry) noexcept override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(entry.size()), entry.data());
    }
};

/// Two folders beside the place of the run: the system's temporary one may be memory.
class BenchFolder {
  public:
    BenchFolder() {
        std::filesystem::create_directories(ours());
        std::filesystem::create_directories(floor());
    }
    ~BenchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;

    [[nodiscard]] std::filesystem::path ours() const { return path_ / "ours"; }
    [[nodiscard]] std::filesystem::path floor() const { return path_ / "floor"; }

  private:
    std::filesystem::path path_ =
        std::filesystem::absolute("bench-payroll-" + std::to_string(std::random_device{}()));
};

std::string cardOf(int employee) {
    std::string card = "  \r\n";
    for (Date date = firstDay(kMonth); monthOf(date) == kMonth; date = plusDays(date, 1)) {
        if (weekdayOf(date) == std::chrono::Sunday) continue;
        const int late = (employee + dayNumber(date)) % 10 * 3;
        card += dayLabel(date) + "08:0012:0013:0017:" + padded(late, 2) + "\r\n";
    }
    return card;
}

std::vector<Employee> staffIn(const std::filesystem::path& folder, Disk& disk) {
    std::vector<Employee> staff;
    for (int number = 1; number <= kEmployees; ++number) {
        Employee one = testing::employee(padded(number, 3), "FUNCIONARIO " + padded(number, 3));
        one.admission = "01/02/2020";
        one.salary = moneyText({200000 + number * 700});
        one.dependants = std::to_string(number % 4);
        disk.write(folder / ("01PadrHor" + one.code + ".pdx"), "08:0012:0013:0017:00");
        disk.write(folder / ("01" + one.code + "-" + monthKey(kMonth) + ".bdx"), cardOf(number));
        staff.push_back(std::move(one));
    }
    return staff;
}

/// What was recorded, with the names of the other folder; recorded files go.
std::vector<FileSystem::NewContent> takeRecorded(const BenchFolder& folders, Disk& disk) {
    std::vector<FileSystem::NewContent> taken;
    for (const std::string& name : disk.names(folders.ours())) {
        if (name.find("fp00") == std::string::npos) continue;
        taken.push_back({folders.floor() / name, disk.read(folders.ours() / name).value()});
        disk.remove(folders.ours() / name);
    }
    return taken;
}

void writeFlushed(Disk& disk, const std::vector<FileSystem::NewContent>& batch) {
    for (const FileSystem::NewContent& one : batch) {
        disk.write(one.file, one.bytes);
        disk.flush({one.file});
    }
    disk.flushFolder(batch.front().file.parent_path());
}

}  // namespace

int main() {
    const std::shared_ptr<Disk> disk = systemDisk();
    const BenchFolder folders;
    DurableFiles files(disk);
    Agreeing person;
    NoLog log;
    const FixedClock clock({2026y / 4 / 1, {}});
    const auto host = systemHost();
    FolderLock lock(*disk, *host);
    Session session{.folder = DataFolder('C', folders.ours()), .company = CompanyCode::parse("01")};
    const Workplace at{files, person, clock, log, session, lock};
    const auto staff = staffIn(folders.ours(), *disk);
    std::vector<double> times;
    std::vector<double> floors;
    for (int round = 0; round <= kRounds; ++round) {
        Folha folha(at, WINVRX_LEGAL_FOLDER);
        bool done = false;
        const double time =
            milliseconds([&] { done = folha.load(kMonth) && folha.saveAll(staff, {}); });
        const auto recorded = takeRecorded(folders, *disk);
        if (!done || recorded.size() != staff.size()) {
            std::printf("bench payroll-999: %zu of %d recorded\n", recorded.size(), kEmployees);
            return 1;
        }
        const double floor = milliseconds([&] { writeFlushed(*disk, recorded); });
        for (const auto& one : recorded)
            disk->remove(one.file);
        if (round == 0) continue;
        times.push_back(time);
        floors.push_back(floor);
    }
    return report("payroll-999", times, floors) > kMostRatio ? 1 : 0;
}
