#pragma once

#include "foundation/desk/command.h"
#include "personnel/termination/termination_sheet.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace winvrx {

class ReportEngine;

inline constexpr std::string_view kTerminationTitle = "Cálculo da Rescisão";

/// The screen of the figures of an employee's end of contract. It writes nothing: what it computes
/// from is recorded by the leave screen, the register and "Dados para a Folha".
class Rescisao {
  public:
    /// `legalFolder` has the delivered tables; the engine outlives the screen.
    Rescisao(const Workplace& at, ReportEngine& engine, std::filesystem::path legalFolder,
             Employee employee)
        : at_(at),
          engine_(engine),
          legalFolder_(std::move(legalFolder)),
          employee_(std::move(employee)) {}

    /// Reads the records and computes. False, and told in words, where something is missing.
    [[nodiscard]] bool load();
    [[nodiscard]] const Employee& employee() const { return employee_; }
    [[nodiscard]] const std::optional<TerminationSheet>& sheet() const { return sheet_; }
    /// "Data do aviso", "15/06/2026": the terms and dates, each with the rule that gives it.
    struct Term {
        std::string name;
        std::string value;
        std::string rule;
    };
    [[nodiscard]] std::vector<Term> terms() const;

    /// Shows the page with the memo of every line. Requires a sheet.
    [[nodiscard]] bool preview() const;

  private:
    Workplace at_;
    ReportEngine& engine_;
    std::filesystem::path legalFolder_;
    Employee employee_;
    std::optional<TerminationSheet> sheet_;
};

}  // namespace winvrx
