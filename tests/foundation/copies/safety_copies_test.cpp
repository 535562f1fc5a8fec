#include "foundation/copies/safety_copies.h"

#include "foundation/copies/daily_copy_files.h"
#include "foundation/files/durable_files.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/memory_disk.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::FaultyDisk;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::MemoryDisk;
using testing::PlainArchiver;
using testing::TestWorkplace;

const std::string kCopies = "/data/Copias/";

Clock::Moment moment(const char* date, const char* time) {
    return {*parseDate(date), *parseTime(time)};
}

class MovedClock final : public Clock {
  public:
    Moment moment{*parseDate("15/03/2024"), *parseTime("08:12")};
    [[nodiscard]] Moment now() const override { return moment; }
};

class SafetyCopiesTest : public ::testing::Test {
  protected:
    SafetyCopiesTest() {
        desk.file("01Empresa") = "01 EMPRESA\r\n";
        desk.file("01CartaPonto") = "001 ANA\r\n";
        desk.file("01001-03-2024.bdx") = "";
    }

    std::vector<std::string> copyNames() {
        std::vector<std::string> names;
        for (const SafetyCopy& copy : copies.list(desk.session.folder))
            names.push_back(copy.name.text());
        return names;
    }
    /// The records, without the copies.
    std::map<std::string, std::string> records() {
        std::map<std::string, std::string> records;
        for (const auto& [file, bytes] : desk.files.content)
            if (file.parent_path() == "/data") records[file.filename().string()] = bytes;
        return records;
    }
    std::string refusalOf(const CopyName& copy) {
        try {
            copies.restore(desk.session.folder, copy, now);
            return "(restored)";
        } catch (const Fault& fault) {
            return fault.explanation();
        }
    }

    TestWorkplace desk;
    PlainArchiver archiver;
    SafetyCopies copies{desk.files, archiver, desk.log};
    MovedClock clock;
    DailyCopyFiles files{desk.files, copies, desk.session, clock, desk.log};
    const Clock::Moment now = moment("15/03/2024", "10:20");
    const CopyName today{.made = moment("15/03/2024", "08:12")};
};

TEST_F(SafetyCopiesTest, TheFirstChangeOfADayIsPrecededByACopy) {
    const auto before = records();
    files.replace("/data/01Empresa", "01 OUTRA\r\n");
    files.replace("/data/01CartaPonto", "");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-0812.zip"));
    EXPECT_EQ(desk.file("01Empresa"), "01 OUTRA\r\n");
    copies.restore(desk.session.folder, today, now);
    EXPECT_EQ(records(), before);
    clock.moment.date = *parseDate("18/03/2024");
    files.remove("/data/01001-03-2024.bdx");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-18-0812.zip", "2024-03-15-1020-antes.zip",
                                         "2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, AFurtherRunOfTheDayMakesNoSecondCopy) {
    files.replaceAll({{"/data/01Empresa", "01 OUTRA\r\n"}});
    clock.moment.time = *parseTime("17:00");
    DailyCopyFiles nextRun{desk.files, copies, desk.session, clock, desk.log};
    nextRun.replace("/data/01Empresa", "01 TERCEIRA\r\n");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, OnlyRecordsOfTheFolderBringACopyAbout) {
    files.replace("/data/LocMen.lvc", "C\r\n");
    files.remove("/data/DataIde.ivc");
    files.replace("/data/WinvrxOfNew/x", "");
    files.replace("/elsewhere/01Empresa", "");
    EXPECT_THAT(copyNames(), IsEmpty());
    desk.session.folder = DataFolder('C', "/data/");
    files.remove("/data/01CartaPonto");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, AnEmptyFolderIsCopiedWhenThereIsSomethingInIt) {
    desk.files.content.clear();
    files.replace("/data/01Empresa", "01 EMPRESA\r\n");
    EXPECT_THAT(copyNames(), IsEmpty());
    files.replace("/data/01CartaPonto", "001 ANA\r\n");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, AFailedCopyIsLoggedAndStopsNothing) {
    desk.files.failWritesOn = {"2024-03-15-0812.zip"};
    files.replace("/data/01Empresa", "01 OUTRA\r\n");
    EXPECT_EQ(desk.file("01Empresa"), "01 OUTRA\r\n");
    ASSERT_EQ(desk.log.entries.size(), 1U);
    EXPECT_THAT(desk.log.entries[0], HasSubstr("2024-03-15-0812.zip"));
    files.replace("/data/01Empresa", "01 TERCEIRA\r\n");
    EXPECT_EQ(desk.log.entries.size(), 1U);
}

