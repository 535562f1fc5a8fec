#include "foundation/files/folder_names.h"

#include <algorithm>
#include <vector>

namespace winvrx {

FolderNames namesIn(const Store& store) {
    const std::vector<std::string> listed = store.files.names(store.folder.path());
    return {listed.begin(), listed.end()};
}

NameRange beginningWith(const FolderNames& names, std::string_view beginning) {
    const auto first = names.lower_bound(beginning);
    const auto last = std::find_if(
        first, names.end(), [&](const std::string& name) { return !name.starts_with(beginning); });
    return {first, last};
}

}  // namespace winvrx
