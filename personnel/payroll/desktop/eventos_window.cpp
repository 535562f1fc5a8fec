#include "personnel/payroll/desktop/eventos_window.h"

#include "personnel/payroll/desktop/evento_form.h"
#include "personnel/payroll/eventos.h"

#include <QToolButton>

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
    QToolButton* restore = addCommand(QStringLiteral("restore"), QStringLiteral("RESTAURAR PADRÃO"),
                                      Qt::Key_F9, QStringLiteral("eventos.restore"));
    connect(restore, &QToolButton::clicked, this,
            [this, &events] { runOnList([&events] { return events.restoreDefault(); }); });
    openAt(0);
}

}  // namespace winvrx
