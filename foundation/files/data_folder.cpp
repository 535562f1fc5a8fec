#include "foundation/files/data_folder.h"

#include <algorithm>
#include <stdexcept>

namespace winvrx {

namespace {

std::string withForwardSlashes(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

}  // namespace

std::filesystem::path pathOnDrive(const Drives& drives, char letter, std::string_view literal) {
    const std::filesystem::path root = drives.root(letter);
    if (root.empty()) return {};
    return root / withForwardSlashes(literal.substr(2));
}

bool isShare(std::string_view programFolder) {
    return programFolder.starts_with("\\\\");
}

std::filesystem::path shareDataFolder(std::string_view programFolder) {
    return withForwardSlashes(std::string(programFolder) + "\\Winvrx\\");
}

std::filesystem::path DataFolder::file(std::string_view name) const {
    if (name.empty() || name.find_first_of("/\\:") != std::string_view::npos ||
        name.starts_with(".") || std::any_of(name.begin(), name.end(), isControl))
        throw std::invalid_argument("not a bare file name: " + std::string(name));
    return path_ / name;
}

}  // namespace winvrx
