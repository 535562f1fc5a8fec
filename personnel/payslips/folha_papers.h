#pragma once

#include "foundation/desk/word_processor.h"
#include "personnel/payroll/folha_screen.h"
#include "personnel/payslips/paid_employee.h"
#include "report/print_pages.h"

#include <vector>

namespace winvrx {

/// What papers are printed with. Both outlive the command.
struct PapersDesk {
    ReportEngine& engine;
    WordProcessor& writer;
};

/// The papers of the payroll that the screen shows. Each asks for a company, for an active employee
/// in hand whose contract has been generated and whose payroll is recorded, and then whether to
/// print; each returns whether it was printed or shown, and the operator knows why not.
class FolhaPapers {
  public:
    FolhaPapers(const Workplace& at, const PapersDesk& desk, const FolhaScreen& screen)
        : at_(at), desk_(desk), screen_(screen) {}

    /// "FOLHA DE PAGAMENTO" of those listed whose payroll is recorded; the others are named first.
    [[nodiscard]] bool printPayroll(const PageProgress& progress = {});
    /// Their pay slips.
    [[nodiscard]] bool printSlips(const PageProgress& progress = {});
    /// "RECIBO DE PAGAMENTO" of the employee in hand, in the word processor.
    [[nodiscard]] bool showReceipt(bool memos);
    /// The receipt of his salary advance: of event 031, recorded or not.
    [[nodiscard]] bool showAdvance();

  private:
    [[nodiscard]] bool requireEmployee() const;
    [[nodiscard]] bool requireSaved() const;
    [[nodiscard]] PaperHeading heading() const;
    [[nodiscard]] PaidEmployee paid(const Employee& employee, PaySheet sheet) const;
    [[nodiscard]] std::vector<PaidEmployee> recorded(std::vector<std::string>& without) const;
    [[nodiscard]] bool show(const Document& document) const;
    using Sheets = std::vector<ReportRows> (*)(const PaperHeading& heading,
                                               std::span<const PaidEmployee> people);
    [[nodiscard]] bool print(const Message& asked, ReportRequest request, Sheets sheetsOf,
                             const PageProgress& progress) const;

    Workplace at_;
    PapersDesk desk_;
    const FolhaScreen& screen_;
};

}  // namespace winvrx
