#pragma once

#include "foundation/files/durable_files.h"
#include "foundation/register/company.h"
#include "tests/support/plain_archiver.h"
#include "tests/support/test_workplace.h"
#include "tools/transfer/transferencia.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace winvrx::testing {

inline const std::string kBelow = "Users/Public/Documents/Winvrx/";

/// "C", which is "F" as well, and "E".
struct TrialDrives final : Drives {
    std::filesystem::path above;
    bool isPulled = false;  ///< "E"

    explicit TrialDrives(std::filesystem::path folder) : above(std::move(folder)) {}
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        if (letter == 'C' || letter == 'F') return above / "c";
        return letter == 'E' && !isPulled ? above / "e" : "";
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'E', 'F'}; }
};

/// The program with a drive in use and one beside it, on whatever disk.
struct TransferTrial {
    Disk& disk;
    DurableFiles files{std::shared_ptr<Disk>(&disk, [](Disk*) {})};
    ScriptedOperator person;
    FixedClock clock{{*parseDate("15/03/2024"), *parseTime("10:20")}};
    RecordedLog log;
    Session session;
    TestHost host;
    FolderLock lock{disk, host};
    Workplace at{files, person, clock, log, session, lock};
    TrialDrives drives;
    PlainArchiver archiver;
    SafetyCopies copies{files, archiver, log};
    std::optional<std::uint64_t> room;
    std::size_t cancelAt = 1'000'000;
    Transferencia screen{at,
                         {disk, drives, copies, archiver, [this](const auto&) { return room; },
                          [this](std::string_view step) {
                              return [this, copying = step == "Copiando"](std::size_t done,
                                                                          std::size_t) {
                                  return !copying || done < cancelAt;
                              };
                          }}};

    explicit TransferTrial(Disk& on, const std::filesystem::path& above = "/")
        : disk(on), drives(above) {
        session.folder = DataFolder('C', above / "c" / kBelow);
    }

    bool run(TransferDirection direction, const std::string& target = "E") {
        person.answers = {Answer::Ok, Answer::Ok};
        return screen.transfer(direction, target);
    }
};

inline std::string registerOf(const std::string& name) {
    Company company;
    company.code = "01";
    company.name = name;
    return encode(company) + "\r\n";
}

}  // namespace winvrx::testing
