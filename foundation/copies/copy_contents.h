#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace winvrx {

/// What a copy says of itself in an entry of its archive, a text that any editor shows:
///
///     Cópia de segurança 1
///     Antes de: excluir a empresa 02 PADARIA
///     Cópia: 912345 2024-03-14-0812.zip
///     Arquivo: 0 549 1710489600123456789 01Empresa
///     Arquivo: 1 1926 1709884800000000000 01001-03-2024.bdx
///
/// A copy packs what changed since the one before it. For the rest it names the archives that hold
/// it, each with its size; a file's first number is 0 where the copy itself has the bytes, else it
/// counts the copies named above. Size and time of writing follow, the time in nanoseconds since
/// 1970.
struct CopyContents {
    struct File {
        std::uint64_t size = 0;
        std::chrono::nanoseconds written{};
        std::string archive;  ///< that holds the bytes; empty for the copy's own

        [[nodiscard]] bool operator==(const File&) const = default;
    };
    using Archives = std::map<std::string, std::uint64_t>;

    std::string before;  ///< what the copy was made before, in words; empty for a day's
    Archives others;     ///< archives that it needs beside its own, with their sizes
    std::map<std::string, File> files;

    [[nodiscard]] bool operator==(const CopyContents&) const = default;
};

/// The entry's name, which no record can have.
inline constexpr std::string_view kContentsName = "conteudo.winvrx-copia.txt";

[[nodiscard]] std::string encode(const CopyContents& contents);

/// Throws DamagedArchive.
[[nodiscard]] CopyContents decodeContents(std::string_view text);

/// Only what stands before the files, for who wants to know no more. Throws DamagedArchive.
[[nodiscard]] CopyContents::Archives decodeOthers(std::string_view text);

}  // namespace winvrx
