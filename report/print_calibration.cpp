#include "report/print_calibration.h"

#include "report/print_pages.h"

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

}  // namespace

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
    at_.person.tell(
        refusal(title_, "Dados incorretos!",
                "A escala vai de 90,00 a 110,00 por cento e o deslocamento de -50,00 a 50,00 mm."));
    return false;
}

bool PrintCalibration::typeDistances(const std::array<std::string, 4>& distances) {
    MeasuredSheet sheet;
    const auto values = hundredthsIn(distances);
    for (std::size_t i = 0; values && i < values->size(); ++i)
        sheet.*kMeasuredDistances[i] = (*values)[i];
    const auto scale = values ? scaleFrom(sheet) : std::nullopt;
    if (scale) return save(*scale);
    at_.person.tell(refusal(title_, "Dados incorretos!",
                            "As distâncias medidas não combinam com a folha de calibração. Meça de "
                            "novo, a partir da borda do papel."));
    return false;
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
    ReportPages one(1, [this](std::size_t) { return ReportRows{{key_.printer}}; });
    return printPages({at_, engine_}, request, one) == PrintEnd::Done;
}

}  // namespace winvrx
