#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The engine that fills a layout file with the rows of the table `Tabela_base` and sends the pages
// to the preview window, a printer or a PDF file.

namespace winvrx {

/// One row of `Tabela_base`: the values of its columns, in the order of kCardColumns.
/// Header values stand in every row of a card; day values in the row of their day.
inline constexpr std::array<std::string_view, 26> kCardColumns = {
    // header block
    "razao", "cnpj", "registro", "ctps", "admissao", "funcao", "periodo", "descanso", "horario",
    "refeicao", "nome", "codigo", "mes",
    // one day
    "linha", "dia", "semana", "ent1", "sai1", "ent2", "sai2", "ent3", "sai3", "horas", "situacao",
    // the card's sums
    "total", "quinzena"};

inline constexpr std::string_view kCardTable = "Tabela_base";

using CardRow = std::array<std::string, kCardColumns.size()>;

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

/// What a run prints of each card. A layout that fills one side prints it whole on the first.
enum class CardSide {
    Whole,  ///< every side, one after the other, each on a page of its own
    First,
    Second
};

enum class ReportOutput { Preview, Printer, PdfFile };

enum class ReportResult {
    Done,
    Cancelled,
    NoEngine,     ///< the engine's own parts are not installed
    NoPrinter,    ///< no printer is installed
    PrinterGone,  ///< the chosen printer, or a default one, is not there or does not answer
    Failed        ///< cause in the log
};

/// Told after each card; false cancels the run.
using CardProgress = std::function<bool(int cardsDone)>;

struct ReportRequest {
    std::string layoutName;   ///< "tilibcenter.rpt"
    std::string title;        ///< of the print job and the preview window
    bool printHeader = true;  ///< whether blocks named "header" are drawn
    Alignment alignment = {};
    CardSide side = CardSide::Whole;
    ReportOutput output = ReportOutput::Preview;
    std::string printerName = {};           ///< empty: the default printer
    std::array<std::string, 3> trays = {};  ///< the first that is not blank names the source
    std::string pdfPath = {};               ///< of a preview: the name to propose
    /// Carries out the preview's command "Imprimir", tells of failures itself and does not throw;
    /// without it the previewed pages are printed as they are.
    std::function<ReportResult(const CardProgress&)> printPreviewed = {};
};

/// Gives one card's rows after the other; nullopt ends the run. Called once a card, so that no
/// more than one card is held in memory. May throw; the run then ends and the fault goes on.
using CardSource = std::function<std::optional<std::vector<CardRow>>()>;

class ReportEngine {
  public:
    virtual ~ReportEngine() = default;

    /// A damaged or missing layout prints nothing: file and line go to the log.
    [[nodiscard]] virtual ReportResult print(const ReportRequest& request, const CardSource& cards,
                                             const CardProgress& progress) = 0;

    /// One sentence for the operator on the last run that did not end well; may be empty.
    [[nodiscard]] virtual std::string explanation() const = 0;

    /// How many sides of a card the layout fills, 1 or 2. 1 as well for a layout that is missing or
    /// damaged: printing it tells.
    [[nodiscard]] virtual int sidesOf(const std::string& layoutName) = 0;
};

}  // namespace winvrx
