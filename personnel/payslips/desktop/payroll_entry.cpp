#include "personnel/payslips/desktop/payroll_entry.h"

#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/progress.h"
#include "personnel/payroll/desktop/eventos_window.h"
#include "personnel/payroll/desktop/folha_visao_window.h"
#include "personnel/payroll/desktop/folha_window.h"
#include "personnel/payroll/eventos.h"
#include "personnel/payroll/payroll_overview.h"
#include "personnel/payslips/folha_papers.h"
#include "personnel/payslips/run_receipt.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

namespace {

void openEvents(const Workplace& at, const FolhaScreen& screen, bool own, QWidget* parent) {
    const Employee* one = own ? screen.selected() : nullptr;
    const Company& company = screen.company();
    Eventos events(at, screen.overtime(), one ? one->employeeCode() : std::nullopt);
    EventosWindow(events,
                  one ? toQt(one->code + " " + one->name) : toQt(company.code + " " + company.name),
                  parent)
        .exec();
}

void openOverview(const Workplace& at, const FolhaScreen& screen, FolhaWindow& window) {
    XlsxSpreadsheet spreadsheet;
    FolhaVisao view(at, screen, spreadsheet);
    {
        Progress progress({.objectName = QStringLiteral("visao.progress"),
                           .title = QStringLiteral("Visão do Mês"),
                           .step = QStringLiteral("Funcionário %1 de %2")},
                          &window);
        if (!view.load([&](int done, int total) { return progress.show(done, total); })) return;
    }
    const Company& company = screen.company();
    FolhaVisaoWindow shown(
        view,
        {toQt(company.code + " " + company.name), toQt(monthTitle(screen.folha().month().month))},
        &window);
    shown.exec();
    if (shown.chosen()) window.turnTo(*shown.chosen());
}

void print(FolhaPapers& papers, FolhaPaper paper, QWidget* over) {
    Progress shown({.objectName = QStringLiteral("folha.printing"),
                    .title = QStringLiteral("IMPRIMINDO"),
                    .step = QStringLiteral("Folha %1 de %2")},
                   over);
    const PageProgress progress = [&](int done, int total) { return shown.show(done, total); };
    switch (paper) {
        case FolhaPaper::Payroll:
            return (void)papers.printPayroll(progress);
        case FolhaPaper::PaySlips:
            return (void)papers.printSlips(progress);
        case FolhaPaper::Receipt:
        case FolhaPaper::ReceiptWithMemos:
            return (void)papers.showReceipt(paper == FolhaPaper::ReceiptWithMemos);
        case FolhaPaper::Advance:
            return (void)papers.showAdvance();
    }
}

/// What the window asks to be opened beside it. After each the screen is read again.
void connectDoors(FolhaWindow& window, FolhaScreen& screen, const Workplace& at,
                  const PayrollDesk& desk) {
    const auto comeBack = [&] {
        (void)screen.open();
        window.refresh();
    };
    const auto open = [&window, comeBack](auto signal, auto door) {
        QObject::connect(&window, signal, &window, [door, comeBack] {
            door();
            comeBack();
        });
    };
    const auto inHand = [&] {
        const Employee* one = screen.selected();
        return one ? one->employeeCode() : std::nullopt;
    };
    open(&FolhaWindow::monthRequested, [&] { openWorkMonth(at, &window); });
    open(&FolhaWindow::timeCardRequested, [&, inHand] { desk.openTimeCard(&window, inHand()); });
    open(&FolhaWindow::optionsRequested, [&] { desk.openOptions(&window); });
    open(&FolhaWindow::factsRequested, [&, inHand] { desk.openFacts(&window, inHand()); });
    QObject::connect(&window, &FolhaWindow::eventsRequested, &window, [&, comeBack](bool own) {
        openEvents(at, screen, own, &window);
        comeBack();
    });
    QObject::connect(&window, &FolhaWindow::overviewRequested, &window,
                     [&] { openOverview(at, screen, window); });
}

}  // namespace

void openPayroll(const Workplace& at, const PayrollDesk& desk, QWidget* parent) {
    QWidget* front = parent;
    FolhaScreen screen(at, desk.legalFolder, {[&](const Employee& one) {
                           desk.openVacations(front, one.employeeCode());
                       }});
    (void)screen.open();
    FolhaWindow window(screen, parent);
    front = &window;
    connectDoors(window, screen, at, desk);
    FolhaPapers papers(at, {desk.engine, desk.papers.writer}, screen);
    QObject::connect(&window, &FolhaWindow::paperRequested, &window, [&](FolhaPaper paper) {
        // A vacation's and a 13th's have words of their own.
        if (paper == FolhaPaper::Receipt && screen.folha().run() != PayrollRun::Month)
            (void)showRunReceipt(at, desk.papers, screen.folha().shown());
        else
            print(papers, paper, &window);
    });
    window.exec();
}

MenuEntry payrollEntry(const Workplace& at, const PayrollDesk& desk) {
    return {.group = QStringLiteral("Pessoal"),
            .tile = {"payroll", QStringLiteral("Folha de &Pagamento"), "menu.payroll.open",
                     Qt::CTRL | Qt::Key_P},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openPayroll(at, desk, parent); },
            .state = [](const MonthProgress*) { return QStringLiteral("Salário e recibos"); }};
}

}  // namespace winvrx
