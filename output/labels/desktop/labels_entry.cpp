#include "output/labels/desktop/labels_entry.h"

#include "foundation/register/company_register.h"
#include "foundation/values/desktop/qt_text.h"
#include "output/labels/criar_etiqueta.h"
#include "output/labels/desktop/criar_etiqueta_window.h"
#include "output/labels/desktop/estoque_window.h"
#include "output/labels/desktop/etiquetas_window.h"
#include "report/desktop/calibration_window.h"
#include "report/desktop/impressorar_window.h"
#include "report/impressorar.h"
#include "report/print_calibration.h"

namespace winvrx {

namespace {

void openTexts(const Workplace& at, QWidget* parent) {
    if (!at.session.company) return at.person.tell(noCompany(at));
    CriarEtiqueta texts(at);
    CriarEtiquetaWindow(texts, parent).exec();
}

void openCalibration(const Workplace& at, const CardPrintingDesk& desk, Etiquetas& labels,
                     QWidget* parent) {
    PrintCalibration calibration(at, desk.engine, "Ajuste de Impressão");
    if (!attempt(at, incorrectData(), [&] {
            calibration.load(labels.scaleKey(), {.printerName = labels.printerName()});
        }))
        return;
    CalibrationWindow(calibration, toQt(labels.sheet().name), QStringLiteral("nesta folha"), parent)
        .exec();
}

void openLabels(const Workplace& at, const CardPrintingDesk& desk, QWidget* parent) {
    Etiquetas labels(at, {desk.browser, desk.engine, desk.printers}, kMenuLabelSheet);
    const EtiquetasWindowDesk screens{
        .openTexts = [&](QWidget* over) { openTexts(at, over); },
        .openPrinters =
            [&](QWidget* over) {
                Impressorar printers(at, desk.printers);
                ImpressorarWindow(printers, over).exec();
            },
        .openCalibration = [&](QWidget* over) { openCalibration(at, desk, labels, over); },
        .openStock = [&](QWidget* over) { EstoqueWindow(labels, over).exec(); }};
    EtiquetasWindow(labels, screens, parent).exec();
}

}  // namespace

MenuEntry labelsEntry(const Workplace& at, const CardPrintingDesk& desk) {
    return {.group = QStringLiteral("Ferramentas"),
            .tile = {"labels", QStringLiteral("Eti&quetas"), "menu.labels.open"},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openLabels(at, desk, parent); },
            .state = [](const MonthProgress*) { return QStringLiteral("CTPS e endereços"); }};
}

}  // namespace winvrx
