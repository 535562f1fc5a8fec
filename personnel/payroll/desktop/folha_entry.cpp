#include "personnel/payroll/desktop/folha_entry.h"

#include "foundation/values/desktop/qt_text.h"
#include "personnel/payroll/desktop/eventos_window.h"
#include "personnel/payroll/desktop/folha_window.h"
#include "personnel/payroll/eventos.h"
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

}  // namespace

void openPayroll(const Workplace& at, const PayrollDesk& desk, QWidget* parent) {
    FolhaScreen screen(at, desk.legalFolder);
    (void)screen.open();
    FolhaWindow window(screen, parent);
    const auto comeBack = [&] {
        (void)screen.open();
        window.refresh();
    };
    QObject::connect(&window, &FolhaWindow::monthRequested, &window, [&] {
        openWorkMonth(at, &window);
        comeBack();
    });
    QObject::connect(&window, &FolhaWindow::timeCardRequested, &window, [&] {
        const Employee* one = screen.selected();
        desk.openTimeCard(&window, one ? one->employeeCode() : std::nullopt);
        comeBack();
    });
    QObject::connect(&window, &FolhaWindow::optionsRequested, &window, [&] {
        desk.openOptions(&window);
        comeBack();
    });
    QObject::connect(&window, &FolhaWindow::factsRequested, &window, [&] {
        const Employee* one = screen.selected();
        desk.openFacts(&window, one ? one->employeeCode() : std::nullopt);
        comeBack();
    });
    QObject::connect(&window, &FolhaWindow::eventsRequested, &window, [&](bool own) {
        openEvents(at, screen, own, &window);
        comeBack();
    });
    window.exec();
}

MenuEntry payrollEntry(const Workplace& at, const PayrollDesk& desk) {
    return {
        .group = QStringLiteral("Pessoal"),
        .objectName = QStringLiteral("menu.payroll.open"),
        .icon = QStringLiteral("payroll"),
        .title = QStringLiteral("Folha de &Pagamento"),
        .key = Qt::CTRL | Qt::Key_P,
        .needs = MenuNeeds::Employees,
        .open = [at, desk](QWidget* parent) { openPayroll(at, desk, parent); },
        .state = [](const MonthProgress*) { return QStringLiteral("Salário, recibos, encargos"); }};
}

}  // namespace winvrx
