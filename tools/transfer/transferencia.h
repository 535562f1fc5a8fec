#pragma once

#include "foundation/copies/archiver.h"
#include "foundation/copies/safety_copies.h"
#include "foundation/desk/command.h"
#include "foundation/files/data_folder.h"
#include "tools/transfer/folder_copy.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

enum class TransferDirection { Export, Import };
/// In the order of the list; the first is the default.
inline constexpr std::string_view kTransferDirections[] = {"Exportar Dados para o Pendrive?",
                                                           "Importar Dados do Pendrive?"};

inline constexpr std::string_view kBackupMarkerWord = "Backup";
/// Below the data folder: the backup within the drive in use.
inline constexpr std::string_view kBackupSubfolder = "Backup";

/// What the command takes from outside.
struct TransferDesk {
    Disk& disk;
    const Drives& drives;
    SafetyCopies& copies;
    const Archiver& archiver;
    /// Bytes that are free where the folder lies; nullopt where the system does not tell.
    std::function<std::optional<std::uint64_t>(const std::filesystem::path&)> freeSpace;
    /// Made for each step that takes a while.
    std::function<TransferProgress(std::string_view step)> progress;
};

/// The frame "Cópia de Segurança da Base de Dados:" of the main window: the data folder to a
/// removable drive and back, and backups within the drive in use. Every command says what happened;
/// true when it was carried out.
class Transferencia {
  public:
    Transferencia(const Workplace& at, TransferDesk desk) : at_(at), desk_(std::move(desk)) {}

    [[nodiscard]] bool transfer(TransferDirection direction, const std::string& typedTarget);
    /// Into the sub-folder `Backup` of the data folder.
    [[nodiscard]] bool backUp();
    /// Into one archive in that sub-folder, read back and compared. Its path where it was made.
    [[nodiscard]] std::optional<std::filesystem::path> backUpAsArchive();

  private:
    struct Sides {
        DataFolder from;
        DataFolder to;
        DataFolder removable;
    };

    [[nodiscard]] std::optional<char> requireTarget(TransferDirection direction,
                                                    const std::string& typed);
    [[nodiscard]] std::optional<Sides> requireSides(TransferDirection direction, char letter);
    [[nodiscard]] bool requireMarker(const Sides& sides);
    [[nodiscard]] bool requireRecords(const Sides& sides);
    [[nodiscard]] bool requireRoom(const TransferPlan& plan, const std::filesystem::path& to);
    [[nodiscard]] bool carryOver(TransferDirection direction, const Sides& sides);
    void copyBetween(const Sides& sides, const TransferPlan& plan, const TransferFiles& here);
    void writeMarker(const std::filesystem::path& folder);

    Workplace at_;
    TransferDesk desk_;
};

}  // namespace winvrx
