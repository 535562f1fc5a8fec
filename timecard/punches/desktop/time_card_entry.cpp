#include "timecard/punches/desktop/time_card_entry.h"

#include "foundation/register/employee_queries.h"
#include "timecard/month/desktop/month_entry.h"
#include "timecard/punches/cartao_ponto_dados.h"
#include "timecard/punches/desktop/cartao_ponto_dados_window.h"

namespace winvrx {

namespace {

void openTimeCard(const Workplace& at, const RotationCalendar& rotation, QWidget* parent) {
    const RecordedAnswers records(at.store());
    CartaoPontoDados card(at, {rotation, records});
    (void)card.open();
    CartaoPontoDadosWindow window(card, parent);
    QObject::connect(&window, &CartaoPontoDadosWindow::monthSettingsRequested, &window, [&] {
        openWorkMonth(at, &window);
        (void)card.open();
        window.refresh();
    });
    window.exec();
}

}  // namespace

MenuEntry timeCardEntry(const Workplace& at, std::shared_ptr<const RotationCalendar> rotation) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .objectName = QStringLiteral("menu.timecard.open"),
            .icon = QStringLiteral("card"),
            .title = QStringLiteral("&Dados"),
            .key = Qt::Key_F5,
            .needs = MenuNeeds::Employees,
            .open = [at, rotation](QWidget* parent) { openTimeCard(at, *rotation, parent); },
            .state =
                [](const MonthProgress* progress) {
                    return progress && progress->month ? QStringLiteral("%1 de %2 preenchidos")
                                                             .arg(progress->filledCards)
                                                             .arg(progress->employees)
                                                       : QStringLiteral("Falta o mês de trabalho");
                },
            .step = MonthStep::FillCards};
}

}  // namespace winvrx
