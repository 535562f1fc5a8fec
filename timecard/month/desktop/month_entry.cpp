#include "timecard/month/desktop/month_entry.h"

#include "foundation/values/desktop/qt_text.h"
#include "timecard/month/data_mes_corrente.h"
#include "timecard/month/desktop/data_mes_corrente_window.h"
#include "timecard/month/desktop/feriados_window.h"
#include "timecard/month/feriados.h"

namespace winvrx {

void openWorkMonth(const Workplace& at, Browser& browser, QWidget* parent) {
    DataMesCorrente month(at);
    month.open();
    DataMesCorrenteWindow window(month, parent);
    QObject::connect(&window, &DataMesCorrenteWindow::localHolidaysRequested, &window, [&] {
        Feriados holidays(at, browser);
        FeriadosWindow(holidays, &window).exec();
        window.refreshHolidays();
    });
    QObject::connect(&window, &ScreenWindow::helpRequested, &window,
                     [&] { openHelp(at, browser); });
    window.exec();
}

MenuEntry monthEntry(const Workplace& at, Browser& browser) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .objectName = QStringLiteral("menu.month.open"),
            .icon = QStringLiteral("month"),
            .title = QStringLiteral("&Mês"),
            .key = Qt::Key_F4,
            .needs = MenuNeeds::Company,
            .open = [at, &browser](QWidget* parent) { openWorkMonth(at, browser, parent); },
            .state =
                [](const MonthProgress* progress) {
                    return progress && progress->month ? toQt(monthTitle(*progress->month))
                                                       : QStringLiteral("Escolher o mês");
                },
            .step = MonthStep::ChooseMonth};
}

}  // namespace winvrx
