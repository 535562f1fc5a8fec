#pragma once

#include "foundation/desk/session.h"
#include "output/stocks/card_stock.h"
#include "report/report_engine.h"

#include <array>
#include <string>

// What a company's printing screen remembers from one day to the next: the kind of printer in
// `ImpressoraTipo` and how the cards are fed in `Impresstec`, both behind the company code and with
// one value a line.

namespace winvrx {

/// A tray's name has at most so many characters.
inline constexpr std::size_t kTrayWidth = 30;

struct PrinterMemory {
    SheetExit exit = SheetExit::FaceDown;
    TrayPosition tray = TrayPosition::Central;
    std::array<std::string, 3> trays = {};
    bool printHeader = true;

    [[nodiscard]] bool operator==(const PrinterMemory&) const = default;
};

/// A line that is missing or says nothing known means its default. Throws FileFault.
[[nodiscard]] PrinterMemory loadPrinterMemory(const Store& store, const CompanyCode& company);

/// Both files in one batch; lines past those known here, and lines that mean the same, stay as they
/// are. Throws FileFault, and TextFault for a tray that cannot be stored.
void savePrinterMemory(const Store& store, const CompanyCode& company, const PrinterMemory& memory);

}  // namespace winvrx
