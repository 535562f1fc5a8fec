#pragma once

#include "foundation/files/disk.h"
#include "foundation/values/faults.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// A data folder made the same as another: the records, and the office's own layouts and documents
// in its sub-folders. Safety copies, locks and files of the run stay where they are.

namespace winvrx {

/// In a data folder: proves that the folder is there and can be written.
inline constexpr std::string_view kBackupMarkerName = "Backup.bkp";

/// Below the data folder: the records, and what the office keeps of its own.
inline constexpr std::array<std::string_view, 4> kTransferFolders = {"", "layouts", "documentos",
                                                                     "documentos/modelos"};

/// In the folder of the removable drive: what both sides were after the last transfer, a line a
/// file, "01CartaPonto;1926;9d7f3c2a11b0e4f5".
inline constexpr std::string_view kTransferNoteName = "Transferencia";

/// A file of a data folder as a transfer sees it.
struct TransferFile {
    std::uint64_t size = 0;
    std::chrono::nanoseconds written{};
    std::uint64_t sum = 0;  ///< of its bytes: equal files have equal sums

    [[nodiscard]] bool isSameAs(const TransferFile& other) const {
        return size == other.size && sum == other.sum;
    }
};

/// Of these bytes; the time is left out.
[[nodiscard]] TransferFile transferFile(std::string_view bytes);

/// By name below the data folder: "01Empresa", "layouts/tilibcenter.rpt".
using TransferFiles = std::map<std::string, TransferFile>;

/// Told how many of how many files are done; false gives up.
using TransferProgress = std::function<bool(std::size_t done, std::size_t all)>;

/// The operator gave up; `done` files had been brought over.
class TransferCancelled : public Fault {
  public:
    explicit TransferCancelled(std::size_t done);
};

/// Throws FileFault where the folder's marker has gone: its drive was pulled out meanwhile, and the
/// same path may now be an empty folder of another drive.
void requireMarked(const Disk& disk, const std::filesystem::path& folder);

/// Reads every file once; of those that `other` lacks, where it is given, only what the listing
/// says, without a sum. Throws FileFault, TransferCancelled.
[[nodiscard]] TransferFiles readFolder(const Disk& disk, const std::filesystem::path& folder,
                                       const TransferProgress& progress,
                                       const TransferFiles* other = nullptr);

/// What is to be done at the destination.
struct TransferPlan {
    std::vector<std::string> copied;         ///< new there, or other bytes
    std::vector<std::string> goes;           ///< only there
    std::vector<std::string> newerThere;     ///< written later there than here
    std::vector<std::string> changedOnBoth;  ///< since the last transfer
    std::uint64_t bytes = 0;                 ///< of what is copied
};

/// `last` is what the note says, empty where there is none.
[[nodiscard]] TransferPlan planTransfer(const TransferFiles& here, const TransferFiles& there,
                                        const TransferFiles& last);

/// Copies and removes as planned, into a folder that is marked: each file is written under a
/// temporary name, flushed, compared with what was read and only then renamed over the old one.
/// What goes, goes last. Whenever this is cut short each file is the old one or the new one, and
/// running it again ends right; the fault says how many were done. Returns what was
/// copied. Throws FileFault, TransferCancelled.
TransferFiles carryOut(Disk& disk, const TransferPlan& plan, const std::filesystem::path& from,
                       const std::filesystem::path& to, const TransferProgress& progress);

/// The note's bytes, of files with sums, and what they say; lines that are not understood say
/// nothing.
[[nodiscard]] std::string encodeNote(const TransferFiles& files);
[[nodiscard]] TransferFiles decodeNote(std::string_view bytes);

}  // namespace winvrx
