#pragma once

#include "output/report_engine.h"

#include <QString>

#include <array>
#include <vector>

namespace winvrx {

/// A row of the card table as it is drawn.
using CardTextRow = std::array<QString, kCardColumns.size()>;
using CardText = std::vector<CardTextRow>;

}  // namespace winvrx
