#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "tests/support/memory_files.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// A fuzz target takes any bytes as a file, and states what must hold of whatever the reader makes
// of them.

namespace winvrx::fuzz {

/// What a target does with the bytes.
void tryBytes(std::string_view bytes);

/// Ends the run, so that the bytes are kept as a finding.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

inline const DataFolder kFolder('C', "/data");
inline const CompanyCode kCompany = *CompanyCode::parse("01");
inline const EmployeeKey kKey{kCompany, *EmployeeCode::parse("001")};

/// The bytes in the place of a record file.
struct AnyFile {
    AnyFile(const std::filesystem::path& path, std::string_view given)
        : content(files.content[path] = given) {}

    testing::MemoryFiles files;
    Store store{files, kFolder};
    std::string& content;
    std::vector<std::string> before = lines();

    [[nodiscard]] std::vector<std::string> lines() const { return splitLines(content); }
    /// How many are not as they were, or new.
    [[nodiscard]] std::size_t changedLines() const {
        const auto after = lines();
        require(after.size() >= before.size(), "every line is there");
        std::size_t changed = after.size() - before.size();
        for (std::size_t line = 0; line < before.size(); ++line)
            if (after[line] != before[line]) ++changed;
        return changed;
    }
};

/// `line` with blanks at its end up to `width`.
inline std::string widened(std::string line, std::size_t width) {
    if (line.size() < width) line.resize(width, ' ');
    return line;
}

/// What was read comes back from a line of its own. A control character in the file cannot be typed
/// into one.
template <typename Record, typename Decode>
void requireBack(const Record& record, Decode decode, const char* what) {
    try {
        require(decode(encode(record)) == record, what);
    } catch (const TextFault&) {
    }
}

/// No code that was read makes a name outside the data folder.
template <typename Code>
void requireInside(const Code& code) {
    require(kFolder.file(code.text() + "CartaPonto").parent_path() == kFolder.path(),
            "a code names a file outside the data folder");
}

}  // namespace winvrx::fuzz
