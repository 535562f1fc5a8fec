#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/values/date.h"
#include "foundation/values/shift.h"

#include <optional>

namespace winvrx {

/// The values that live across screens, held by the main window for the whole run.
struct Session {
    DataFolder folder;
    std::optional<CompanyCode> company;
    ShiftFilter shiftFilter = ShiftFilter::Todos;
    /// The month confirmed last, in this run or the one before; offered where none is chosen.
    std::optional<WorkMonth> lastMonth = {};

    /// A file of the selected company. Throws std::bad_optional_access when none is selected.
    [[nodiscard]] std::filesystem::path companyFile(std::string_view name) const {
        return folder.companyFile(company.value(), name);
    }
};

}  // namespace winvrx
