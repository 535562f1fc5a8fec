#include "personnel/employer/desktop/employer_entry.h"

#include "foundation/register/company_register.h"
#include "foundation/values/desktop/qt_text.h"
#include "personnel/employer/agencies.h"
#include "personnel/employer/desktop/folha_dados_window.h"
#include "personnel/employer/desktop/folha_opcoes_window.h"
#include "personnel/employer/desktop/guia_window.h"
#include "personnel/employer/desktop/tabelas_legais_window.h"

namespace winvrx {

void openLegalTables(const Workplace& at, const std::filesystem::path& legalFolder,
                     QWidget* parent) {
    TabelasLegais tables(at, legalFolder);
    if (tables.load()) TabelasLegaisWindow(tables, parent).exec();
}

void openPayrollFacts(const Workplace& at, const EmployerDesk& desk, QWidget* parent,
                      const std::optional<EmployeeCode>& inHand) {
    FolhaDados facts(at);
    FolhaDadosWindow window(facts, inHand, parent);
    QObject::connect(&window, &FolhaDadosWindow::terminationRequested, &window,
                     [&](const Employee& employee) { desk.openTermination(&window, employee); });
    window.exec();
}

void openDomesticGuide(const Workplace& at, const EmployerDesk& desk, QWidget* parent) {
    DomesticMonth month(at, desk.legalFolder);
    if (!month.load()) return;
    GuiaWindow window(month, parent);
    QObject::connect(&window, &GuiaWindow::pageRequested, &window,
                     [&] { (void)month.preview(desk.engine); });
    window.exec();
}

void openPayrollOptions(const Workplace& at, const EmployerDesk& desk, QWidget* parent) {
    FolhaOpcoes options(at);
    const CompanyCode& code = at.session.company.value();
    const auto company = findCompany(at.store(), code);
    FolhaOpcoesWindow window(
        options, toQt(code.text() + " " + (company ? company->name : std::string())), parent);
    using Window = FolhaOpcoesWindow;
    QObject::connect(&window, &Window::tablesRequested, &window,
                     [&] { openLegalTables(at, desk.legalFolder, &window); });
    QObject::connect(&window, &Window::factsRequested, &window,
                     [&] { openPayrollFacts(at, desk, &window); });
    QObject::connect(&window, &Window::guideRequested, &window,
                     [&] { openDomesticGuide(at, desk, &window); });
    QObject::connect(&window, &Window::agencyRequested, &window, [&](std::size_t page) {
        (void)openAgencyPage(at, desk.browser, kAgencyPages.at(page));
    });
    window.exec();
}

MenuEntries employerEntries(const Workplace& at, const EmployerDesk& desk) {
    const QString group = QStringLiteral("Pessoal");
    return {{.group = group,
             .tile = {"apply", QStringLiteral("Opções da Folha"), "menu.options.open"},
             .needs = MenuNeeds::Company,
             .open = [at, desk](QWidget* parent) { openPayrollOptions(at, desk, parent); },
             .state = [](const MonthProgress*) { return QStringLiteral("Dados, guia e órgãos"); }},
            {.group = group,
             .tile = {"sort", QStringLiteral("Tabelas Legais"), "menu.tables.open"},
             .open = [at, folder = desk.legalFolder](
                         QWidget* parent) { openLegalTables(at, folder, parent); },
             .state = [](const MonthProgress*) { return QStringLiteral("INSS, IRRF, mínimo"); }}};
}

}  // namespace winvrx
