#pragma once

#include "foundation/files/file_system.h"
#include "foundation/values/codes.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Where the records lie. A path is a drive letter followed by a folder literal that begins with a
// colon; a Drives adapter says where a drive's root is, and below the root the folders are the same
// on every system, so that a removable drive can go from one to the other.

namespace winvrx {

inline constexpr char kDefaultDrive = 'C';

/// Folder literal, to be read behind a drive letter.
inline constexpr std::string_view kDataFolder = ":\\Users\\Public\\Documents\\Winvrx\\";

/// Where an earlier installation kept its data, in the order in which they are searched.
inline constexpr std::string_view kEarlierFolders[] = {":\\Arquivos de programas\\Winvrx\\",
                                                       ":\\Program Files\\Winvrx\\"};

/// Answers where the root of a drive is.
class Drives {
  public:
    virtual ~Drives() = default;

    /// The folder that stands for "X:"; empty when there is no such drive at the moment.
    [[nodiscard]] virtual std::filesystem::path root(char letter) const = 0;

    /// The letters that have a root now, in alphabetical order; "C" is always among them.
    [[nodiscard]] virtual std::vector<char> letters() const = 0;
};

/// Drive root + folder literal. Empty when the drive has no root.
[[nodiscard]] std::filesystem::path pathOnDrive(const Drives& drives, char letter,
                                                std::string_view literal);

/// True when the program was started from a network share.
[[nodiscard]] bool isShare(std::string_view programFolder);

/// The share folder followed by "\Winvrx\".
[[nodiscard]] std::filesystem::path shareDataFolder(std::string_view programFolder);

/// The folder in use, and the paths of the files in it.
class DataFolder {
  public:
    DataFolder() = default;
    DataFolder(char driveLetter, std::filesystem::path path)
        : driveLetter_(driveLetter), path_(std::move(path)) {}

    [[nodiscard]] char driveLetter() const { return driveLetter_; }
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// `name` must be a bare file name. Throws std::invalid_argument for anything that could lead
    /// outside the folder.
    [[nodiscard]] std::filesystem::path file(std::string_view name) const;

    /// Company code + `name`: "01" + "PadrHor001.pdx".
    [[nodiscard]] std::filesystem::path companyFile(const CompanyCode& company,
                                                    std::string_view name) const {
        return file(company.text() + std::string(name));
    }

  private:
    char driveLetter_ = kDefaultDrive;
    std::filesystem::path path_;
};

/// Where records are reached: the file system and the folder in use. Both outlive the store.
struct Store {
    FileSystem& files;
    const DataFolder& folder;
};

}  // namespace winvrx
