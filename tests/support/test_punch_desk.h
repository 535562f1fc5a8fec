#pragma once

#include "foundation/files/file_faults.h"
#include "tests/support/employee_desk.h"
#include "timecard/punches/list_application.h"

#include <map>

namespace winvrx::testing {

/// Answers with the leaves that the test names, by employee code.
struct TestLeaves final : LeaveCalendar {
    std::map<std::string, EmployeeLeaves> leaves;
    std::set<std::string> unreadable;

    EmployeeLeaves leavesOf(const EmployeeKey& key) const override {
        if (unreadable.contains(key.employee.text()))
            throw FileFault(FileFault::Operation::Read, "01" + leaveFileName(key.employee),
                            std::make_error_code(std::errc::io_error));
        const auto found = leaves.find(key.employee.text());
        return found == leaves.end() ? EmployeeLeaves() : found->second;
    }
    std::set<EmployeeCode> recorded(const CompanyCode&, const FolderNames&) const override {
        std::set<std::string> texts;
        for (const auto& [employee, its] : leaves)
            texts.insert(employee);
        return codesOf(texts);
    }
    void add(const std::string& employee, const char* first, const char* last) {
        leaves[employee].periods.push_back({*parseDate(first), *parseDate(last)});
    }
};

/// What the punches ask of other subjects, as the test has it.
struct TestPunchDesk {
    TestLocks locks;
    TestLeaves leaves;
    PunchDesk desk{locks, locks, leaves};

    void forget() {
        locks = {};
        leaves = {};
    }
};

}  // namespace winvrx::testing
