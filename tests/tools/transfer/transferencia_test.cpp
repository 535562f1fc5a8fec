#include "tools/transfer/transferencia.h"

#include "tests/support/faulty_disk.h"
#include "tests/tools/transfer/transfer_desk.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::FaultyDisk;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kBelow;
using testing::MemoryDisk;
using testing::registerOf;
using Desk = testing::TransferTrial;

const std::string kHere = "/c/" + kBelow;
const std::string kThere = "/e/" + kBelow;

MemoryDisk::Files office() {
    return {{kHere + "01Empresa", registerOf("PADARIA")},
            {kHere + "01CartaPonto", "001 ANA\r\n"},
            {kHere + "layouts/own.rpt", "<svg/>"},
            {kHere + "LocMen.lvc", "C\r\n"},
            {kHere + "qdb.mdb", "scratch"},
            {kThere + "01Empresa", registerOf("ANTIGA")},
            {kThere + "02Old", "only there"},
            {kThere + "Copias/kept.zip", "a copy"}};
}

/// The records of a side, by name below its data folder; copies and the marks of a transfer apart.
std::map<std::string, std::string> recordsOf(const MemoryDisk& disk, const std::string& side) {
    std::map<std::string, std::string> found;
    for (const auto& [file, bytes] : disk.files()) {
        const std::string name = file.generic_string();
        if (!name.starts_with(side)) continue;
        const std::string below = name.substr(side.size());
        if (below.starts_with("Copias") || below == "Backup.bkp" || below == "Transferencia" ||
            below == "LocMen.lvc" || below == "qdb.mdb" ||
            below.find(".winvrx-") != std::string::npos)
            continue;
        found[below] = bytes;
    }
    return found;
}

TEST(Transferencia, ChecksComeInTheirOrder) {
    struct Case {
        const char* target;
        TransferDirection direction;
        std::vector<std::string> texts;
    };
    const std::string ask = "Deseja Exportar Dados para o Pendrive?";
    const std::string sure = "Deseja Importar Dados do Pendrive?";
    using enum TransferDirection;
    for (const Case& one :
         {Case{"c", Export, {"Diretório da Mídia Removível não Pode ser 'C'!"}},
          Case{"",
               Export,
               {ask,
                "Informe um Diretório de DESTINO Válido!  Obs. O Diretório de Origem (em uso) "
                "é   'D'"}},
          Case{"EF", Export, {ask, "O Diretório Informado deve conter somente UMA LETRA!"}},
          Case{"7", Import, {sure, "O Diretório Informado deve conter somente UMA LETRA!"}},
          Case{"d",
               Export,
               {ask, "O Diretório Informado deve ser DIFERENTE do Diretório de Origem!"}},
          Case{"F",
               Export,
               {ask, "O Diretório de Destino deve ser DIFERENTE do Diretório de Origem!"}},
          Case{"X", Export, {ask, "Diretório Não Encontrado! "}},
          Case{"E", Import, {sure, "Diretório Não Encontrado! "}}}) {
        MemoryDisk disk(MemoryDisk::Files{{kHere + "01Empresa", registerOf("PADARIA")}});
        const auto before = disk.files();
        Desk desk(disk);
        desk.session.folder = DataFolder('D', kHere);
        EXPECT_FALSE(desk.run(one.direction, one.target)) << one.target;
        EXPECT_EQ(desk.person.takeTexts(), one.texts) << one.target;
        EXPECT_EQ(disk.files(), before);
    }
}

TEST(Transferencia, DestinationBecomesTheSourceAndItsStateIsKeptFirst) {
    MemoryDisk disk(office());
    Desk desk(disk);
    ASSERT_TRUE(desk.run(TransferDirection::Export));
    EXPECT_EQ(recordsOf(disk, kThere), recordsOf(disk, kHere));
    ASSERT_EQ(desk.person.shown.size(), 3U);
    EXPECT_THAT(desk.person.shown[1].detail, HasSubstr("saem de lá (1): 02Old."));
    EXPECT_EQ(desk.person.shown[2].text, "Transferência Concluída com Sucesso!");
    const auto kept = desk.copies.list(DataFolder('E', kThere), desk.clock.today());
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept[0].before, "receber os dados do computador");
    // And back: what changed on both sides since is named.
    disk.write(kThere + "01CartaPonto", "001 ANA MARIA\r\n");
    disk.write(kHere + "01CartaPonto", "001 ANA LUISA\r\n");
    desk.person.shown.clear();
    ASSERT_TRUE(desk.run(TransferDirection::Import));
    EXPECT_THAT(desk.person.shown[1].detail,
                HasSubstr("desde a última transferência (1): 01CartaPonto."));
    EXPECT_THAT(desk.person.shown[1].detail, HasSubstr("Mais novos neste computador (1)"));
    EXPECT_EQ(recordsOf(disk, kHere).at("01CartaPonto"), "001 ANA MARIA\r\n");
}

