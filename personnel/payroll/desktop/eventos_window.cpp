#include "personnel/payroll/desktop/eventos_window.h"

#include "personnel/payroll/desktop/evento_form.h"
#include "personnel/payroll/eventos.h"

namespace winvrx {

EventosWindow::EventosWindow(Eventos& events, const QString& owner, QWidget* parent)
    : RegisterWindow(events,
                     {.screen = QStringLiteral("eventos"),
                      .title = QStringLiteral("Eventos"),
                      .listTitle = QStringLiteral("Eventos"),
                      .searchHint = QStringLiteral("Pesquisar evento…"),
                      .emptyList = QStringLiteral("Nenhum evento. Restaure a lista padrão (F9)."),
                      .emptyAction = QStringLiteral("Incluir o primeiro"),
                      .headings = {QStringLiteral("Código"), QStringLiteral("Evento"),
                                   QStringLiteral("Tipo"), QStringLiteral("Ref.")},
                      .include = QStringLiteral("Incluir >>"),
                      .change = QStringLiteral("Alterar >>")},
                     parent) {
    assemble(new EventoForm(events, this), nullptr, ListRoom::Wide);
    setChips({owner});
    addCommand({"restore", QStringLiteral("RESTAURAR PADRÃO"), Qt::Key_F9, "eventos.restore",
                [this, &events] { runOnList([&events] { return events.restoreDefault(); }); }});
    openAt(0);
}

}  // namespace winvrx
