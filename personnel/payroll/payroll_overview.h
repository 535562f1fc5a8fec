#pragma once

#include "foundation/desk/spreadsheet.h"
#include "personnel/payroll/folha_screen.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// An employee in the view of a month.
struct OverviewPay {
    std::string code;
    std::string name;
    Money credits;
    Money debits;
    Money net;
    Money inss;  ///< of the employer
    Money fgts;
    std::string standing;  ///< "Gravada", "Aberta", or why there are no amounts
};

/// A month of everyone: recorded amounts where they are recorded, else what is computed now.
struct PayrollOverview {
    std::vector<OverviewPay> people;
    OverviewPay total;

    /// A sheet whose amounts can be reckoned with.
    [[nodiscard]] Sheet sheet(const std::string& name) const;
    /// The same as a table of texts, the titles first and the totals last.
    [[nodiscard]] std::vector<std::vector<std::string>> table() const;
};

/// The titles of its columns.
inline constexpr std::array<std::string_view, 8> kOverviewTitles = {
    "Código",  "Funcionário",     "Créditos", "Débitos",
    "Líquido", "INSS empregador", "FGTS",     "Situação"};

/// The view of the month that the payroll screen shows, and its export.
class FolhaVisao {
  public:
    /// `screen` and `spreadsheet` outlive it.
    FolhaVisao(const Workplace& at, const FolhaScreen& screen, Spreadsheet& spreadsheet)
        : at_(at), screen_(screen), spreadsheet_(spreadsheet) {}

    /// Looks at everyone listed. False when cancelled, or when something cannot be read, which is
    /// told.
    [[nodiscard]] bool load(const Folha::Progress& progress = {});
    [[nodiscard]] const PayrollOverview& shown() const { return shown_; }
    /// "Folha março-2026", to name a file.
    [[nodiscard]] std::string name() const;
    [[nodiscard]] bool exportWorkbook(const std::filesystem::path& file) const;
    [[nodiscard]] bool exportCsv(const std::filesystem::path& file) const;

  private:
    Workplace at_;
    const FolhaScreen& screen_;
    Spreadsheet& spreadsheet_;
    PayrollOverview shown_;
};

}  // namespace winvrx