TEST(Transferencia, RefusalsLeaveEveryRecordAsItWas) {
    struct Case {
        const char* what;
        std::function<void(Desk&, MemoryDisk&)> prepare;
        TransferDirection direction;
        const char* text;
    };
    using enum TransferDirection;
    for (const Case& one :
         {Case{"no room", [](Desk&desk, MemoryDisk&) { desk.room = 3; }, Export,
               "Não há espaço livre na unidade de destino."},
          Case{"no register", [](Desk&, MemoryDisk&disk) { disk.remove(kThere + "01Empresa"); },
               Import, "Diretório INVÁLIDO!"},
          Case{"torn register",
               [](Desk&, MemoryDisk&disk) { disk.write(kThere + "01Empresa", "torn"); }, Import,
               "Diretório INVÁLIDO!"}}) {
        MemoryDisk disk(office());
        Desk desk(disk);
        one.prepare(desk, disk);
        const auto here = recordsOf(disk, kHere);
        const auto there = recordsOf(disk, kThere);
        EXPECT_FALSE(desk.run(one.direction)) << one.what;
        EXPECT_EQ(desk.person.takeTexts().back(), one.text) << one.what;
        EXPECT_EQ(recordsOf(disk, kHere), here) << one.what;
        EXPECT_EQ(recordsOf(disk, kThere), there) << one.what;
    }
}

TEST(Transferencia, CancelledAfterSomeFilesSaysHowMany) {
    MemoryDisk disk(office());
    for (int i = 0; i < 300; ++i)
        disk.write(kHere + "file" + std::to_string(i), "x");
    Desk desk(disk);
    desk.cancelAt = 1;
    EXPECT_FALSE(desk.run(TransferDirection::Export));
    EXPECT_EQ(desk.person.shown.back().text, "Erro na Importação Realizada! ");
    EXPECT_THAT(desk.person.shown.back().detail, HasSubstr("256 arquivos já copiados"));
    EXPECT_TRUE(recordsOf(disk, kThere).contains("02Old")) << "nothing goes before all has come";
}

/// Every file is the old one or the new one wherever a transfer is cut short, and a second run ends
/// right.
TEST(Transferencia, PulledDriveLeavesOldOrNewFiles) {
    for (const auto direction : {TransferDirection::Export, TransferDirection::Import})
        for (const auto failure : {FaultyDisk::Failure::Once, FaultyDisk::Failure::ForGood}) {
            bool cut = true;
            for (int at = 1; cut; ++at) {
                MemoryDisk disk(office());
                const bool isExport = direction == TransferDirection::Export;
                const auto source = recordsOf(disk, isExport ? kHere : kThere);
                const auto before = recordsOf(disk, isExport ? kThere : kHere);
                FaultyDisk faulty(disk, at, failure, std::errc::no_such_device);
                Desk desk(faulty);
                const bool done = desk.run(direction);
                cut = faulty.failed();
                const auto now = recordsOf(disk, isExport ? kThere : kHere);
                if (!cut) {
                    ASSERT_TRUE(done);
                    break;
                }
                EXPECT_EQ(recordsOf(disk, isExport ? kHere : kThere), source) << at;
                for (const auto& [name, bytes] : now)
                    EXPECT_TRUE((source.contains(name) && bytes == source.at(name)) ||
                                (before.contains(name) && bytes == before.at(name)))
                        << name << " at " << at;
                for (const auto& [name, bytes] : before)
                    EXPECT_TRUE(now.contains(name) || !source.contains(name)) << name << " " << at;
                EXPECT_TRUE(Desk(disk).run(direction)) << at;
                EXPECT_EQ(recordsOf(disk, isExport ? kThere : kHere), source) << at;
            }
        }
}

TEST(Transferencia, BackupsStayWithinTheDrive) {
    MemoryDisk disk(office());
    Desk desk(disk);
    ASSERT_TRUE(desk.screen.backUp());
    const auto made = desk.screen.backUpAsArchive();
    ASSERT_TRUE(made);
    EXPECT_EQ(made->filename(), "Winvrx-2024-03-15-1020.zip");
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Backup Concluído!", "Backup Concluído!"));
    const auto files = disk.files();
    EXPECT_EQ(files.at(kHere + "Backup/01Empresa"), files.at(kHere + "01Empresa"));
    EXPECT_EQ(files.at(kHere + "Backup/layouts/own.rpt"), "<svg/>");
    EXPECT_EQ(files.at(kHere + "Backup.bkp"), "Backup\r\n");
}

TEST(FolderCopy, NamesThatDifferInCapitalsOnly) {
    const TransferFiles here{{"01Empresa", transferFile("new")}};
    const TransferFiles there{{"01EMPRESA", transferFile("old")}};
    const auto plan = planTransfer(here, there, {});
    MemoryDisk disk(
        MemoryDisk::Files{{"/a/01Empresa", "new"}, {"/b/01EMPRESA", "old"}, {"/b/Backup.bkp", ""}});
    carryOut(disk, plan, "/a", "/b", [](std::size_t, std::size_t) { return true; });
    EXPECT_EQ(disk.files(),
              (MemoryDisk::Files{
                  {"/a/01Empresa", "new"}, {"/b/01Empresa", "new"}, {"/b/Backup.bkp", ""}}));
}

TEST(FolderCopy, NoteSaysWhatItSaid) {
    const TransferFiles files{{"01Empresa", transferFile("a")},
                              {"layouts/x.rpt", transferFile("")}};
    const auto read = decodeNote(encodeNote(files) + "torn;line\r\n;;;\r\nx;1;zz\r\n");
    ASSERT_EQ(read.size(), files.size());
    for (const auto& [name, file] : files)
        EXPECT_TRUE(read.at(name).isSameAs(file)) << name;
}

}  // namespace
}  // namespace winvrx
