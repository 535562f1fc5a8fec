#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/company.h"
#include "output/stocks/card_alignment.h"
#include "output/stocks/printer_memory.h"
#include "report/print_calibration.h"
#include "report/printers.h"

#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kCartaoPontosTitle = "Ajuste de Impressão";

/// One press of an arrow, twips.
inline constexpr int kOffsetStep = 20;
inline constexpr int kGreatestLineOffset = 10;

enum class Direction { Left, Right, Up, Down };

/// "nenhuma", "1 Linha" … "10 Linhas".
[[nodiscard]] std::string lineOffsetText(int lines);

/// What the alignment screen works with beside the desk. All outlive the screen.
struct CartaoPontosDesk {
    ReportEngine& engine;
    const Printers& printers;
    AlignmentMemory& memory;
};

/// The alignment screen: where the print comes to lie on the card. Each stock has an entry of the
/// list with its two offsets, each printer and stock a scale.
///
/// A command that is refused or fails leaves files and figures as they were.
class CartaoPontos {
  public:
    CartaoPontos(const Workplace& at, const CartaoPontosDesk& desk);

    /// Reads everything again and selects the stock in use, or else the first of the list.
    void load();

    /// What the list shows.
    [[nodiscard]] static std::vector<const CardStock*> entries();
    [[nodiscard]] std::size_t selected() const { return entry_; }
    /// Loads the entry's offsets and its scale. False when they could not be read.
    bool select(std::size_t entry);

    [[nodiscard]] const CardStock& stock() const;
    [[nodiscard]] const Offsets& offsets() const { return alignments_.at(entry_); }
    [[nodiscard]] const Offsets& offsets(std::size_t entry) const { return alignments_.at(entry); }
    /// The print as it would be moved now.
    [[nodiscard]] Alignment alignment() const;

    /// Moves by a step within the bounds and records it. False when it could not be recorded.
    bool move(Direction direction);
    /// "Reset Alinhamentos": all entries, and the line offset. False when refused.
    bool reset();

    /// The line offset's text; "nenhuma" until one is chosen.
    [[nodiscard]] std::string lineOffset() const;
    /// Takes a text of the drop-down, and a blank one for "nenhuma"; any other becomes "1 Linha".
    void typeLineOffset(std::string_view text);

    /// The printer whose scale is shown; empty when none is installed.
    [[nodiscard]] std::string printer() const;
    /// Of that printer and the selected stock.
    [[nodiscard]] PrintCalibration& calibration() { return calibration_; }

    /// "Imprimir Teste". True when the card was printed.
    bool printTest();

    /// The layout of the selected stock, and the card that the sample on the screen shows.
    [[nodiscard]] std::string layoutName() const;
    [[nodiscard]] ReportRows sampleRows() const;
    /// False where the printing screen leaves the header block to the stock.
    [[nodiscard]] bool printsHeader() const { return feed_.printHeader; }

  private:
    void readSelected();

    Workplace at_;
    CartaoPontosDesk desk_;
    std::size_t entry_ = 0;
    std::vector<Offsets> alignments_ = std::vector<Offsets>(kAlignmentEntries);
    PrintCalibration calibration_;
    PrinterMemory feed_;
    std::string printer_;
    Company company_;
};

}  // namespace winvrx
