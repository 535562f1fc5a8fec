#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "personnel/contract/contrato_trabalho.h"

namespace winvrx {

/// Opens the correction letters of electronic invoices over a window.
using OpenLetters = std::function<void(QWidget* parent)>;

/// The contracts' command of the main window. What `desk` refers to outlives the entry.
[[nodiscard]] MenuEntry contractEntry(const Workplace& at, const ContractDesk& desk,
                                      const OpenLetters& openLetters);

}  // namespace winvrx
