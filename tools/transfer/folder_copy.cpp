#include "tools/transfer/folder_copy.h"

#include "foundation/copies/copied_files.h"
#include "foundation/files/data_folder.h"
#include "foundation/files/durable_files.h"
#include "foundation/files/folder_lock.h"
#include "foundation/files/record_file.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <set>

namespace winvrx {

namespace {

using std::filesystem::path;

/// Flushed and renamed together: enough to spread the cost, few enough to be held in memory, and on
/// a slow drive few enough for the operator to see the count move.
constexpr std::size_t kFirstFilesAtOnce = 256;
constexpr std::size_t kMostFilesAtOnce = 4096;
constexpr std::uint64_t kMostBytesAtOnce = 16U << 20U;
constexpr std::chrono::milliseconds kQuickFlush{250};

bool isTransferred(std::string_view name) {
    return isCopiedFile(name) && name != kTransferNoteName && !name.ends_with(kTemporarySuffix) &&
           !name.ends_with(kLockSuffix);
}

std::string nameBelow(std::string_view folder, const std::string& name) {
    return folder.empty() ? name : std::string(folder) + "/" + name;
}

/// FNV-1a over 64 bits: tells a change from none, and is no seal.
std::uint64_t sumOf(std::string_view bytes) {
    std::uint64_t sum = 14695981039346656037ULL;
    for (const char c : bytes) {
        sum ^= static_cast<unsigned char>(c);
        sum *= 1099511628211ULL;
    }
    return sum;
}

/// Throws FileFault where the file went meanwhile.
std::string bytesOf(const Disk& disk, const path& file) {
    if (auto bytes = disk.read(file)) return std::move(*bytes);
    throw FileFault(FileFault::Operation::Read, file,
                    std::make_error_code(std::errc::no_such_file_or_directory));
}

/// A number of files that are brought over together; counts in `done` those that have come.
class Batch {
  public:
    Batch(Disk& disk, path from, path to, std::size_t& done)
        : disk_(disk), from_(std::move(from)), to_(std::move(to)), done_(done) {}

    [[nodiscard]] bool isFull() const {
        return files_.size() >= mostFiles_ || bytes_ >= kMostBytesAtOnce;
    }

    void add(const std::string& name) {
        File file{to_ / name, path(to_ / name).concat(kTemporarySuffix),
                  bytesOf(disk_, from_ / name)};
        copied_[name] = transferFile(file.bytes);
        bytes_ += file.bytes.size();
        files_.push_back(std::move(file));
        disk_.write(files_.back().temporary, files_.back().bytes);
    }

    /// All that was added.
    [[nodiscard]] TransferFiles takeCopied() { return std::move(copied_); }

    /// Makes what was added the content of the destination's files.
    void finish() {
        if (files_.empty()) return;
        flush();
        std::set<path> folders;
        for (const File& file : files_)
            if (disk_.read(file.temporary) != file.bytes)
                throw FileFault(FileFault::Operation::Write, file.target,
                                std::make_error_code(std::errc::io_error));
        for (const File& file : files_) {
            disk_.rename(file.temporary, file.target);
            ++done_;
            folders.insert(file.target.parent_path());
        }
        for (const path& folder : folders)
            disk_.flushFolder(folder);
        files_.clear();
        bytes_ = 0;
    }

    void discard() noexcept {
        for (const File& file : files_) {
            try {
                disk_.remove(file.temporary);
            } catch (...) {
                // The drive is gone; the next start there removes what is left.
                return;
            }
        }
    }

  private:
    struct File {
        path target;
        path temporary;
        std::string bytes;
    };

    /// What is read after this comes from the drive. A drive that is quick gets more at once.
    void flush() {
        std::vector<path> temporaries;
        for (const File& file : files_)
            temporaries.push_back(file.temporary);
        const auto start = std::chrono::steady_clock::now();
        disk_.flush(temporaries);
        if (std::chrono::steady_clock::now() - start < kQuickFlush)
            mostFiles_ = std::min(2 * mostFiles_, kMostFilesAtOnce);
        disk_.forget(temporaries);
    }

