#pragma once

#include <QString>

class QWidget;

namespace winvrx {

/// What a screen reader could not tell of a window: inputs without a name or without a size, and
/// list rows too low for their text or lying on each other; also a window larger than its screen.
/// One line each; empty when all is well.
[[nodiscard]] QString untold(const QWidget& window);

}  // namespace winvrx
