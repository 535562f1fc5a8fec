#include "foundation/copies/desktop/zip_archiver.h"

#include "foundation/copies/safety_copies.h"
#include "tests/support/test_workplace.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Files = std::vector<std::pair<std::string, std::string>>;

const Archiver::Choice kAll = [](const std::string&) { return true; };

std::string zipOf(const Files& files) {
    std::size_t position = 0;
    return ZipArchiver().pack([&]() -> std::optional<ArchiveEntry> {
        if (position == files.size()) return std::nullopt;
        const auto& [name, bytes] = files[position++];
        return ArchiveEntry{name, bytes};
    });
}

Files filesIn(const std::string& archive) {
    Files files;
    ZipArchiver().unpack(archive, kAll, [&](const ArchiveEntry& entry) {
        files.emplace_back(entry.name, entry.bytes);
    });
    return files;
}

/// True when the archive is refused as damaged.
bool isRefused(const std::string& archive) {
    try {
        (void)filesIn(archive);
        return false;
    } catch (const DamagedArchive&) {
        return true;
    }
}

/// An archive of another maker, with one entry that is no plain file.
std::string foreignArchive(bool zip, __LA_MODE_T type) {
    std::string bytes(1 << 16, '\0');
    std::size_t used = 0;
    archive* writer = archive_write_new();
    zip ? archive_write_set_format_zip(writer) : archive_write_set_format_ustar(writer);
    archive_write_open_memory(writer, bytes.data(), bytes.size(), &used);
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, "01Empresa");
    archive_entry_set_filetype(entry, type);
    if (type == AE_IFLNK) archive_entry_set_symlink(entry, "/etc/hostname");
    archive_entry_set_size(entry, 0);
    archive_write_header(writer, entry);
    archive_entry_free(entry);
    archive_write_close(writer);
    archive_write_free(writer);
    bytes.resize(used);
    return bytes;
}

void overwriteEvery(std::string& bytes, const std::string& wanted, const std::string& by) {
    for (auto at = bytes.find(wanted); at != std::string::npos; at = bytes.find(wanted, at + 1))
        bytes.replace(at, wanted.size(), by);
}

TEST(ZipArchiverTest, FilesComeBackAsTheyWere) {
    std::string anyBytes;
    for (unsigned i = 0; i < 300'000; ++i)
        anyBytes += static_cast<char>(i * i / 7);
    const Files files{{"01Empresa", "01 S\xC3O JOS\xC9\r\n"},
                      {"01001-03-2024.bdx", ""},
                      {"Relação São João €.txt", "\x1A\xFF"},
                      {"grande", anyBytes}};
    const std::string archive = zipOf(files);
    EXPECT_EQ(filesIn(archive), files);
    std::vector<std::string> asked;
    const auto large = [&](const std::string& name) {
        asked.push_back(name);
        return name == "grande";
    };
    ZipArchiver().unpack(archive, large,
                         [&](const ArchiveEntry& entry) { EXPECT_EQ(entry.bytes, anyBytes); });
    EXPECT_THAT(asked,
                ElementsAre("01Empresa", "01001-03-2024.bdx", "Relação São João €.txt", "grande"));
    EXPECT_TRUE(archive.starts_with("PK"));
}

TEST(ZipArchiverTest, RecordsAreCompressed) {
    EXPECT_LT(zipOf({{"01CartaPonto", std::string(100'000, ' ')}}).size(), 2'000U);
}

TEST(ZipArchiverTest, AnArchiveCutShortAnywhereIsRefused) {
    const std::string archive = zipOf({{"01Empresa", "01 EMPRESA"}, {"01CartaPonto", "001 ANA"}});
    for (std::size_t length = 0; length < archive.size(); ++length)
        EXPECT_TRUE(isRefused(archive.substr(0, length))) << length;
}

TEST(ZipArchiverTest, AFlippedBitNeverChangesAFileUnseen) {
    const Files files{{"01Empresa", "01 EMPRESA MODELO LTDA"}, {"01CartaPonto", "001 ANA"}};
    const std::string archive = zipOf(files);
    int refused = 0;
    for (std::size_t at = 0; at < archive.size() * 8; ++at) {
        std::string damaged = archive;
        damaged[at / 8] = static_cast<char>(damaged[at / 8] ^ (1 << (at % 8)));
        if (isRefused(damaged)) {
            ++refused;
            continue;
        }
        for (const auto& [name, bytes] : filesIn(damaged))
            EXPECT_TRUE(bytes == files[0].second || bytes == files[1].second) << at;
    }
    EXPECT_GT(refused, 500);
}

TEST(ZipArchiverTest, OnlyZipFilesOfPlainFilesAreRead) {
    EXPECT_TRUE(isRefused("no archive at all"));
    EXPECT_TRUE(isRefused(foreignArchive(false, AE_IFREG))) << "tar";
    EXPECT_TRUE(isRefused(foreignArchive(true, AE_IFLNK))) << "symbolic link";
    EXPECT_TRUE(isRefused(foreignArchive(true, AE_IFDIR))) << "folder";
    EXPECT_FALSE(isRefused(foreignArchive(true, AE_IFREG)));
}

TEST(ZipArchiverTest, WhatPassesTheLimitsIsNeitherReadNorPacked) {
    const std::string zeros(1'000'000, '\0');
    const std::string bomb = zipOf({{"01", zeros}, {"02", zeros}, {"03", zeros}});
    EXPECT_LT(bomb.size(), 5'000U);
    const ArchiveLimits cases[] = {
        {.files = 2}, {.bytesInFile = 999'999}, {.bytesInAll = 2'999'999}};
    for (const ArchiveLimits& limits : cases) {
        const ZipArchiver archiver(limits);
        std::size_t handedOver = 0;
        EXPECT_THROW(
            archiver.unpack(bomb, kAll,
                            [&](const ArchiveEntry& entry) { handedOver += entry.bytes.size(); }),
            DamagedArchive);
        EXPECT_LE(handedOver, 2'000'000U);
        int left = 3;
        EXPECT_THROW((void)archiver.pack([&]() -> std::optional<ArchiveEntry> {
            if (left-- == 0) return std::nullopt;
            return ArchiveEntry{std::to_string(left), zeros};
        }),
                     Fault);
    }
    EXPECT_EQ(filesIn(bomb).size(), 3U);
}

TEST(ZipArchiverTest, NamesThatLeadOutOfTheFolderWriteNothing) {
    for (const char* name : {"../1Empresa", "/etc/pass", "C:Empresa", "..\\Empresa", "sub/nomes"}) {
        testing::TestWorkplace desk;
        const ZipArchiver archiver;
        SafetyCopies copies(desk.files, archiver, desk.log);
        std::string archive = zipOf({{"01Cartao", "x"}, {"01Empresas", "hostile"}});
        overwriteEvery(archive, "01Empresas", (name + std::string(10, 'x')).substr(0, 10));
        const CopyName today{.made = desk.clock.now()};
        desk.files.content["/data/Copias/" + today.text()] = archive;
        desk.file("01Empresa") = "mine";
        const auto before = desk.files.content;
        try {
            copies.restore(desk.session.folder, today, desk.clock.now());
            ADD_FAILURE() << name;
        } catch (const DamagedArchive& refusal) {
            EXPECT_THAT(refusal.what(), HasSubstr("not the name of a file")) << name;
        }
        EXPECT_EQ(desk.files.content, before) << name;
    }
}

}  // namespace
}  // namespace winvrx
