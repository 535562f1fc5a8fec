#pragma once

#include "foundation/files/record_file.h"

#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// The printers of the system.
class Printers {
  public:
    virtual ~Printers() = default;

    /// The installed printers, in the system's order. Asked anew each time.
    [[nodiscard]] virtual std::vector<std::string> names() const = 0;
    /// Empty when there is none.
    [[nodiscard]] virtual std::string defaultName() const = 0;
    /// Opens the system's own dialogue for adding a printer; false when there is none.
    [[nodiscard]] virtual bool openAddDialogue() = 0;
};

/// An entry of the list of printers: its number, and from the fifth character on the name, so that
/// its first 30 characters are characters 5 to 34.
///
///     printerEntry(1, "HP LaserJet")      "001 HP LaserJet                   "
[[nodiscard]] std::string printerEntry(std::size_t number, std::string_view name);

/// The installed printers that a recorded name may stand for: the one of that name, else those
/// whose first 30 characters it is, as older records have it.
[[nodiscard]] std::vector<std::string> printersMeant(const std::vector<std::string>& installed,
                                                     std::string_view name);

/// Why nothing can be printed on a recorded printer, in one sentence; empty where it can.
[[nodiscard]] std::string printerProblem(const std::vector<std::string>& installed,
                                         std::string_view name);

/// The record of the chosen printer, in the data folder itself and so the same for all companies.
inline constexpr std::string_view kPrinterName = "ConfigX";
/// What it holds for the system's default printer.
inline constexpr std::string_view kDefaultPrinter = "Padrao";

/// The chosen printer; empty stands for the system's default printer. Throws FileFault.
[[nodiscard]] std::string loadPrinterName(const Store& store);
/// Throws FileFault, and TextFault for a name that cannot be stored.
void savePrinterName(const Store& store, const std::string& name);

}  // namespace winvrx
