#pragma once

#include "foundation/desk/command.h"
#include "report/print_scale.h"
#include "report/report_engine.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The calibration sheet: an A4 sheet with rulers and three crosses, printed untouched by any
// offset or scale. What the operator measures on it tells how the printer errs.

namespace winvrx {

inline constexpr std::string_view kCalibrationLayout = "calibracao.rpt";
/// The sheet's one column: the printer's name.
inline constexpr std::string_view kCalibrationColumn = "nome";

/// Where the crosses belong, hundredths of a millimetre from the sheet's left and upper edge: A
/// near both edges, B to the right of it, C below it.
inline constexpr int kCrossNear = 3000;
inline constexpr int kCrossRight = 18000;
inline constexpr int kCrossDown = 26000;

/// What was measured, from the edges of the paper; hundredths of a millimetre.
struct MeasuredSheet {
    int leftToA = kCrossNear;
    int leftToB = kCrossRight;
    int topToA = kCrossNear;
    int topToC = kCrossDown;
};

/// The distances in the order in which they are asked for.
inline constexpr std::array kMeasuredDistances = {&MeasuredSheet::leftToA, &MeasuredSheet::leftToB,
                                                  &MeasuredSheet::topToA, &MeasuredSheet::topToC};

/// The scale that brings the crosses to where they belong; nullopt for distances that no printer
/// gives.
[[nodiscard]] std::optional<PrintScale> scaleFrom(const MeasuredSheet& sheet);

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
