#include "output/mirrors/desktop/hours_entry.h"

#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/mirrors/desktop/hours_reports_window.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

namespace {

/// The reports with a spreadsheet of their own.
struct OpenReports {
    OpenReports(const Workplace& at, const HoursEntryDesk& desk)
        : reports(at, {desk.editor, spreadsheet, desk.browser, desk.engine, desk.printers,
                       *desk.rotation}) {}

    XlsxSpreadsheet spreadsheet;
    HoursReports reports;
};

}  // namespace

void openHoursReports(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent) {
    OpenReports open(at, desk);
    HoursReportsWindow(
        open.reports, [&at](QWidget* over) { openWorkMonth(at, over); }, parent)
        .exec();
}

void showHoursSummary(const Workplace& at, const HoursEntryDesk& desk, QWidget* parent) {
    OpenReports open(at, desk);
    open.reports.load();
    Progress progress = hoursProgress(parent);
    (void)open.reports.showOverview(
        [&progress](int done, int total) { return progress.show(done, total); });
}

MenuEntries hoursEntries(const Workplace& at, const HoursEntryDesk& desk) {
    const QString group = QStringLiteral("Cartão de Ponto");
    const auto open = [at, desk](QWidget* parent) { openHoursReports(at, desk, parent); };
    return {
        {.group = group,
         .tile = {"clock", QStringLiteral("Relatório de &Horas"), "menu.hours.open", Qt::Key_F12},
         .needs = MenuNeeds::Employees,
         .open = open,
         .state = [](const MonthProgress*) { return QStringLiteral("Extras, faltas e resumo"); }},
        {.group = group,
         .tile = {"mirror", QStringLiteral("Espelho"), "menu.mirror.open"},
         .needs = MenuNeeds::Employees,
         .open = open,
         .state = [](const MonthProgress*) { return QStringLiteral("Folha para assinar"); }}};
}

}  // namespace winvrx
