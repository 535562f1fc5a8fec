#include "personnel/contract/desktop/contract_entry.h"

#include "foundation/values/desktop/qt_text.h"
#include "personnel/contract/desktop/contrato_trabalho_window.h"

namespace winvrx {

namespace {

void openContracts(const Workplace& at, const ContractDesk& desk, const OpenLetters& openLetters,
                   QWidget* parent) {
    ContratoTrabalho contracts(at, desk);
    (void)contracts.load();
    ContratoTrabalhoWindow window(contracts, parent);
    QObject::connect(&window, &ContratoTrabalhoWindow::correctionLetterRequested, &window,
                     [&] { openLetters(&window); });
    window.exec();
}

/// The trials that end soon; without the files to tell them, what the screen is for.
QString stateLine(const Workplace& at) {
    std::string ending;
    try {
        if (at.session.company)
            ending = endingTrialsText(at.store(), *at.session.company, at.clock.today());
    } catch (const std::exception& fault) {
        at.log.write(std::string("ending trials: ") + fault.what());
    }
    return ending.empty() ? QStringLiteral("Carteira, experiência, texto") : toQt(ending);
}

}  // namespace

MenuEntry contractEntry(const Workplace& at, const ContractDesk& desk,
                        const OpenLetters& openLetters) {
    return {.group = QStringLiteral("Pessoal"),
            .objectName = QStringLiteral("menu.contract.open"),
            .icon = QStringLiteral("contract"),
            .title = QStringLiteral("Contrato"),
            .needs = MenuNeeds::Employees,
            .open = [at, desk, openLetters](
                        QWidget* parent) { openContracts(at, desk, openLetters, parent); },
            .state = [at](const MonthProgress*) { return stateLine(at); }};
}

}  // namespace winvrx
