#include "personnel/leaves/desktop/leaves_entry.h"

#include "foundation/register/employee_queries.h"
#include "foundation/register/leave_record.h"
#include "personnel/leaves/absence_report.h"
#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/desktop/afastamento_window.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

void openLeaves(const Workplace& at, const LeavesDesk& desk, QWidget* parent,
                const std::optional<EmployeeCode>& inHand) {
    const RecordedAnswers records(at.store());
    Afastamento leaves(at, records);
    if (leaves.open() && inHand) (void)leaves.select(*inHand);
    AfastamentoWindow window(leaves, parent);
    QObject::connect(&window, &AfastamentoWindow::monthRequested, &window, [&] {
        openWorkMonth(at, &window);
        (void)leaves.open();
        window.refresh();
    });
    QObject::connect(&window, &AfastamentoWindow::absencesRequested, &window, [&](bool asText) {
        if (!leaves.month())
            (void)leaves.open();
        else if (asText)
            (void)showAbsences(at, desk.editor, *leaves.month());
        else
            (void)previewAbsences({at, desk.engine}, *leaves.month());
    });
    QObject::connect(&window, &AfastamentoWindow::terminationRequested, &window, [&] {
        if (const Employee* one = leaves.selected())
            desk.openTermination(&window, *one);
        else
            at.person.tell(noEmployeeSelected());
    });
    window.exec();
}

MenuEntry leavesEntry(const Workplace& at, const LeavesDesk& desk) {
    return {.group = QStringLiteral("Pessoal"),
            .objectName = QStringLiteral("menu.leaves.open"),
            .icon = QStringLiteral("leave"),
            .title = QStringLiteral("Afastame&ntos"),
            .key = Qt::Key_F10,
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openLeaves(at, desk, parent); },
            .state =
                [](const MonthProgress*) { return QStringLiteral("Férias, atestados, rescisão"); }};
}

}  // namespace winvrx
