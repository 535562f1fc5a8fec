#pragma once

#include "foundation/files/file_system.h"
#include "personnel/pay/legal_tables.h"
#include "tests/support/memory_files.h"

namespace winvrx::testing {

/// The tables as they lie in a folder, without any of a user's own.
inline LegalTables legalTablesIn(const std::filesystem::path& folder) {
    LegalTables tables;
    for (const std::string_view name : kLegalFiles)
        addLegalLines(tables, name, systemFiles()->read(folder / name).value());
    return tables;
}

/// Puts the delivered files of `folder` where a program in memory looks for them.
inline void deliverLegalTables(MemoryFiles& files, const std::filesystem::path& where,
                               const std::filesystem::path& folder) {
    for (const std::string_view name : kLegalFiles)
        files.content[where / name] = systemFiles()->read(folder / name).value();
}

}  // namespace winvrx::testing
