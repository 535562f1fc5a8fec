#include "foundation/copies/safety_copies.h"

#include "foundation/copies/daily_copy_files.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

#include <functional>
#include <random>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
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
        for (const SafetyCopy& copy : copies.list(desk.session.folder, clock.today()))
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
    EXPECT_EQ(copies.list(desk.session.folder, clock.today()).at(0).files, 2U);
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
    const CopyName kept{.made = now, .kind = CopyName::Kind::Before};
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
        const auto listed = copies.list(desk.session.folder, clock.today());
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

/// The files that a copy's own archive holds, without what it says of itself.
std::vector<std::string> packedIn(const std::string& archive) {
    std::vector<std::string> names;
    const auto note = [&](const std::string& name) {
        if (name != kContentsName) names.push_back(name);
        return false;
    };
    PlainArchiver().unpack(archive, note, [](const ArchiveEntry&) {});
    return names;
}

TEST_F(SafetyCopiesTest, ACopyPacksWhatChangedSinceTheOneBefore) {
    const std::string first = kCopies + "2024-03-14-0812.zip";
    struct Case {
        const char* what;
        std::function<void(TestWorkplace&)> change;
        std::vector<std::string> packed;
    };
    const std::vector<std::string> all{"01001-03-2024.bdx", "01CartaPonto", "01Empresa"};
    const std::filesystem::path card = "/data/01001-03-2024.bdx";
    const Case cases[] = {
        {"nothing", [](TestWorkplace&) {}, {}},
        {"a file",
         [](TestWorkplace& at) { at.file("01CartaPonto") = "002 EVA\r\n"; },
         {"01CartaPonto"}},
        {"a size at the same time",
         [&](TestWorkplace& at) {
             at.files.times[card] = at.files.list("/data")[0].written - std::chrono::minutes(9);
             at.file("01001-03-2024.bdx") = "longer";
         },
         {"01001-03-2024.bdx"}},
        {"a new file", [](TestWorkplace& at) { at.file("02CartaPonto") = "x"; }, {"02CartaPonto"}},
        {"a file goes", [&](TestWorkplace& at) { at.files.content.erase(card); }, {}},
        {"the copy before is gone", [&](TestWorkplace& at) { at.files.content.erase(first); }, all},
        {"the copy before is damaged",
         [&](TestWorkplace& at) { at.files.content[first].resize(20); }, all},
        {"a file written with the copy before",
         [&](TestWorkplace& at) { at.files.times[first] = std::chrono::minutes(1); }, all}};
    for (const Case& one : cases) {
        TestWorkplace at;
        at.files.content = desk.files.content;
        SafetyCopies made(at.files, archiver, at.log);
        made.makeDailyCopy(at.session.folder, moment("14/03/2024", "08:12"));
        one.change(at);
        made.makeDailyCopy(at.session.folder, today.made);
        EXPECT_EQ(packedIn(at.files.content.at(kCopies + today.text())), one.packed) << one.what;
        EXPECT_THAT(made.changes(at.session.folder, today), IsEmpty()) << one.what;
    }
}

TEST_F(SafetyCopiesTest, ACopyThatIsGivenUpLeavesNoneAndDeletesNothing) {
    std::vector<std::pair<std::size_t, std::size_t>> shown;
    SafetyCopies watched(desk.files, archiver, desk.log, [&]() -> SafetyCopies::Progress {
        return [&](std::size_t done, std::size_t all) {
            shown.emplace_back(done, all);
            return done < 2;
        };
    });
    EXPECT_THROW(watched.makeCopyBefore(desk.session.folder, now, "excluir"), Fault);
    EXPECT_THAT(shown, ElementsAre(std::pair(1U, 3U), std::pair(2U, 3U)));
    EXPECT_THAT(copyNames(), IsEmpty());
}

TEST_F(SafetyCopiesTest, WhatACopyNeedsAndIsNotThereIsTold) {
    const std::string base = "2024-03-14-0812.zip";
    copies.makeDailyCopy(desk.session.folder, moment("14/03/2024", "08:12"));
    desk.file("01CartaPonto") = "002 EVA\r\n";
    copies.makeDailyCopy(desk.session.folder, today.made);
    desk.file("01Empresa") = "01 OUTRA\r\n";
    desk.file("01CartaPonto") = "";
    const auto sound = desk.files.content;
    const std::string whole = sound.at(kCopies + base);
    std::string swapped = whole;
    swapped[swapped.find("01Empresa")] = '9';
    const std::pair<std::optional<std::string>, const char*> cases[] = {
        {std::nullopt, "não está mais na pasta de cópias."},
        {whole.substr(0, whole.size() - 9), "está danificada."},
        {swapped, "está danificada."}};
    for (const auto& [bytes, told] : cases) {
        desk.files.content = sound;
        desk.files.content.erase(kCopies + base);
        if (bytes) desk.files.content[kCopies + base] = *bytes;
        const auto before = desk.files.content;
        EXPECT_EQ(refusalOf(today), "Esta cópia precisa de \"" + base + "\", que " + told);
        if (bytes != swapped) {
            EXPECT_THROW((void)copies.changes(desk.session.folder, today), Fault) << told;
        }
        EXPECT_EQ(desk.files.content, before) << told;
    }
    desk.files.content.erase(kCopies + base);
    EXPECT_TRUE(copies.list(desk.session.folder, clock.today()).at(0).damaged);
    // What a copy that is gone held is packed again.
    copies.makeCopyBefore(desk.session.folder, now, "excluir");
    EXPECT_EQ(packedIn(desk.files.content.at(kCopies + "2024-03-15-1020-antes.zip")).size(), 3U);
}

/// Weeks of work on a few files, with dice: every copy that is listed brings its day back by what
/// lies in the folder of copies alone, and that folder stays small.
TEST_F(SafetyCopiesTest, EachListedCopyBringsItsDayBack) {
    std::mt19937 dice(33);
    std::map<std::string, std::map<std::string, std::string>> states;
    for (int file = 0; file < 60; ++file)
        desk.file("01Nota" + std::to_string(file)) = "first";
    clock.moment.date = *parseDate("01/01/2024");
    for (int day = 0; day < 80; ++day) {
        clock.moment.date = *parseDate(
            dateText(std::chrono::sys_days(clock.moment.date) + std::chrono::days(1 + dice() % 2)));
        states[CopyName{.made = clock.moment}.text()] = records();
        for (auto changes = 1 + dice() % 3; changes > 0; --changes) {
            const std::string file = "/data/01Nota" + std::to_string(dice() % 70);
            if (dice() % 9 == 0)
                files.remove(file);
            else
                files.replace(file, "day " + std::to_string(day));
        }
        const auto names = copyNames();
        EXPECT_EQ(names.size(), std::min<std::size_t>(7, states.size()));
        EXPECT_LE(desk.files.names(kCopies).size(), 7U + 21U + 7U);
        for (const std::string& name : names) {
            TestWorkplace later;
            for (const auto& [file, bytes] : desk.files.content)
                if (file.parent_path() / "" == kCopies) later.files.content[file] = bytes;
            SafetyCopies(later.files, archiver, later.log)
                .restore(later.session.folder, *CopyName::parse(name), now);
            for (const auto& [file, bytes] : states.at(name))
                ASSERT_EQ(later.file(file), bytes) << name << " of day " << day << ": " << file;
        }
    }
    EXPECT_THAT(desk.log.entries, IsEmpty());
}

}  // namespace
}  // namespace winvrx
