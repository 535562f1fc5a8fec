#include "tests/support/shared_folder.h"

#include "foundation/files/record_file.h"
#include "foundation/register/empresa.h"
#include "tests/support/employee_desk.h"
#include "tests/support/real_office.h"

#include <chrono>
#include <functional>
#include <string>
#include <thread>

namespace winvrx::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::minutes kLongest{5};

/// The screens that count.
struct Counters {
    explicit Counters(const Workplace& at)
        : companies(at), people(at, {editor, spreadsheet, locks, locks}) {
        companies.load();
        people.load();
    }

    bool setNotes(std::size_t position, int from, int to) {
        Employee one = people.lines().at(position).record;
        if (from >= 0 && one.notes != std::to_string(from)) return false;
        one.notes = std::to_string(to);
        return people.change(position, one);
    }

    TestEditor editor;
    TestSpreadsheet spreadsheet;
    TestLocks locks;
    Empresa companies;
    Empregados people;
};

/// Runs `work` in a freshly started program. What it returns.
bool run(const fs::path& root, const std::function<bool(const Workplace&)>& work) {
    bool done = false;
    (void)runOnSystemDisk(
        {"work", {}, [&](const Workplace& at, const Drives&) { return done = work(at); }}, root);
    return done;
}

bool takeTurn(const Workplace& at, std::size_t position, int turn) {
    if (!Counters(at).setNotes(position, turn, turn + 1)) return false;
    bool counted = false;
    while (!counted) {  // refused when the other process was there since it was shown
        Empresa companies(at);
        companies.load();
        Company shared = companies.lines().at(0).record;
        shared.telephone = std::to_string(std::stoi(shared.telephone) + 1);
        counted = companies.change(0, shared);
    }
    return true;
}

std::optional<LockHolder> holderOf(const fs::path& root) {
    return decodeLock(systemDisk()->read(root / kDataPath / kFolderLockName).value_or(""));
}

std::string inUseBy(const LockHolder& holder) {
    return "A pasta de dados está em uso por " + holder.description() + ". ";
}

/// The operator says no when he is asked whether to take the folder over.
Outcome changeWithoutTakingOver(const fs::path& root) {
    WritingCommand change = writingCommand("change company");
    if (const auto holder = holderOf(root))
        change.refused = {inUseBy(*holder) + "Deseja continuar mesmo assim?"};
    const auto disk = systemDisk();
    const auto host = systemHost();
    return runCommand(change, *disk, *host, root);
}

}  // namespace

bool beginCounting(const fs::path& root) {
    fill(root, writingCommand("change company").before);
    return run(root, [](const Workplace& at) {
        Counters counters(at);
        Company zero = counters.companies.lines().at(0).record;
        zero.telephone = "0";
        return counters.companies.change(0, zero) && counters.setNotes(0, -1, 0) &&
               counters.setNotes(1, -1, 0);
    });
}

bool countUp(const fs::path& root, std::size_t position) {
    return run(root, [&](const Workplace& at) {
        for (int turn = 0; turn < kTurns; ++turn)
            if (!takeTurn(at, position, turn)) return false;
        return true;
    });
}

bool isCountedUp(const fs::path& root) {
    const FileTable now = recordsBelow(root);
    const auto companies = splitLines(now.at(inDataFolder("01Empresa")));
    const auto people = splitLines(now.at(inDataFolder("01CartaPonto")));
    const auto notes = [&](std::size_t position) {
        return decode<Employee>(people.at(position)).notes;
    };
    const std::string counted = std::to_string(kTurns);
    return decode<Company>(companies.at(0)).telephone == std::to_string(2 * kTurns) &&
           notes(0) == counted && notes(1) == counted && people.size() == 3;
}

bool keepFolder(const fs::path& root) {
    return run(root, [](const Workplace& at) {
        const auto hold = holdFolder(at);
        std::this_thread::sleep_for(kLongest);
        return true;
    });
}

bool isKeptOut(const fs::path& root) {
    const FileTable before = recordsBelow(root);
    const auto holder = holderOf(root);
    if (!holder || holder->machine == systemHost()->machine()) return false;
    const Outcome outcome = changeWithoutTakingOver(root);
    return !outcome.done && !outcome.failures.empty() &&
           outcome.failures[0].detail == inUseBy(*holder) + "Tente novamente." &&
           recordsBelow(root) == before;
}

bool takesOverUnasked(const fs::path& root) {
    return holderOf(root) && changeWithoutTakingOver(root).done && !holderOf(root);
}

}  // namespace winvrx::testing