    Disk& disk_;
    path from_;
    path to_;
    std::size_t& done_;
    std::size_t mostFiles_ = kFirstFilesAtOnce;
    std::vector<File> files_;
    TransferFiles copied_;
    std::uint64_t bytes_ = 0;
};

/// Two names that differ only in capitals come one after the other.
std::vector<std::string> twinsTogether(std::vector<std::string> names) {
    std::ranges::stable_sort(names, {}, [](const std::string& name) { return upperCase(name); });
    return names;
}

TransferFiles copyAll(Disk& disk, const TransferPlan& plan, const path& from, const path& to,
                      std::size_t& done, const TransferProgress& progress) {
    Batch batch(disk, from, to, done);
    try {
        for (const std::string_view folder : kTransferFolders)
            if (std::ranges::any_of(plan.copied, [&](const std::string& name) {
                    return path(name).parent_path() == path(folder);
                }))
                disk.makeFolder(to / folder);
        requireMarked(disk, to);  // after it nothing makes a folder
        const std::vector<std::string> names = twinsTogether(plan.copied);
        for (std::size_t i = 0; i < names.size(); ++i) {
            batch.add(names[i]);
            // A drive that takes twins for one file is found out before either has its name.
            const bool twinNext =
                i + 1 < names.size() && upperCase(names[i]) == upperCase(names[i + 1]);
            if (!batch.isFull() || twinNext) continue;
            batch.finish();
            if (!progress(done, plan.copied.size())) throw TransferCancelled(done);
        }
        batch.finish();
        return batch.takeCopied();
    } catch (...) {
        batch.discard();
        throw;
    }
}

/// A drive that does not tell capitals from small letters lists a file once, under either name: it
/// goes only where it is listed beside the one that has come.
void removeAll(Disk& disk, const TransferPlan& plan, const path& to) {
    std::map<path, std::set<std::string>> listed;
    for (const std::string& name : plan.goes) {
        const path file = to / name;
        auto [names, isNew] = listed.try_emplace(file.parent_path());
        if (isNew)
            for (const std::string& one : disk.names(file.parent_path()))
                names->second.insert(one);
        const std::string own = file.filename().string();
        const auto isTwin = [&](const std::string& copied) {
            return upperCase(copied) == upperCase(name);
        };
        const auto twin = std::ranges::find_if(plan.copied, isTwin);
        if (twin != plan.copied.end() && !names->second.contains(path(*twin).filename().string()))
            continue;
        if (names->second.contains(own) && disk.remove(file)) disk.flushFolder(file.parent_path());
    }
}

std::vector<std::string> partsOf(std::string_view line) {
    std::vector<std::string> parts(1);
    for (const char c : line) {
        if (c == ';')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

}  // namespace

TransferCancelled::TransferCancelled(std::size_t done)
    : Fault("transfer: cancelled", "Cancelado: " + std::to_string(done) +
                                       " arquivos já copiados ficam; os demais estão como antes.") {
}

TransferFile transferFile(std::string_view bytes) {
    return {.size = bytes.size(), .sum = sumOf(bytes)};
}

void requireMarked(const Disk& disk, const path& folder) {
    if (!disk.exists(folder / kBackupMarkerName))
        throw FileFault(FileFault::Operation::List, folder,
                        std::make_error_code(std::errc::no_such_file_or_directory));
}

TransferFiles readFolder(const Disk& disk, const path& folder, const TransferProgress& progress,
                         const TransferFiles* other) {
    std::vector<std::pair<std::string, ListedFile>> listed;
    for (const std::string_view below : kTransferFolders)
        for (const ListedFile& file : disk.list(folder / below))
            if (isTransferred(file.name)) listed.emplace_back(nameBelow(below, file.name), file);
    TransferFiles files;
    for (const auto& [name, file] : listed) {
        if (!progress(files.size(), listed.size())) throw TransferCancelled(0);
        TransferFile& known = files[name];
        if (!other || other->contains(name))
            known = transferFile(bytesOf(disk, folder / name));
        else
            known.size = file.size;
        known.written = file.written;
    }
    return files;
}

TransferPlan planTransfer(const TransferFiles& here, const TransferFiles& there,
                          const TransferFiles& last) {
    TransferPlan plan;
    const auto isChanged = [&last](const std::string& name, const TransferFile& file) {
        const auto before = last.find(name);
        return before == last.end() || !before->second.isSameAs(file);
    };
    for (const auto& [name, file] : here) {
        const auto other = there.find(name);
        if (other != there.end() && other->second.isSameAs(file)) continue;
        plan.copied.push_back(name);
        plan.bytes += file.size;
        if (other == there.end()) continue;
        if (other->second.written > file.written) plan.newerThere.push_back(name);
        if (!last.empty() && isChanged(name, file) && isChanged(name, other->second))
            plan.changedOnBoth.push_back(name);
    }
    for (const auto& [name, file] : there)
        if (!here.contains(name)) plan.goes.push_back(name);
    return plan;
}

TransferFiles carryOut(Disk& disk, const TransferPlan& plan, const path& from, const path& to,
                       const TransferProgress& progress) {
    std::size_t done = 0;
    try {
        TransferFiles copied = copyAll(disk, plan, from, to, done, progress);
        removeAll(disk, plan, to);
        return copied;
    } catch (const FileFault& fault) {
        const FileFault named(FileFault::Operation::Write, recordOf(fault.file()), fault.cause());
        const bool isTemporary = named.file() != fault.file();
        throw Fault(fault.what(), (isTemporary ? named : fault).explanation() +
                                      " Já copiados: " + std::to_string(done) + " de " +
                                      std::to_string(plan.copied.size()) +
                                      " arquivos; cada um está inteiro, o antigo ou o novo.");
    }
}

std::string encodeNote(const TransferFiles& files) {
    std::vector<std::string> lines;
    for (const auto& [name, file] : files) {
        std::array<char, 17> sum{};
        std::snprintf(sum.data(), sum.size(), "%016llx", static_cast<unsigned long long>(file.sum));
        lines.push_back(name + ";" + std::to_string(file.size) + ";" + sum.data());
    }
    return joinedLines(lines);
}

TransferFiles decodeNote(std::string_view bytes) {
    TransferFiles files;
    for (const std::string& line : splitLines(bytes)) {
        const auto parts = partsOf(line);
        if (parts.size() != 3) continue;
        const auto number = [](const std::string& text, int base, std::uint64_t& value) {
            const auto [end, fault] =
                std::from_chars(text.data(), text.data() + text.size(), value, base);
            return fault == std::errc{} && end == text.data() + text.size();
        };
        TransferFile file;
        if (number(parts[1], 10, file.size) && number(parts[2], 16, file.sum))
            files[parts[0]] = file;
    }
    return files;
}

}  // namespace winvrx
