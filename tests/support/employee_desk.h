#pragma once

#include "foundation/register/empregados.h"
#include "tests/support/employees.h"
#include "tests/support/test_workplace.h"

#include <set>

namespace winvrx::testing {

/// Remembers what it was asked to show; `works` is its answer.
class TestEditor final : public TextEditor {
  public:
    bool works = true;
    std::vector<std::string> opened;

    bool open(const std::filesystem::path& file) override {
        opened.push_back(file.filename().string());
        return works;
    }
};

/// Remembers the sheets; the workbook is a word, once it was asked whether to go on.
class TestSpreadsheet final : public Spreadsheet {
  public:
    std::vector<Sheet> sheets;

    std::string workbookOf(const std::vector<Sheet>& written, const GoesOn& goesOn) override {
        sheets = written;
        return goesOn && !goesOn() ? "" : "workbook";
    }
};

/// The codes that a test names by their texts.
[[nodiscard]] inline std::set<EmployeeCode> codesOf(const std::set<std::string>& texts) {
    std::set<EmployeeCode> codes;
    for (const std::string& text : texts)
        codes.insert(EmployeeCode::parse(text).value());
    return codes;
}

/// Answers with the employees that the test names.
struct TestLocks final : RotationMembership, PayrollLock {
    std::set<std::string> inGroups;
    mutable std::set<std::string> removed;  ///< from groups
    std::set<std::string> closed;

    bool isMember(const EmployeeKey& key) const override {
        return inGroups.contains(key.employee.text());
    }
    void removeMember(const EmployeeKey& key) const override {
        removed.insert(key.employee.text());
    }
    std::set<EmployeeCode> closedIn(const CompanyCode&, WorkMonth,
                                    const FolderNames&) const override {
        return codesOf(closed);
    }
    bool hasClosedMonth(const EmployeeKey& key) const override {
        return closed.contains(key.employee.text());
    }
    bool isClosed(const EmployeeKey& key, WorkMonth) const override {
        return closed.contains(key.employee.text());
    }
};

/// A desk with the employee register's screen on it.
struct EmployeeDesk : TestWorkplace {
    TestEditor editor;
    TestSpreadsheet spreadsheet;
    TestLocks locks;
    Empregados empregados{at, {editor, spreadsheet, locks, locks}};

    [[nodiscard]] static Employee employee(const char* code, const char* name) {
        return testing::employee(code, name);
    }

    void record(const char* company, const std::vector<Employee>& employees) {
        file(std::string(company) + "CartaPonto") = employeeList(employees);
        empregados.load();
    }

    /// The codes of the company's list on disk, in its order.
    [[nodiscard]] std::string codes(const char* company = "01") {
        std::string codes;
        for (const std::string& line : splitLines(file(std::string(company) + "CartaPonto")))
            codes += line.substr(0, 3) + " ";
        return codes;
    }
};

}  // namespace winvrx::testing
