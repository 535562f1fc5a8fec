#include "timecard/card/desktop/time_card_entry.h"

#include "foundation/register/employee_queries.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/card/desktop/cartao_ponto_dados_window.h"
#include "timecard/month/desktop/month_entry.h"

namespace winvrx {

namespace {

/// Shows the card of the one in hand, whatever the list is narrowed to.
void turnTo(CartaoPontoDados& card, const EmployeeCode& inHand) {
    if (!card.list().positionOf(inHand.text())) (void)card.filterBy(ShiftFilter::Todos);
    if (const auto position = card.list().positionOf(inHand.text())) (void)card.select(*position);
}

}  // namespace

void openTimeCard(const Workplace& at, const TimeCardDesk& desk, QWidget* parent,
                  const std::optional<EmployeeCode>& inHand) {
    const RecordedAnswers records(at.store());
    CartaoPontoDados card(at, {*desk.rotation, records});
    if (card.open() && inHand) turnTo(card, *inHand);
    CartaoPontoDadosWindow window(card, parent);
    using Window = CartaoPontoDadosWindow;
    const auto lead = [&](void (Window::*requested)(), const std::function<void()>& open) {
        QObject::connect(&window, requested, &window, [&card, &window, open] {
            open();
            (void)card.open();
            window.refresh();
        });
    };
    lead(&Window::monthSettingsRequested, [&] { openWorkMonth(at, &window); });
    lead(&Window::leavesRequested, [&] {
        const Employee* one = card.selected();
        desk.openLeaves(at, &window, one ? one->employeeCode() : std::nullopt);
    });
    lead(&Window::rotationRequested, [&] { desk.openRotation(&window); });
    lead(&Window::mirrorRequested, [&] { desk.openMirrors(&window); });
    QObject::connect(&window, &Window::summaryRequested, &window,
                     [&] { desk.openSummary(&window); });
    window.exec();
}

MenuEntry timeCardEntry(const Workplace& at, const TimeCardDesk& desk) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .tile = {"card", QStringLiteral("&Dados"), "menu.timecard.open", Qt::Key_F5},
            .needs = MenuNeeds::Employees,
            .open = [at, desk](QWidget* parent) { openTimeCard(at, desk, parent); },
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
