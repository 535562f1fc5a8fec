#include "foundation/copies/safety_copies.h"
#include "foundation/files/durable_files.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/memory_disk.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

#include <random>

namespace winvrx {
namespace {

using testing::FaultyDisk;
using testing::MemoryDisk;
using testing::PlainArchiver;

const std::string kCopies = "/data/Copias/";

Clock::Moment moment(const char* date, const char* time) {
    return {*parseDate(date), *parseTime(time)};
}

/// Restores on a disk of which operation after operation fails, until a run completes.
class CutShortTest : public ::testing::TestWithParam<FaultyDisk::Failure> {
  protected:
    using Files = MemoryDisk::Files;

    static void restoreOn(Disk& disk, testing::RecordedLog& log) {
        DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
        const PlainArchiver archiver;
        SafetyCopies(files, archiver, log)
            .restore(DataFolder('C', "/data"), {.made = moment("15/03/2024", "08:12")},
                     moment("15/03/2024", "10:20"));
    }

    static Files recordsOf(const Files& all) {
        Files records;
        for (const auto& [file, bytes] : all)
            if (file.parent_path() == "/data" && !file.string().ends_with(kTemporarySuffix))
                records[file] = bytes;
        return records;
    }

    const Files before_{{"/data/01Empresa", "B"},
                        {"/data/02CartaPonto", "only here"},
                        {"/data/03Igual", "same"},
                        {kCopies + "2024-03-15-0812.zip",
                         PlainArchiver::packedFile("01Empresa", "A") +
                             PlainArchiver::packedFile("01CartaPonto", "only there") +
                             PlainArchiver::packedFile("03Igual", "same")}};
    const Files after_{
        {"/data/01Empresa", "A"}, {"/data/01CartaPonto", "only there"}, {"/data/03Igual", "same"}};
    const std::string replaced_ = PlainArchiver::packedFile("01Empresa", "B") +
                                  PlainArchiver::packedFile("02CartaPonto", "only here") +
                                  PlainArchiver::packedFile("03Igual", "same");
};

TEST_P(CutShortTest, EveryFileIsTheOldOrTheNewOneAndTheReplacedStateIsKept) {
    std::mt19937 dice(2024);
    testing::RecordedLog log;
    for (int failAt = 1;; ++failAt) {
        SCOPED_TRACE("operation " + std::to_string(failAt));
        MemoryDisk disk(before_);
        FaultyDisk faulty(disk, failAt, GetParam(), std::errc::no_space_on_device);
        try {
            restoreOn(faulty, log);
        } catch (const Fault&) {
        } catch (const testing::PowerCut&) {
            disk.cutPower(dice);
        }
        const Files all = disk.files();
        bool changed = false;
        const Files left = recordsOf(all);
        for (const std::string name : {"01Empresa", "01CartaPonto", "02CartaPonto", "03Igual"}) {
            const auto state = [&](const Files& files) {
                const auto found = files.find("/data/" + name);
                return found == files.end() ? std::string("(none)") : found->second;
            };
            EXPECT_TRUE(state(left) == state(before_) || state(left) == state(after_)) << name;
            changed = changed || state(left) != state(before_);
        }
        if (changed) {
            EXPECT_TRUE(all.at(kCopies + "2024-03-15-1020-antes.zip").starts_with(replaced_));
        }
        restoreOn(disk, log);
        EXPECT_EQ(recordsOf(disk.files()), after_);
        if (!faulty.failed()) break;
        ASSERT_LT(failAt, 200);
    }
}

TEST_P(CutShortTest, ACopyThatIsCutShortHarmsNoOther) {
    std::mt19937 dice(2024);
    testing::RecordedLog log;
    const DataFolder folder('C', "/data");
    const auto copyOn = [&](Disk& disk, int day) {
        DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
        files.replace("/data/01CartaPonto", "day " + std::to_string(day));
        const std::string date = (day < 10 ? "0" : "") + std::to_string(day) + "/03/2024";
        SafetyCopies(files, PlainArchiver(), log)
            .makeDailyCopy(folder, moment(date.c_str(), "08:12"));
    };
    MemoryDisk week(Files{{"/data/01Empresa", "A"}});
    for (int day = 1; day <= 8; ++day)
        copyOn(week, day);
    for (int failAt = 1;; ++failAt) {
        SCOPED_TRACE("operation " + std::to_string(failAt));
        MemoryDisk disk = week;
        FaultyDisk faulty(disk, failAt, GetParam(), std::errc::no_space_on_device);
        try {
            copyOn(faulty, 9);
        } catch (const Fault&) {
        } catch (const testing::PowerCut&) {
            disk.cutPower(dice);
        }
        DurableFiles files(std::shared_ptr<Disk>(&disk, [](Disk*) {}));
        const auto listed =
            SafetyCopies(files, PlainArchiver(), log).list(folder, *parseDate("09/03/2024"));
        EXPECT_GE(listed.size(), 7U);
        for (const SafetyCopy& copy : listed) {
            EXPECT_FALSE(copy.damaged) << copy.name.text();
            // Only the copy of that day lacks a file that could not be read.
            if (copy.name.made.date != *parseDate("09/03/2024")) {
                EXPECT_EQ(copy.files, 2U) << copy.name.text();
            }
        }
        copyOn(disk, 9);
        if (!faulty.failed()) break;
        ASSERT_LT(failAt, 200);
    }
}

INSTANTIATE_TEST_SUITE_P(Failures, CutShortTest,
                         ::testing::Values(FaultyDisk::Failure::Once, FaultyDisk::Failure::Late,
                                           FaultyDisk::Failure::ForGood,
                                           FaultyDisk::Failure::Power));

}  // namespace
}  // namespace winvrx
