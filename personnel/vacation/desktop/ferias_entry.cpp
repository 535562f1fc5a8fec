#include "personnel/vacation/desktop/ferias_entry.h"

#include "foundation/register/employee_queries.h"
#include "foundation/values/desktop/qt_text.h"
#include "personnel/vacation/desktop/ferias_window.h"
#include "personnel/vacation/due_vacations.h"
#include "personnel/vacation/ferias.h"
#include "timecard/month/desktop/month_entry.h"

#include <memory>

namespace winvrx {

namespace {

QString stateOf(const Workplace& at, DueState& due) {
    if (!at.session.company) return QStringLiteral("Períodos e vencimentos");
    try {
        return toQt(due.text(at.store(), *at.session.company, at.clock.today()));
    } catch (const std::exception& fault) {
        at.log.write(std::string("due vacations not looked up: ") + fault.what());
        return QStringLiteral("Períodos e vencimentos");
    }
}

}  // namespace

void openVacations(const Workplace& at, const FeriasEntryDesk& desk, QWidget* parent,
                   const std::optional<EmployeeCode>& inHand) {
    const RecordedAnswers records(at.store());
    Ferias vacations(at, {records, desk.netPaid});
    if (vacations.open() && inHand) (void)vacations.select(*inHand);
    FeriasWindow window(vacations, parent);
    QObject::connect(&window, &FeriasWindow::monthRequested, &window, [&] {
        openWorkMonth(at, &window);
        (void)vacations.open();
        window.refresh();
    });
    QObject::connect(&window, &FeriasWindow::noticeRequested, &window, [&] {
        const PeriodRow* row = vacations.chosenRow();
        (void)printVacationNotice(at, desk.papers, vacations.selected(),
                                  row ? vacations.itemOf(*row) : nullptr);
    });
    QObject::connect(&window, &FeriasWindow::provisionsRequested, &window, [&] {
        if (vacations.month()) desk.showProvisions(*vacations.month());
    });
    window.exec();
}

MenuEntry vacationsEntry(const Workplace& at, const FeriasEntryDesk& desk) {
    return {.group = QStringLiteral("Pessoal"),
            .tile = {"leave", QStringLiteral("Féria&s"), "menu.vacations.open"},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openVacations(at, desk, parent); },
            .state = [at, due = std::make_shared<DueState>()](
                         const MonthProgress*) { return stateOf(at, *due); }};
}

}  // namespace winvrx
