#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/desktop/menu_entry.h"
#include "personnel/documents/desktop/documentos_window.h"
#include "personnel/documents/documentos.h"

#include <vector>

namespace winvrx {

/// The documents' command of the main window. `neighbours` are the screens that theirs opens.
[[nodiscard]] MenuEntry documentsEntry(
    const Workplace& at, const DocumentsDesk& desk,
    const std::vector<DocumentosWindow::Neighbour>& neighbours = {});

}  // namespace winvrx
