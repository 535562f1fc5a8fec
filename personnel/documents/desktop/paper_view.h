#pragma once

#include "foundation/desk/word_processor.h"

#include <QString>

namespace winvrx {

/// The document as it reads, for a text browser: every text, table and line to sign on, without the
/// sheet's exact measures.
[[nodiscard]] QString htmlOf(const Document& document);

}  // namespace winvrx
