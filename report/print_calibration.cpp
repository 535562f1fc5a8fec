#include "report/print_calibration.h"

#include "report/print_pages.h"

#include <cstdint>
#include <cstdlib>

namespace winvrx {

namespace {

const Message kConfirmSheet = question(
    "Imprimir Folha de Calibração",
    "Coloque uma Folha A4 em Branco na Impressora! Pressione SIM para Imprimir ou NÃO para "
    "Cancelar Impressão.");

/// The texts as hundredths; nullopt where one is no number.
std::optional<std::array<int, 4>> hundredthsIn(const std::array<std::string, 4>& texts) {
    std::array<int, 4> values{};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto value = parseHundredths(texts[i]);
        if (!value) return std::nullopt;
        values[i] = *value;
    }
    return values;
}

/// Half away from zero.
std::int64_t dividedRounded(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t half = divisor / 2;
    return (dividend + (dividend < 0 ? -half : half)) / divisor;
}

/// Scale and offset of one direction, as in PrintScale.
struct AxisScale {
    int scale;
    int offset;
};

/// What brings two marks, printed without any scale or offset and measured from the same edge of
/// the paper, from where they were found to where they belong; nullopt for distances that no
/// printer gives.
std::optional<AxisScale> correctionFor(int nearBelongs, int farBelongs, int nearFound,
                                       int farFound) {
    const std::int64_t belongs = farBelongs - nearBelongs;
    const std::int64_t found = std::int64_t{farFound} - nearFound;
    if (found <= 0) return std::nullopt;
    const std::int64_t scale = dividedRounded(belongs * kWholeScale, found);
    const std::int64_t offset =
        dividedRounded(nearBelongs * found - std::int64_t{nearFound} * belongs, found);
    if (scale < kSmallestScale || scale > kLargestScale || std::abs(offset) > kLargestScaleOffset)
        return std::nullopt;
    return AxisScale{static_cast<int>(scale), static_cast<int>(offset)};
}

}  // namespace

std::optional<PrintScale> scaleFrom(const MeasuredSheet& sheet) {
    const auto across = correctionFor(kCrossNear, kCrossRight, sheet.leftToA, sheet.leftToB);
    const auto down = correctionFor(kCrossNear, kCrossDown, sheet.topToA, sheet.topToC);
    if (!across || !down) return std::nullopt;
    return PrintScale{.horizontalScale = across->scale,
                      .verticalScale = down->scale,
                      .horizontalOffset = across->offset,
                      .verticalOffset = down->offset};
}

void PrintCalibration::load(PrintScaleKey key, SheetPrinting printing) {
    const PrintScale scale = loadPrintScale(at_.store(), key);
    key_ = std::move(key);
    printing_ = std::move(printing);
    scale_ = scale;
}

bool PrintCalibration::type(const std::array<std::string, 4>& figures) {
    PrintScale scale;
    const auto values = hundredthsIn(figures);
    for (std::size_t i = 0; values && i < values->size(); ++i)
        scale.*kPrintScaleFields[i].member = (*values)[i];
    if (values && isUsable(scale)) return save(scale);
    return at_.person.refuse(
        refusal(title_, "Dados incorretos!",
                "A escala vai de 90,00 a 110,00 por cento e o deslocamento de -50,00 a 50,00 mm."));
}

bool PrintCalibration::typeDistances(const std::array<std::string, 4>& distances) {
    MeasuredSheet sheet;
    const auto values = hundredthsIn(distances);
    for (std::size_t i = 0; values && i < values->size(); ++i)
        sheet.*kMeasuredDistances[i] = (*values)[i];
    const auto scale = values ? scaleFrom(sheet) : std::nullopt;
    if (scale) return save(*scale);
    return at_.person.refuse(
        refusal(title_, "Dados incorretos!",
                "As distâncias medidas não combinam com a folha de calibração. Meça de novo, a "
                "partir da borda do papel."));
}

bool PrintCalibration::save(const PrintScale& scale) {
    return attemptWriting(at_, incorrectData(), [&] {
        if (key_.printer.empty())
            throw Fault("no printer to keep a scale for", "Não há uma impressora escolhida.");
        if (loadPrintScale(at_.store(), key_) != scale_)
            throw changedElsewhere("print scale", "O alinhamento foi alterado");
        savePrintScale(at_.store(), {key_, scale});
        scale_ = scale;
    });
}

bool PrintCalibration::confirmDiscarding() {
    return at_.person.agrees(discardTyped());
}

bool PrintCalibration::printSheet() {
    if (!at_.person.agrees(kConfirmSheet)) return false;
    const ReportRequest request{.layoutName = std::string(kCalibrationLayout),
                                .title = "Imprimir Folha de Calibração",
                                .columns = {std::string(kCalibrationColumn)},
                                .output = ReportOutput::Printer,
                                .printerName = printing_.printerName,
                                .trays = printing_.trays};
    const ReportRows sheet = {{key_.printer}};
    return printPages({at_, engine_}, request, {1, [&](std::size_t) { return sheet; }}) ==
           PrintEnd::Done;
}

}  // namespace winvrx
