#pragma once

#include "foundation/desk/word_processor.h"

#include <QByteArray>

namespace winvrx {

/// The document as OpenDocument text in one XML file (".fodt"): A4, margins of 20 mm, Liberation
/// Sans, in Portuguese.
[[nodiscard]] QByteArray openDocument(const Document& document);

}  // namespace winvrx
