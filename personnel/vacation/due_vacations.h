#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/files/listed_file.h"
#include "foundation/register/employee_register.h"
#include "personnel/vacation/vacation_periods.h"

#include <filesystem>
#include <string>
#include <vector>

namespace winvrx {

struct EmployeeDue {
    EmployeeCode employee;
    std::string name;
    DueVacation due;
};

/// Those of a company whose vacation must begin soon, in the order of the list; who is inactive is
/// not among them. Of whom the admission brings to no limit only leaves are read: time away may
/// have moved his periods. Throws FileFault.
[[nodiscard]] std::vector<EmployeeDue> dueVacations(const Store& store, const CompanyCode& company,
                                                    const std::vector<EmployeeLine>& employees,
                                                    const FolderNames& names, Date today);

/// What the main window says of them behind every screen. On a share each file costs a millisecond:
/// they are read again only where the listing of the folder tells of a change.
class DueState {
  public:
    /// "2 vencem, a 1ª em 20/01/2027"; what is said where none is. Throws FileFault.
    [[nodiscard]] const std::string& text(const Store& store, const CompanyCode& company,
                                          Date today);

  private:
    struct Seen {
        std::filesystem::path folder{};
        std::string company{};
        Date today{};
        std::vector<ListedFile> files{};  ///< that the text depends on

        [[nodiscard]] bool operator==(const Seen&) const = default;
    };

    Seen seen_;
    std::string text_;
};

}  // namespace winvrx
