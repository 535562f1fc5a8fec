#pragma once

#include <array>
#include <string>
#include <vector>

namespace winvrx {

/// What one printer needs so that a millimetre on paper is a millimetre, measured from the paper's
/// top left corner: the print is first scaled, then moved.
struct PrintScale {
    int horizontalScale = 10000;  ///< hundredths of a percent
    int verticalScale = 10000;
    int horizontalOffset = 0;  ///< hundredths of a millimetre, positive to the right
    int verticalOffset = 0;    ///< positive down

    [[nodiscard]] bool operator==(const PrintScale&) const = default;
};

/// How the print is moved on the paper. The twips, 1/1440 inch, are the paper's, whatever the
/// scale.
struct Alignment {
    int horizontalTwips = 0;
    int verticalTwips = 0;
    int lines = 0;  ///< further rows to move down, each of the layout's row pitch
    PrintScale scale = {};

    [[nodiscard]] bool operator==(const Alignment&) const = default;
};

/// How printed sheets leave the printer. It settles how they go back into the tray for their second
/// side; see sheetsBackInstruction().
enum class SheetExit {
    FaceDown,  ///< "Impressa para baixo": the print is hidden
    FaceUp     ///< "Impressa para cima": the print is to be seen
};

/// What is printed of a layout with two sides.
enum class SheetSides {
    Both,  ///< one after the other, each on a page of its own
    First,
    Second
};

/// What the operator calls one page of a run.
struct PageNoun {
    std::string one = "folha";
    std::string many = "folhas";
};

enum class ReportOutput { Preview, Printer, PdfFile };

struct ReportRequest {
    std::string layoutName;                 ///< "tilibcenter.rpt"
    std::string title;                      ///< of the print job and the preview window
    std::vector<std::string> columns = {};  ///< of the table, in the order of a row's texts
    bool printHeader = true;                ///< whether blocks named "header" are drawn
    Alignment alignment = {};
    SheetSides sides = SheetSides::Both;
    SheetExit exit = SheetExit::FaceDown;
    PageNoun noun = {};
    ReportOutput output = ReportOutput::Preview;
    std::string printerName = {};           ///< empty: the default printer
    std::array<std::string, 3> trays = {};  ///< the first that is not blank names the source
    std::string pdfPath = {};               ///< of a preview: the name to propose
};

}  // namespace winvrx
