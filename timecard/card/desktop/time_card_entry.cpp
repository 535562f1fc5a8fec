#include "timecard/card/desktop/time_card_entry.h"

#include "foundation/register/employee_queries.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/card/desktop/cartao_ponto_dados_window.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

namespace {

void openTimeCard(const Workplace& at, const RotationCalendar& rotation,
                  const LeavesOpener& openLeaves, const RotationOpener& openRotation,
                  const MirrorOpener& openMirrors, QWidget* parent) {
    const RecordedAnswers records(at.store());
    CartaoPontoDados card(at, {rotation, records});
    (void)card.open();
    CartaoPontoDadosWindow window(card, parent);
    const auto comeBack = [&] {
        (void)card.open();
        window.refresh();
    };
    QObject::connect(&window, &CartaoPontoDadosWindow::monthSettingsRequested, &window, [&] {
        openWorkMonth(at, &window);
        comeBack();
    });
    QObject::connect(&window, &CartaoPontoDadosWindow::leavesRequested, &window, [&] {
        const Employee* inHand = card.selected();
        openLeaves(at, &window, inHand ? inHand->employeeCode() : std::nullopt);
        comeBack();
    });
    QObject::connect(&window, &CartaoPontoDadosWindow::rotationRequested, &window, [&] {
        openRotation(&window);
        comeBack();
    });
    QObject::connect(&window, &CartaoPontoDadosWindow::mirrorRequested, &window, [&] {
        openMirrors(&window);
        comeBack();
    });
    window.exec();
}

}  // namespace

MenuEntry timeCardEntry(const Workplace& at, std::shared_ptr<const RotationCalendar> rotation,
                        LeavesOpener openLeaves, RotationOpener openRotation,
                        MirrorOpener openMirrors) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .objectName = QStringLiteral("menu.timecard.open"),
            .icon = QStringLiteral("card"),
            .title = QStringLiteral("&Dados"),
            .key = Qt::Key_F5,
            .needs = MenuNeeds::Employees,
            .open =
                [at, rotation, openLeaves, openRotation, openMirrors](QWidget* parent) {
                    openTimeCard(at, *rotation, openLeaves, openRotation, openMirrors, parent);
                },
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