TEST_F(SafetyCopiesTest, AnUnreadableFileIsLeftOutOfTheDaysCopyOnly) {
    desk.files.failOn = {"01CartaPonto"};
    copies.makeDailyCopy(desk.session.folder, today.made);
    EXPECT_EQ(copies.list(desk.session.folder).at(0).files, 2U);
    EXPECT_THAT(desk.log.entries.at(0), HasSubstr("01CartaPonto"));
    const auto before = records();
    desk.file("01Empresa") = "01 OUTRA\r\n";
    EXPECT_THAT(refusalOf(today), HasSubstr("01CartaPonto"));
    EXPECT_EQ(desk.file("01Empresa"), "01 OUTRA\r\n");
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, DaysBeyondSevenGo) {
    for (int day = 1; day <= 9; ++day) {
        clock.moment.date = *parseDate("0" + std::to_string(day) + "/03/2024");
        files.replace("/data/01Empresa", std::to_string(day));
    }
    const auto names = copyNames();
    ASSERT_EQ(names.size(), 7U);
    EXPECT_EQ(names.front(), "2024-03-09-0812.zip");
    EXPECT_EQ(names.back(), "2024-03-03-0812.zip");
}

TEST_F(SafetyCopiesTest, RestoringMakesTheFolderWhatItWas) {
    desk.file("LocMen.lvc") = "C\r\n";
    const auto before = records();
    copies.makeDailyCopy(desk.session.folder, today.made);
    desk.file("01Empresa") = "01 OUTRA\r\n";
    desk.files.content.erase("/data/01001-03-2024.bdx");
    desk.file("02CartaPonto") = "001 NOVA\r\n";
    const auto replaced = records();
    EXPECT_THAT(copies.changes(desk.session.folder, today),
                ElementsAre(FileChange{"01001-03-2024.bdx", FileChange::Kind::OnlyInCopy},
                            FileChange{"01Empresa", FileChange::Kind::Differs},
                            FileChange{"02CartaPonto", FileChange::Kind::OnlyHere}));
    copies.restore(desk.session.folder, today, now);
    EXPECT_EQ(records(), before);
    EXPECT_THAT(copies.changes(desk.session.folder, today), IsEmpty());
    const CopyName kept{.made = now, .kind = CopyName::Kind::Replaced};
    copies.restore(desk.session.folder, kept, now);
    EXPECT_EQ(records(), replaced);
    EXPECT_THAT(copyNames(), ElementsAre("2024-03-15-1020-antes-2.zip", "2024-03-15-1020-antes.zip",
                                         "2024-03-15-0812.zip"));
}

TEST_F(SafetyCopiesTest, WithoutACopyOfTheReplacedStateNothingIsRestored) {
    copies.makeDailyCopy(desk.session.folder, today.made);
    desk.file("01Empresa") = "01 OUTRA\r\n";
    const auto before = desk.files.content;
    desk.files.failWritesOn = {"2024-03-15-1020-antes.zip"};
    EXPECT_THAT(refusalOf(today), HasSubstr("antes.zip"));
    archiver.works = false;
    EXPECT_EQ(refusalOf(today), "Não há memória para a cópia.");
    EXPECT_EQ(desk.files.content, before);
}

TEST_F(SafetyCopiesTest, HostileAndDamagedCopiesChangeNothing) {
    const auto file = [](const char* name) { return PlainArchiver::packedFile(name, "x"); };
    const std::string good = file("01Empresa");
    const std::pair<const char*, std::string> cases[] = {
        {"a folder above", good + file("../x")},
        {"a sub-folder", good + file("Copias/x")},
        {"a root", good + file("/data/x")},
        {"a drive", good + file("C:x")},
        {"a device", good + file("nul")},
        {"twice the same file", good + good},
        {"no files", ""},
        {"cut short", good.substr(0, good.size() - 1)}};
    for (const auto& [what, archive] : cases) {
        desk.files.content[kCopies + today.text()] = archive;
        const auto before = desk.files.content;
        EXPECT_EQ(refusalOf(today), "A cópia está danificada e não pode ser usada.") << what;
        EXPECT_EQ(desk.files.content, before) << what;
        const auto listed = copies.list(desk.session.folder);
        ASSERT_EQ(listed.size(), 1U) << what;
        EXPECT_TRUE(listed[0].damaged) << what;
    }
    desk.files.content.erase(kCopies + today.text());
    EXPECT_EQ(refusalOf(today), "A cópia não está mais na pasta de cópias.");
}

TEST_F(SafetyCopiesTest, FilesOfTheRunAreNotBroughtBack) {
    desk.files.content[kCopies + today.text()] = PlainArchiver::packedFile("01Empresa", "x") +
                                                 PlainArchiver::packedFile("LocMen.lvc", "Z") +
                                                 PlainArchiver::packedFile("qdb.mdb", "old");
    desk.file("qdb.mdb") = "new";
    copies.restore(desk.session.folder, today, now);
    EXPECT_EQ(desk.file("qdb.mdb"), "new");
    EXPECT_FALSE(desk.files.content.contains("/data/LocMen.lvc"));
    EXPECT_EQ(desk.file("01Empresa"), "x");
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
            EXPECT_EQ(all.at(kCopies + "2024-03-15-1020-antes.zip"), replaced_);
        }
        restoreOn(disk, log);
        EXPECT_EQ(recordsOf(disk.files()), after_);
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
