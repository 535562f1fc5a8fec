#pragma once

#include "output/desktop/layout.h"

class QIODevice;

namespace winvrx {

/// Compiles an opened layout file. `name` stands in the faults. Throws LayoutFault for XML that is
/// not well-formed, and for anything that could not be drawn as the file asks.
[[nodiscard]] Layout readLayout(QIODevice& file, const std::string& name);

}  // namespace winvrx
