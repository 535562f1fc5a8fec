#pragma once

#include "foundation/desk/spreadsheet.h"
#include "foundation/desk/text_report.h"
#include "foundation/register/company.h"
#include "foundation/values/csv.h"
#include "output/mirrors/hour_columns.h"

#include <string>
#include <vector>

// The reports of fixed width: hours and absences, their summary, and leaves, in one file; the same
// for spreadsheets and for payroll bureaus; and the mirror as text.

namespace winvrx {

/// "RELATÓRIO DE HORAS EXTRAS/FALTAS", "RESUMO DAS HORAS" and "RELATÓRIO DE AFASTAMENTO".
class HoursReport {
  public:
    /// `rules` title the columns and say how hours are shown.
    HoursReport(const DayPeriod& period, const OvertimeRules& rules);

    void add(const MirrorSheet& sheet);
    /// The whole file.
    [[nodiscard]] std::vector<std::string> lines() &&;

  private:
    OvertimeRules rules_;
    std::vector<HourColumn> dayColumns_;
    std::vector<HourColumn> summaryColumns_;
    TextReport days_;
    TextReport summary_;
    TextReport leaves_;
};

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

/// The mirror of one employee: company and employee, a line a day, sums and notes.
[[nodiscard]] std::vector<std::string> mirrorText(const Company& company, const MirrorSheet& sheet);

}  // namespace winvrx
