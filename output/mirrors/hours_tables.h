#pragma once

#include "foundation/desk/spreadsheet.h"
#include "foundation/values/csv.h"
#include "output/mirrors/mirror_period.h"

// The hours reports for spreadsheets and for payroll bureaus.

namespace winvrx {

/// The columns of the text report: a sheet of days, one of sums and one of leaves.
class HoursSheets {
  public:
    /// `rules` title the columns and say how hours are shown.
    explicit HoursSheets(const OvertimeRules& rules);

    void add(const MirrorSheet& sheet);
    [[nodiscard]] std::vector<Sheet> sheets() && { return std::move(sheets_); }

  private:
    OvertimeRules rules_;
    std::vector<Sheet> sheets_;
};

/// The sums alone: code, name, CPF, and each category in decimal hours, "1234,50". The first row
/// has the titles.
class HoursCsv {
  public:
    explicit HoursCsv(const OvertimeRules& rules);

    void add(const MirrorSheet& sheet);
    [[nodiscard]] const CsvRows& rows() const { return rows_; }

  private:
    CsvRows rows_;
};

}  // namespace winvrx
