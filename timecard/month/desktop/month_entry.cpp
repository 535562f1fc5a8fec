#include "timecard/month/desktop/month_entry.h"

#include "foundation/values/desktop/qt_text.h"
#include "timecard/month/data_mes_corrente.h"
#include "timecard/month/desktop/data_mes_corrente_window.h"
#include "timecard/month/desktop/feriados_window.h"
#include "timecard/month/feriados.h"

namespace winvrx {

void openWorkMonth(const Workplace& at, QWidget* parent) {
    DataMesCorrente month(at);
    month.open();
    DataMesCorrenteWindow window(month, parent);
    QObject::connect(&window, &DataMesCorrenteWindow::localHolidaysRequested, &window, [&] {
        Feriados holidays(at);
        FeriadosWindow(holidays, &window).exec();
        window.refreshHolidays();
    });
    window.exec();
}

MenuEntry monthEntry(const Workplace& at) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .tile = {"month", QStringLiteral("&Mês"), "menu.month.open", Qt::Key_F4},
            .needs = MenuNeeds::Company,
            .open = [at](QWidget* parent) { openWorkMonth(at, parent); },
            .state =
                [](const MonthProgress* progress) {
                    return progress && progress->month ? toQt(monthTitle(*progress->month))
                                                       : QStringLiteral("Escolher o mês");
                },
            .step = MonthStep::ChooseMonth};
}

}  // namespace winvrx
