#pragma once

#include "foundation/desk/command.h"
#include "report/calibration.h"
#include "report/print_scale.h"

#include <array>
#include <string>

namespace winvrx {

/// How the calibration sheet reaches the printer.
struct SheetPrinting {
    std::string printerName = {};  ///< empty: the default printer
    std::array<std::string, 3> trays = {};
};

/// The scale of one printer and paper as a screen shows it, and its commands. A command that is
/// refused or fails leaves file and figures as they were.
class PrintCalibration {
  public:
    /// `title` is that of the refusals. The engine outlives this object.
    PrintCalibration(const Workplace& at, ReportEngine& engine, std::string title)
        : at_(at), engine_(engine), title_(std::move(title)) {}

    /// Goes to another printer and paper; a key without a printer has no scale. Throws FileFault.
    void load(PrintScaleKey key, SheetPrinting printing);

    /// Empty when no printer is installed.
    [[nodiscard]] const std::string& printer() const { return key_.printer; }
    [[nodiscard]] const PrintScale& scale() const { return scale_; }

    /// Records typed figures, in the order of kPrintScaleFields. False when told why not.
    bool type(const std::array<std::string, 4>& figures);
    /// Works the scale out of what was measured on the calibration sheet, in millimetres and in the
    /// order of kMeasuredDistances, and records it. False when told why not.
    bool typeDistances(const std::array<std::string, 4>& distances);
    /// Asks before typed but unrecorded figures are left behind. True when they may go.
    [[nodiscard]] bool confirmDiscarding();
    bool printSheet();

  private:
    [[nodiscard]] bool save(const PrintScale& scale);

    Workplace at_;
    ReportEngine& engine_;
    std::string title_;
    PrintScaleKey key_;
    SheetPrinting printing_;
    PrintScale scale_;
};

}  // namespace winvrx
