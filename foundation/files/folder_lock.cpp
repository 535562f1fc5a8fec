#include "foundation/files/folder_lock.h"

#include "foundation/files/record_file.h"

namespace winvrx {

namespace {

using std::filesystem::path;

/// Held while a lock that was left behind is removed, so that of two who find it only one does.
constexpr std::string_view kTakeOverName = "retomada-da-pasta.winvrx-lock";
constexpr std::size_t kLines = 5;
constexpr std::chrono::milliseconds kPause{2};
constexpr std::chrono::milliseconds kPatience{4000};
/// Who takes the folder again and again leaves a gap in which one who waits finds it free.
constexpr std::chrono::milliseconds kGap{3 * kPause};

}  // namespace

std::string LockHolder::description() const {
    return user + ", no computador " + machine + ", desde " + since;
}

FolderInUse::FolderInUse(const path& folder, const std::string& who)
    : Fault("lock of " + folder.string() + " is held by " + who,
            "A pasta de dados está em uso por " + who + ". Tente novamente.") {}

std::string encode(const LockHolder& holder) {
    return joinedLines({holder.machine, holder.user, holder.process, holder.since, holder.serial});
}

std::optional<LockHolder> decodeLock(std::string_view bytes) {
    const auto lines = splitLines(bytes);
    if (lines.size() != kLines || !bytes.ends_with("\r\n")) return std::nullopt;
    return LockHolder{lines[0], lines[1], lines[2], lines[3], lines[4]};
}

FolderLock::Hold FolderLock::take(const path& folder, Clock::Moment since,
                                  const Question& question) {
    const auto present = [&] { return disk_.read(folder / kFolderLockName).value_or(""); };
    giveWay(folder);
    const std::string first = present();
    for (std::chrono::milliseconds waited{0}; waited <= kPatience; waited += kPause) {
        if (auto hold = tryTake(folder, since)) return std::move(*hold);
        host_.pause(kPause);
    }
    const std::string last = present();
    if (last == first && mayTakeOver(last, question)) {
        disk_.remove(folder / kTakeOverName);
        removeLeft(folder, last, since);
        if (auto hold = tryTake(folder, since)) return std::move(*hold);
    }
    const auto holder = decodeLock(present());
    throw FolderInUse(folder, holder ? holder->description() : "outro computador");
}

void FolderLock::giveWay(const path& folder) {
    if (held_.contains(folder / kFolderLockName)) return;
    if (std::chrono::steady_clock::now() - released_ < kGap) host_.pause(kGap);
}

std::optional<FolderLock::Hold> FolderLock::tryTake(const path& folder, Clock::Moment since) {
    const path file = folder / kFolderLockName;
    if (held_.contains(file) || create(file, since)) return hold(file);
    const auto bytes = disk_.read(file);
    if (bytes && !isLeft(*bytes)) return std::nullopt;
    if (bytes) removeLeft(folder, *bytes, since);
    if (!create(file, since)) return std::nullopt;
    return hold(file);
}

FolderLock::Hold FolderLock::hold(const path& file) {
    ++held_[file];
    return {*this, file};
}

bool FolderLock::create(const path& file, Clock::Moment since) {
    const LockHolder me{host_.machine(), host_.user(), host_.process(),
                        dateText(since.date) + " " + timeText(since.time),
                        std::to_string(++serial_)};
    return disk_.create(file, encode(me));
}

bool FolderLock::isLeft(std::string_view bytes) const {
    const auto holder = decodeLock(bytes);
    if (!holder || holder->machine != host_.machine()) return false;
    return holder->process == host_.process() || !host_.runs(holder->process);
}

bool FolderLock::mayTakeOver(std::string_view bytes, const Question& question) const {
    const auto holder = decodeLock(bytes);
    if (!holder || isLeft(bytes)) return true;
    return holder->machine != host_.machine() && question(*holder);
}

void FolderLock::removeLeft(const path& folder, std::string_view bytes, Clock::Moment since) {
    const path guard = folder / kTakeOverName;
    if (!create(guard, since)) {
        const auto other = disk_.read(guard);
        if (other && isLeft(*other)) disk_.remove(guard);
        return;
    }
    try {
        if (disk_.read(folder / kFolderLockName) == bytes) disk_.remove(folder / kFolderLockName);
    } catch (...) {
        disk_.remove(guard);
        throw;
    }
    disk_.remove(guard);
}

void FolderLock::release(const path& file) noexcept {
    try {
        if (--held_.at(file) > 0) return;
        held_.erase(file);
        const auto holder = decodeLock(disk_.read(file).value_or(""));
        const bool mine =
            holder && holder->machine == host_.machine() && holder->process == host_.process();
        if (mine) disk_.remove(file);
        released_ = std::chrono::steady_clock::now();
    } catch (...) {
        // What was written stands. The next hold takes the lock over.
        return;
    }
}

}  // namespace winvrx
