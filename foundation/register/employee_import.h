#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/csv.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace winvrx {

/// A row of a spreadsheet, as it would be recorded.
struct ImportedRow {
    std::size_t number;  ///< as the spreadsheet counts: the titles are row 1
    Employee employee;
    std::string problem;  ///< why it cannot be recorded; empty when it can
    std::string notice;   ///< what is worth a look all the same

    [[nodiscard]] bool isGood() const { return problem.empty(); }
};

/// Brings employees into the selected company's list from a spreadsheet's CSV: first the file is
/// opened and judged, then the good rows are recorded. Nothing is written in between.
class EmployeeImport {
  public:
    explicit EmployeeImport(const Workplace& at) : at_(at) {}

    /// Reads the file and judges its rows. False, with a message, when it is no such table or no
    /// company is selected.
    [[nodiscard]] bool open(const std::filesystem::path& csv);
    [[nodiscard]] const std::vector<ImportedRow>& rows() const { return rows_; }
    /// Titles of columns that no field is known for.
    [[nodiscard]] const std::vector<std::string>& unknownTitles() const { return unknownTitles_; }
    [[nodiscard]] std::size_t goodRows() const;

    /// Asks, and appends the good rows to the list. True when they were recorded.
    [[nodiscard]] bool include();

  private:
    /// Titles first; the columns of unknown titles are left out.
    void judge(const CsvRows& table);

    Workplace at_;
    std::vector<EmployeeLine> before_;
    std::set<EmployeeCode> codesOfFiles_;
    std::vector<ImportedRow> rows_;
    std::vector<std::string> unknownTitles_;
};

}  // namespace winvrx
