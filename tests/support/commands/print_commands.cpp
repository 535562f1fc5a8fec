// What the screens of alignment, printers and printing write.
#include "output/cards/cartao.h"
#include "output/labels/criar_etiqueta.h"
#include "output/mirrors/hours_reports.h"
#include "output/stocks/cartao_pontos.h"
#include "report/impressorar.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/hours_office.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_punch_desk.h"

namespace winvrx::testing {

namespace {

template <typename Give>
auto inAlignment(Give give) {
    return [give](const Workplace& at, const Drives&) {
        RecordingEngine engine;
        const TestPrinters printers;
        AlignmentMemory memory;
        CartaoPontos screen(at, {engine, printers, memory});
        screen.load();
        return give(screen);
    };
}

bool choosePrinter(const Workplace& at, const Drives&) {
    TestPrinters printers;
    Impressorar screen(at, printers);
    screen.load();
    return screen.chosen() == "Epson" && screen.use(0);
}

bool rememberChoices(const Workplace& at, const Drives&) {
    RecordingEngine engine;
    const TestPrinters printers;
    const AlignmentMemory memory;
    TestBrowser browser;
    Cartao screen(at, {browser, engine, printers}, memory);
    screen.load();
    screen.choices().printer.exit = SheetExit::FaceUp;
    screen.choices().printer.trays[0] = "Manual";
    return screen.list().employees().size() == 3 && screen.remember();
}

template <typename Give>
auto inHoursReports(Give give) {
    return [give](const Workplace& at, const Drives&) {
        TestEditor editor;
        TestSpreadsheet spreadsheet;
        TestBrowser browser;
        RecordingEngine engine;
        const TestPrinters printers;
        const TestRotation rotation;
        HoursReports screen(at, {editor, spreadsheet, browser, engine, printers, rotation});
        screen.load();
        return give(screen);
    };
}

template <typename Give>
auto inLabels(Give give) {
    return [give](const Workplace& at, const Drives&) {
        CriarEtiqueta screen(at);
        screen.load();
        return give(screen);
    };
}

/// A catalogue of two texts, and the one of three that it was before.
FileTable officeWithLabels() {
    FileTable files = filledOffice();
    const std::string two = encode(LabelText{"01", "UM", "01  um "}) + "\r\n" +
                            encode(LabelText{"02", "DOIS", "02"}) + "\r\n";
    files[inDataFolder("01confgctps")] = two;
    files[inDataFolder("01confgctpsBB")] = two + "nota\r\n";
    return files;
}

FileTable officeWithAPrinter() {
    FileTable files = filledOffice();
    files[inDataFolder("Config")] = "30         50\r\n";
    files[inDataFolder("ConfigX")] = "Epson\r\n";
    files[inDataFolder("EscalaImpressao")] = "junk\r\n";
    files[inDataFolder("01ImpressoraTipo")] = "Baixo\r\n";
    files[inDataFolder("01Impresstec")] = "Central\r\n";
    return files;
}

}  // namespace

std::vector<WritingCommand> printCommands() {
    return {
        {"move alignment", officeWithAPrinter(), inAlignment([](CartaoPontos& screen) {
             return screen.offsets().vertical == 30 && screen.move(Direction::Down);
         })},
        {"reset alignment", officeWithAPrinter(),
         inAlignment([](CartaoPontos& screen) { return screen.reset(); })},
        {"type scale", officeWithAPrinter(), inAlignment([](CartaoPontos& screen) {
             return screen.stock().code == "05" &&
                    screen.calibration().type({"99", "101", "1", "-1"});
         })},
        {"choose printer", officeWithAPrinter(), choosePrinter},
        {"remember printing", officeWithAPrinter(), rememberChoices},
        {"include the first label", filledOffice(), inLabels([](CriarEtiqueta& screen) {
             return screen.include({"09", "NOVA", "09 texto"});
         })},
        {"change label", officeWithLabels(), inLabels([](CriarEtiqueta& screen) {
             return screen.change(1, {"02", "DOIS", "  02"});
         })},
        {"delete label", officeWithLabels(),
         inLabels([](CriarEtiqueta& screen) { return screen.remove(0); })},
        {"undo labels", officeWithLabels(),
         inLabels([](CriarEtiqueta& screen) { return screen.undo(); })},
        {"report hours",
         filledOffice(),
         inHoursReports([](HoursReports& screen) { return screen.report(); }),
         {"Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ? Se Desejar em Excel Clique em "
          "SIM"}},
        {"report hours in a workbook", filledOffice(),
         inHoursReports([](HoursReports& screen) { return screen.report(); })},
        {"show a mirror as text", filledOffice(),
         inHoursReports([](HoursReports& screen) { return screen.showMirrorText(1); })},
    };
}

}  // namespace winvrx::testing
