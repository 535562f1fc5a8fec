#include "timecard/card/desktop/card_status.h"

#include "foundation/values/desktop/qt_text.h"
#include "timecard/card/desktop/punch_grid.h"
#include "timecard/card/typing_order.h"

#include <QApplication>

namespace winvrx {

namespace {

const QString kWayIn = QStringLiteral("ENTER: horas do dia");
const QString kWayToApply = QStringLiteral(" · Ctrl+F9: aplicar e ir ao próximo");
const QString kWayOn =
    QStringLiteral("%1: próxima hora · Home: primeira · End: situação · Ctrl+F: funcionários");

QString stateOf(const CartaoPontoDados& card) {
    if (!card.selected()) return {};
    if (card.closed())
        return QStringLiteral("Folha Fechada: o ponto deste mês não pode ser alterado");
    if (card.changed()) return QStringLiteral("Alterações não gravadas");
    return card.applied() ? QStringLiteral("Ponto gravado")
                          : QStringLiteral("Ponto ainda não aplicado neste mês");
}

/// Of the day typed last, which the cursor has left.
QString doubtLeftBehind(const CartaoPontoDados& card) {
    const auto day = card.sheet().lastEditedDay();
    const std::string doubt = day ? card.days().doubtAt(*day) : std::string();
    return doubt.empty() ? QString() : toQt("⚠ " + card.sheet().line(*day).label + ": " + doubt);
}

QString wayFrom(const CartaoPontoDados& card, const PunchGrid& grid, bool inGrid,
                bool inEmployees) {
    if (card.closed()) return {};
    if (card.sheet().changed() && countsOnlyExtra(card))
        return QStringLiteral("Sem horário padrão, as horas digitadas contam como extras");
    if (inEmployees) return card.applied() ? kWayIn : kWayIn + kWayToApply;
    if (inGrid)
        return kWayOn.arg(grid.nextCellKey() == Qt::Key_Tab ? QStringLiteral("TAB")
                                                            : QStringLiteral("ENTER"));
    return {};
}

}  // namespace

QString cardStatus(const CartaoPontoDados& card, const PunchGrid& grid, bool inEmployees) {
    const PunchModel& model = *grid.punches();
    const QModelIndex at = grid.currentIndex();
    QString notice = model.noticeAt(at);
    if (notice.isEmpty()) notice = model.doubtAt(at);
    if (!notice.isEmpty()) return QStringLiteral("⚠ ") + notice;
    if (!card.sheet().note().empty()) return toQt(card.sheet().note());
    if (const QString doubt = doubtLeftBehind(card); !doubt.isEmpty()) return doubt;
    const bool inGrid = grid.hasFocus() || grid.isAncestorOf(QApplication::focusWidget());
    if (const QString standing = model.standingAt(at); inGrid && !standing.isEmpty())
        return standing;
    const QString state = stateOf(card);
    const QString way = wayFrom(card, grid, inGrid, inEmployees);
    return state.isEmpty() || way.isEmpty() ? state : state + QStringLiteral("  ·  ") + way;
}

}  // namespace winvrx
