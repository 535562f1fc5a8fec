#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/file_system.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Record files: text in Windows-1252, one record a line, each line ended by CR LF, fields in fixed
// columns. A subject keeps one table of its columns and uses it for reading and writing:
//
//     constexpr Column kCode{1, 3};
//     constexpr Column kName{5, 30};
//
//     RecordLine line(34);
//     line.put(kCode, "001");
//     line.put(kName, "JOSÉ DA SILVA");
//     fieldOf(line.bytes(), kName)     "JOSÉ DA SILVA"
//
// A line is kept as the bytes it has on disk; only fields are converted. So a line that nobody
// understands is written back exactly as it was read.

namespace winvrx {

/// A field's place in a line: `start` counts characters from 1.
struct Column {
    std::size_t start;
    std::size_t width;

    /// The first character after the column, counted from 1.
    [[nodiscard]] constexpr std::size_t end() const { return start + width; }
};

/// The trimmed UTF-8 text of a column; empty when the line is too short to reach it.
[[nodiscard]] std::string fieldOf(std::string_view lineBytes, Column column);

/// The bytes of a column as they stand, padded with blanks where the line is too short.
[[nodiscard]] std::string rawFieldOf(std::string_view lineBytes, Column column);

/// A line being written.
class RecordLine {
  public:
    /// Blanks, `width` of them.
    explicit RecordLine(std::size_t width) : bytes_(width, ' ') {}

    /// An existing line, made at least `width` characters long; what no column covers is kept.
    RecordLine(std::string existing, std::size_t width);

    /// Writes `utf8` into the column: trimmed, padded with blanks, cut to the width. A column that
    /// holds this text already keeps its bytes, storable or not.
    /// Throws TextFault when the text cannot be stored; the line is then unchanged.
    void put(Column column, std::string_view utf8);

    /// Writes bytes that were read with rawFieldOf.
    void putRaw(Column column, std::string_view bytes);

    [[nodiscard]] const std::string& bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

/// One text file of lines. Reading a missing file gives no lines; the first write creates it.
/// All functions throw FileFault.
class RecordFile {
  public:
    RecordFile(FileSystem& files, std::filesystem::path path)
        : files_(files), path_(std::move(path)) {}
    /// The file `name` of the folder in use.
    RecordFile(const Store& store, std::string_view name)
        : RecordFile(store.files, store.folder.file(name)) {}
    /// The file `name` of a company.
    RecordFile(const Store& store, const CompanyCode& company, std::string_view name)
        : RecordFile(store.files, store.folder.companyFile(company, name)) {}

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] bool exists() const { return files_.exists(path_); }

    /// The lines as bytes, without their line ends. Accepts CR LF, bare LF and a last line without
    /// an end. Refuses more than kMostLines.
    [[nodiscard]] std::vector<std::string> lines() const;
    /// The same; nullopt when there is no such file.
    [[nodiscard]] std::optional<std::vector<std::string>> linesIfAny() const;

    /// The lines as trimmed UTF-8: for setting files of one value a line.
    [[nodiscard]] std::vector<std::string> values() const;

    void append(std::string_view lineBytes);
    void rewrite(const std::vector<std::string>& lineBytes);

    /// Writes one value a line. Throws TextFault before anything is written.
    void rewriteValues(const std::vector<std::string>& utf8Values);

    bool remove() { return files_.remove(path_); }

  private:
    FileSystem& files_;
    std::filesystem::path path_;
};

/// The file's bytes for these lines: each ended by CR LF.
[[nodiscard]] std::string joinedLines(const std::vector<std::string>& lineBytes);

/// The inverse of joinedLines; accepts bare LF and a last line without an end.
[[nodiscard]] std::vector<std::string> splitLines(std::string_view fileBytes);

}  // namespace winvrx
