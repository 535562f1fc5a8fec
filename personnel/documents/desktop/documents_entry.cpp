#include "personnel/documents/desktop/documents_entry.h"

namespace winvrx {

MenuEntry documentsEntry(const Workplace& at, const DocumentsDesk& desk,
                         const std::vector<DocumentosWindow::Neighbour>& neighbours) {
    return {
        .group = QStringLiteral("Pessoal"),
        .objectName = QStringLiteral("menu.documents.open"),
        .icon = QStringLiteral("documents"),
        .title = QStringLiteral("D&ocumentos"),
        .needs = MenuNeeds::Employees,
        .open =
            [at, desk, neighbours](QWidget* parent) {
                Documentos screen(at, desk);
                DocumentosWindow(screen, neighbours, parent).exec();
            },
        .state = [](const MonthProgress*) { return QStringLiteral("Acordos, avisos e recibos"); }};
}

}  // namespace winvrx
