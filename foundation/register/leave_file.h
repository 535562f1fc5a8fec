#pragma once

#include "foundation/files/line_file.h"
#include "foundation/files/record_names.h"
#include "foundation/register/leave_record.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// The leave file of one employee, whole, to be shown, changed and written again.
struct LeaveFile {
    std::vector<StoredLine<Leave>> leaves = {};  ///< in file order
    std::optional<Date> inactiveSince = {};
    /// What is neither a leave nor the status, as bytes. It is read and never written: the next
    /// rewrite drops it.
    std::vector<std::string> strays = {};

    [[nodiscard]] bool operator==(const LeaveFile&) const = default;
    /// The place of the last termination of the contract.
    [[nodiscard]] std::optional<std::size_t> termination() const;
};

/// The line of a leave, built upon `existing` as `encode` does. Throws TextFault.
[[nodiscard]] StoredLine<Leave> leaveLine(const Leave& leave, std::string existing = {});

/// `bytes` is the whole file.
[[nodiscard]] LeaveFile parseLeaveFile(std::string_view bytes);
/// The leaves in their order, then the status line.
[[nodiscard]] std::string encode(const LeaveFile& file);

/// An employee without a file has no leaves and is active. Throws FileFault.
[[nodiscard]] LeaveFile loadLeaveFile(const Store& store, const EmployeeKey& key);

/// The names of the employee's termination documents, "01TRTC001" and the like: the leave file's
/// with another stem. Who has one of them has left for good.
[[nodiscard]] std::array<std::string, kTerminationStems.size()> terminationFileNames(
    const EmployeeKey& key);

}  // namespace winvrx
