#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_list.h"
#include "output/cards/card_run.h"
#include "output/labels/label_pages.h"
#include "output/labels/stock_sheet.h"
#include "report/print_scale.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kEtiquetasTitle = "ETIQUETAS";
inline constexpr std::string_view kLabelProgressTitle = "IMPRIMINDO ETIQUETA CTPS";

enum class LabelKind {
    Annotations,  ///< the ticked texts, of nobody or of each ticked employee
    Addresses,    ///< of each ticked employee
};

inline constexpr int kMostLabelCopies = 99;

struct LabelChoices {
    LabelKind kind = LabelKind::Annotations;
    std::size_t sheet = 0;  ///< in kLabelSheets
    std::size_t first = 0;  ///< the first free label of the first sheet, from 0
    int copies = 1;
    std::string day = {};  ///< fills the blanks for a day; empty leaves them
    ReportOutput output = ReportOutput::Preview;
};

/// The label screen: prints the texts of the catalogue, filled with what the register knows of the
/// ticked employees, and their addresses, on a sheet of labels that may be used in part.
class Etiquetas {
  public:
    /// `sheetName` is the sheet that is offered; an unknown one offers the first.
    Etiquetas(const Workplace& at, const PrintingDesk& desk, std::string_view sheetName);

    /// Reads company, employees, catalogue and printer again; what is ticked stays ticked.
    void load();

    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const Company& company() const { return company_; }
    /// Empty stands for the system's default printer.
    [[nodiscard]] const std::string& printerName() const { return printer_; }
    [[nodiscard]] LabelChoices& choices() { return choices_; }
    [[nodiscard]] const LabelSheet& sheet() const { return kLabelSheets.at(choices_.sheet); }

    /// The texts that can be printed, in the catalogue's order.
    [[nodiscard]] const std::vector<LabelText>& texts() const { return texts_; }
    [[nodiscard]] bool isTicked(std::size_t text) const;
    void tick(std::size_t text, bool on);

    /// The labels of the run as it is chosen now.
    [[nodiscard]] LabelRun labels() const;

    /// Prints what is ticked, unless nothing is or a text does not fit its label. True when all was
    /// printed.
    [[nodiscard]] bool print(const PrintRun& run);
    /// Frames on plain paper, to be held against a sheet of labels.
    [[nodiscard]] bool printFrames(const PrintRun& run);
    [[nodiscard]] bool printStockSheets(const StockChoices& chosen, const PrintRun& run);

    /// For which printer and paper the sheet in use is calibrated.
    [[nodiscard]] PrintScaleKey scaleKey() const;

  private:
    [[nodiscard]] bool requireTicks();
    [[nodiscard]] bool requireFitting(const LabelRun& labels);
    /// "01 Contrato Experiência, 001 ANA", of a label of the run.
    [[nodiscard]] std::string nameOf(std::size_t label) const;
    [[nodiscard]] std::vector<LabelText> tickedTexts() const;
    [[nodiscard]] bool send(ReportRequest request, ReportPages pages, const PrintRun& run);
    [[nodiscard]] ReportRequest labelRequest() const;

    Workplace at_;
    PrintingDesk desk_;
    EmployeeList list_;
    LabelChoices choices_;
    Company company_;
    std::string printer_;
    std::vector<LabelText> texts_;
    std::set<std::string> ticked_;  ///< numbers
};

/// "NOME: ", " CTPS: ", the address, "CEP: " and "TELEFONE: ", closed by a row of "=". Lines of
/// the address that the register leaves empty are left out.
[[nodiscard]] LabelLines addressLines(const Employee& employee);

}  // namespace winvrx
