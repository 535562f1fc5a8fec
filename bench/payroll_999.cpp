// "GRAVAR TODOS" of 999 employees, each with a card, beside writing the same bytes, each file
// flushed and the folder once.
#include "bench/desk.h"
#include "bench/figure.h"
#include "bench/office.h"
#include "foundation/values/text.h"
#include "personnel/payroll/folha.h"
#include "tests/support/scratch_folder.h"
#include "timecard/punches/punch_record.h"

#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

using namespace winvrx;
using namespace std::chrono_literals;

constexpr int kRounds = 5;
constexpr double kMostRatio = 1.5;
constexpr WorkMonth kMonth = 2026y / 3;

std::string cardOf(int employee) {
    std::string card = "  \r\n";
    for (Date date = firstDay(kMonth); monthOf(date) == kMonth; date = plusDays(date, 1)) {
        if (weekdayOf(date) == std::chrono::Sunday) continue;
        const int late = (employee + dayNumber(date)) % 10 * 3;
        card += dayLabel(date) + "08:0012:0013:0017:" + padded(late, 2) + "\r\n";
    }
    return card;
}

std::vector<Employee> hire(const std::filesystem::path& folder, Disk& disk) {
    auto people = staff("FUNCIONARIO", {.admission = "01/02/2020"});
    int number = 0;
    for (Employee& one : people) {
        ++number;
        one.salary = moneyText({200000 + number * 700});
        one.dependants = std::to_string(number % 4);
        disk.write(folder / ("01PadrHor" + one.code + ".pdx"), "08:0012:0013:0017:00");
        disk.write(folder / ("01" + one.code + "-" + monthKey(kMonth) + ".bdx"), cardOf(number));
    }
    return people;
}

/// What was recorded, with the names of the other folder; recorded files go.
std::vector<FileSystem::NewContent> takeRecorded(const std::filesystem::path& from,
                                                 const std::filesystem::path& to, Disk& disk) {
    std::vector<FileSystem::NewContent> taken;
    for (const std::string& name : disk.names(from)) {
        if (name.find("fp00") == std::string::npos) continue;
        taken.push_back({to / name, disk.read(from / name).value()});
        disk.remove(from / name);
    }
    return taken;
}

}  // namespace

int main() {
    // Beside the place of the run: the system's temporary folder may be memory.
    const testing::ScratchFolder ours(std::filesystem::current_path());
    const testing::ScratchFolder floor(std::filesystem::current_path());
    BenchDesk desk(ours.path(), 2026y / 4 / 1);
    const auto people = hire(ours.path(), *desk.disk);
    Figure figure("payroll-999", kMostRatio);
    for (int round = 0; round <= kRounds; ++round) {
        Folha folha(desk.at, WINVRX_LEGAL_FOLDER);
        bool done = false;
        figure.ours([&] { done = folha.load(kMonth) && folha.saveAll(people, {}); });
        const auto recorded = takeRecorded(ours.path(), floor.path(), *desk.disk);
        if (!done || recorded.size() != people.size()) {
            std::printf("bench payroll-999: %zu of %zu recorded\n", recorded.size(), people.size());
            return 1;
        }
        figure.floor([&] { writeFlushed(*desk.disk, recorded); });
        for (const auto& one : recorded)
            desk.disk->remove(one.file);
    }
    return figure.report() ? 0 : 1;
}
