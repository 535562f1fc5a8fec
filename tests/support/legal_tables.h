#pragma once

#include "foundation/files/file_system.h"
#include "personnel/pay/legal_tables.h"

namespace winvrx::testing {

/// The tables as they lie in a folder, without any of a user's own.
inline LegalTables legalTablesIn(const std::filesystem::path& folder) {
    LegalTables tables;
    for (const std::string_view name : kLegalFiles)
        addLegalLines(tables, name, systemFiles()->read(folder / name).value());
    return tables;
}

}  // namespace winvrx::testing
