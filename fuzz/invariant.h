#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/text.h"
#include "tests/support/memory_files.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A fuzz target takes any bytes as a file, and states what must hold of whatever the reader makes
// of them.

namespace winvrx::fuzz {

/// Ends the run, so that the bytes are kept as a finding.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

inline std::string_view textOf(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

inline const DataFolder kFolder('C', "/data");
inline const CompanyCode kCompany = *CompanyCode::parse("01");
inline const EmployeeCode kEmployee = *EmployeeCode::parse("001");

/// `line` with blanks at its end up to `width`.
inline std::string widened(std::string line, std::size_t width) {
    if (line.size() < width) line.resize(width, ' ');
    return line;
}

/// No code that was read makes a name outside the data folder.
template <typename Code>
void requireInside(const Code& code) {
    require(kFolder.file(code.text() + "CartaPonto").parent_path() == kFolder.path(),
            "a code names a file outside the data folder");
}

}  // namespace winvrx::fuzz
