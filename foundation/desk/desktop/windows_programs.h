#pragma once

#include <QString>

namespace winvrx {

/// LibreOffice's command, of which its set-up tells Windows but not the search path: where it is
/// registered, beside the program that opens its documents, or in its usual folder. Empty when
/// there is none.
[[nodiscard]] QString registeredLibreOffice();

/// The program that opens files of this suffix, such as ".fodt". Empty when there is none.
[[nodiscard]] QString programOf(const QString& suffix);

}  // namespace winvrx
