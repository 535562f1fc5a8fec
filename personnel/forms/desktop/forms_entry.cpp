#include "personnel/forms/desktop/forms_entry.h"

#include "personnel/forms/desktop/relatorios_window.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

MenuEntry formsEntry(const Workplace& at, ReportEngine& engine) {
    return {
        .group = QStringLiteral("Pessoal"),
        .objectName = QStringLiteral("menu.forms.open"),
        .icon = QStringLiteral("forms"),
        .title = QStringLiteral("Relatórios"),
        .key = Qt::CTRL | Qt::Key_R,
        .needs = MenuNeeds::Company,
        .open =
            [at, &engine](QWidget* parent) {
                Relatorios reports(at, engine);
                RelatoriosWindow(
                    reports, [&at](QWidget* over) { openWorkMonth(at, over); }, parent)
                    .exec();
            },
        .state = [](const MonthProgress*) { return QStringLiteral("Avisos, recibos e fichas"); }};
}

}  // namespace winvrx
