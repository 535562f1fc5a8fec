#include "foundation/copies/desktop/restore_entry.h"

#include "foundation/copies/desktop/restaurar_copia_window.h"
#include "foundation/copies/restaurar_copia.h"

namespace winvrx {

MenuEntry restoreEntry(const Workplace& at, SafetyCopies& copies) {
    return {
        .group = QStringLiteral("Ferramentas"),
        .tile = {"restore", QStringLiteral("&Restaurar Cópia"), "menu.restore.open", Qt::Key_F8},
        .open =
            [at, &copies](QWidget* parent) {
                RestaurarCopia screen(at, copies);
                RestaurarCopiaWindow(screen, parent).exec();
            },
        .state = [](const MonthProgress*) { return QStringLiteral("Voltar a um dia anterior"); }};
}

}  // namespace winvrx
