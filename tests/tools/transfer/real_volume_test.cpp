#ifdef __linux__

#include "foundation/values/text.h"
#include "tests/support/faulty_disk.h"
#include "tests/support/real_office.h"
#include "tests/tools/transfer/transfer_desk.h"

#include <gmock/gmock.h>

#include <sys/mount.h>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>

// A transfer to a file system of its own that gets full, vanishes or may no longer be written at
// any step, holds names in other capitals, or links that lead outside.

namespace winvrx {
namespace {

namespace fs = std::filesystem;
using namespace testing;
using ::testing::HasSubstr;
using ::testing::Not;
using Contents = std::map<std::string, std::string>;

std::string bytesIn(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void put(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    ASSERT_TRUE((out << bytes).flush());
}

/// The records of a data folder by name, links and what the program keeps for itself left out.
Contents recordsIn(const fs::path& folder) {
    Contents found;
    if (!fs::exists(folder)) return found;
    for (auto entry = fs::recursive_directory_iterator(folder);
         entry != fs::recursive_directory_iterator(); ++entry) {
        const std::string name = entry->path().lexically_relative(folder).string();
        if (name == "Copias") entry.disable_recursion_pending();
        if (!entry->is_regular_file() || entry->is_symlink() || name == kBackupMarkerName ||
            name == kTransferNoteName || name.find(".winvrx-") != std::string::npos)
            continue;
        found[name] = bytesIn(entry->path());
    }
    return found;
}

/// A drive "C" in a folder and a drive "E" on a small tmpfs, seen under a second path after it was
/// pulled; a folder where nothing may be mounted.
class Stick {
  public:
    explicit Stick(const std::string& size = "size=256k") {
        for (const char* name : {"c", "e", "seen", "outside"})
            fs::create_directories(top() / name);
        mounted_ = ::mount("tmpfs", root().c_str(), "tmpfs", 0, size.c_str()) == 0 &&
                   ::mount(root().c_str(), seen().c_str(), nullptr, MS_BIND, nullptr) == 0;
        for (int i = 0; i < 4; ++i)
            put(here() / ("01CartaPonto" + std::to_string(i)), "new " + std::to_string(i));
        put(here() / "01Empresa", registerOf("PADARIA"));
        put(here() / "layouts/own.rpt", "<svg/>");
        put(there() / "01Empresa", registerOf("ANTIGA"));
        put(there() / "01CartaPonto1", "old");
        put(there() / "02Old", "only there");
    }
    ~Stick() {
        for (const fs::path& place : {seen(), root()})
            if (mounted_) ::umount2(place.c_str(), MNT_DETACH);
    }
    Stick(const Stick&) = delete;
    Stick& operator=(const Stick&) = delete;

    [[nodiscard]] const fs::path& top() const { return scratch_.path(); }
    [[nodiscard]] fs::path root() const { return top() / "e"; }
    [[nodiscard]] fs::path here() const { return top() / "c" / kBelow; }
    [[nodiscard]] fs::path there() const { return root() / kBelow; }
    /// Where it is looked at, pulled or not.
    [[nodiscard]] Contents records() const {
        return recordsIn((mounted_ || pulled_ ? seen() : root()) / kBelow);
    }
    [[nodiscard]] bool mounted() const { return mounted_; }
    [[nodiscard]] bool isPulled() const { return pulled_; }

    void pull() {
        if (pulled_) return;
        pulled_ = true;
        if (mounted_) {
            ASSERT_EQ(::umount2(root().c_str(), MNT_DETACH), 0);
        } else {
            fs::remove(seen());
            fs::rename(root(), seen());
            fs::create_directories(root());
        }
    }
    void protect() const {
        ASSERT_EQ(::mount(nullptr, root().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    }
    void fillUp() const {
        std::ofstream out(root() / "filler");
        out << std::string(fs::space(root()).available + 1, 'x');
    }

  private:
    [[nodiscard]] fs::path seen() const { return top() / "seen"; }

    /// In memory, where flushes cost nothing.
    ScratchFolder scratch_{fs::is_directory("/dev/shm") ? fs::path("/dev/shm")
                                                        : fs::temp_directory_path()};
    bool mounted_ = false;
    bool pulled_ = false;
};

struct Trouble {
    const char* name;
    bool needsMount;
    std::function<void(Stick&)> strike;
    const char* told;
};

/// Each record is the one before or the new one; returns how many are new.
std::size_t expectOldOrNew(const Contents& now, const Contents& before, const Contents& source) {
    std::size_t copied = 0;
    for (const auto& [name, bytes] : now) {
        const bool isNew = source.contains(name) && bytes == source.at(name);
        const bool isOld = before.contains(name) && bytes == before.at(name);
        copied += isNew;
        EXPECT_TRUE(isNew || isOld) << name;
    }
    for (const auto& [name, bytes] : before)
        EXPECT_TRUE(now.contains(name) || !source.contains(name)) << name;
    return copied;
}

/// The count in "Já copiados: 3 de 6 arquivos"; nullopt where nothing is counted.
std::optional<std::size_t> countIn(const std::string& detail) {
    const std::string_view words = "Já copiados: ";
    const auto at = detail.find(words);
    if (at == std::string::npos) return std::nullopt;
    return std::stoul(detail.substr(at + words.size()));
}

/// The trouble strikes before operation 1, 2, 3 … until a transfer ends first.
void strikeAtEachStep(const Trouble& trouble) {
    bool struck = true;
    int told = 0;
    int counted = 0;
    for (int at = 1; struck && !::testing::Test::HasFailure(); ++at) {
        SCOPED_TRACE(std::string(trouble.name) + " at " + std::to_string(at));
        Stick stick;
        const Contents source = recordsIn(stick.here());
        const Contents before = stick.records();
        const auto system = systemDisk();
        FaultyDisk disk(*system, at, FaultyDisk::Failure::Once, {});
        struck = false;
        TransferTrial trial(disk, stick.top());
        disk.event = [&] {
            struck = true;
            trouble.strike(stick);
            trial.drives.isPulled = stick.isPulled();
        };
        const bool done = trial.run(TransferDirection::Export);
        EXPECT_EQ(recordsIn(stick.here()), source);
        const std::size_t copied = expectOldOrNew(stick.records(), before, source);
        EXPECT_TRUE(!done || stick.records() == source) << "said to be done";
        const std::string& detail = trial.person.shown.back().detail;
        told += detail.find(trouble.told) != std::string::npos;
        EXPECT_THAT(detail, Not(HasSubstr(kTemporarySuffix)));
        if (const auto count = countIn(detail)) {
            ++counted;
            EXPECT_EQ(*count, copied) << detail;
        }
    }
    EXPECT_GT(told, 3) << trouble.name;
    EXPECT_GT(counted, 3) << trouble.name;
}

TEST(RealVolume, TroubleAtAnyStepLeavesEachFileOldOrNewAndIsTold) {
    const bool mayMount = Stick().mounted();
    for (const Trouble& trouble :
         {Trouble{"pulled", false, &Stick::pull, "a pasta não foi encontrada"},
          Trouble{"full", true, &Stick::fillUp, "o disco está cheio"},
          Trouble{"write-protected", true, &Stick::protect, "não há permissão"}}) {
        if (trouble.needsMount && !mayMount)
            std::cout << "nothing may be mounted here: not tried: " << trouble.name << '\n';
        else
            strikeAtEachStep(trouble);
    }
}

TEST(RealVolume, LinkInTheDestinationLeadsNowhere) {
    struct Case {
        const char* place;
        bool isFolder;
        const char* said;
    };
    const auto disk = systemDisk();
    for (const Case& one :
         {Case{"01CartaPonto1", false, "(link)"}, Case{"01Empresa.winvrx-tmp", false, "(link)"},
          Case{"layouts", true, "pasta \"layouts\""},
          Case{"documentos", true, "pasta \"documentos\""},
          Case{"Copias", true, "pasta \"Copias\""}, Case{"", true, "pasta \"Winvrx\""},
          Case{"../..", true, "pasta \"Public\""}}) {
        SCOPED_TRACE(one.place);
        const Stick stick;
        const fs::path outside = stick.top() / "outside";
        put(outside / "own.rpt", "theirs");
        const fs::path place = (stick.there() / one.place).lexically_normal();
        const fs::path link = place.has_filename() ? place : place.parent_path();
        fs::remove_all(link);
        fs::create_symlink(one.isFolder ? outside : outside / "own.rpt", link);
        const Contents before = stick.records();
        TransferTrial trial(*disk, stick.top());
        EXPECT_FALSE(trial.run(TransferDirection::Export));
        EXPECT_THAT(trial.person.shown.back().detail, HasSubstr(one.said));
        EXPECT_EQ(stick.records(), before);
        EXPECT_EQ(recordsIn(outside), (Contents{{"own.rpt", "theirs"}}));
    }
}

/// Finds a file below its root under any capitals, as the drives of cameras and sticks do, and
/// keeps the first spelling.
class CaselessDisk final : public Disk {
  public:
    CaselessDisk(Disk& disk, fs::path root) : disk_(disk), root_(std::move(root)) {}

    [[nodiscard]] std::optional<std::string> read(const fs::path& file) const override {
        return disk_.read(kept(file));
    }
    void write(const fs::path& file, std::string_view bytes) override {
        disk_.write(kept(file), bytes);
    }
    [[nodiscard]] bool create(const fs::path& file, std::string_view bytes) override {
        return disk_.create(kept(file), bytes);
    }
    void flush(const std::vector<fs::path>&) override {}
    void rename(const fs::path& from, const fs::path& to) override {
        disk_.rename(kept(from), kept(to));
    }
    bool remove(const fs::path& file) override { return disk_.remove(kept(file)); }
    void flushFolder(const fs::path&) override {}
    [[nodiscard]] bool exists(const fs::path& file) const override {
        return disk_.exists(kept(file));
    }
    [[nodiscard]] std::vector<ListedFile> list(const fs::path& folder) const override {
        return disk_.list(folder);
    }

  private:
    [[nodiscard]] fs::path kept(const fs::path& file) const {
        if (!file.string().starts_with(root_.string())) return file;
        for (const std::string& name : disk_.names(file.parent_path()))
            if (upperCase(name) == upperCase(file.filename().string()))
                return file.parent_path() / name;
        return file;
    }

    Disk& disk_;
    fs::path root_;
};

Contents inCapitals(const Contents& records) {
    Contents capitals;
    for (const auto& [name, bytes] : records)
        EXPECT_TRUE(capitals.emplace(upperCase(name), bytes).second) << name << " twice";
    return capitals;
}

TEST(RealVolume, NamesInOtherCapitalsAreTheSameFiles) {
    const auto system = systemDisk();
    const Stick stick;
    CaselessDisk disk(*system, stick.there());
    fs::rename(stick.there() / "01Empresa", stick.there() / "01EMPRESA");
    fs::rename(stick.there() / "01CartaPonto1", stick.there() / "01cartaponto1");
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(TransferTrial(disk, stick.top()).run(TransferDirection::Export));
        EXPECT_EQ(inCapitals(stick.records()), inCapitals(recordsIn(stick.here())));
    }
}

TEST(RealVolume, TwoNamesForOneFileThereAreRefusedHoweverManyLieBetween) {
    constexpr int kMoreThanAreFlushedAtOnce = 300;
    const auto system = systemDisk();
    const Stick stick("size=16m");
    put(stick.here() / "02CARTA", "one");
    for (int i = 0; i < kMoreThanAreFlushedAtOnce; ++i)
        put(stick.here() / ("02D" + std::to_string(i)), "x");
    put(stick.here() / "02carta", "two");
    CaselessDisk disk(*system, stick.there());
    EXPECT_FALSE(TransferTrial(disk, stick.top()).run(TransferDirection::Export));
    EXPECT_FALSE(stick.records().contains("02CARTA"));
    EXPECT_FALSE(stick.records().contains("02carta"));
}

}  // namespace
}  // namespace winvrx

#endif
