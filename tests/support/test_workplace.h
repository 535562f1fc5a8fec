#pragma once

#include "foundation/desk/command.h"
#include "tests/support/memory_disk.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_operator.h"
#include "tests/support/test_host.h"

#include <string>
#include <vector>

namespace winvrx::testing {

class RecordedLog final : public Log {
  public:
    std::vector<std::string> entries;
    void write(std::string_view entry) noexcept override { entries.emplace_back(entry); }
};

/// A desk with a disk in memory, the clock at 15/03/2024 10:20 and company "01" selected.
struct TestWorkplace {
    MemoryFiles files;
    ScriptedOperator person;
    FixedClock clock{{*parseDate("15/03/2024"), *parseTime("10:20")}};
    RecordedLog log;
    Session session{.folder = DataFolder('C', "/data"), .company = CompanyCode::parse("01")};
    TestHost host;
    MemoryDisk lockDisk;  ///< locks are kept apart from the records
    FolderLock lock{lockDisk, host};
    Workplace at{files, person, clock, log, session, lock};

    [[nodiscard]] Store store() const { return at.store(); }
    [[nodiscard]] std::string& file(const std::string& name) {
        return files.content["/data/" + name];
    }
};

}  // namespace winvrx::testing
