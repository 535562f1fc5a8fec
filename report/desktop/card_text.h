#pragma once

#include "report/report_engine.h"

#include <QString>

#include <array>
#include <vector>

namespace winvrx {

/// A row of the card table as it is drawn.
using CardTextRow = std::array<QString, kCardColumns.size()>;
using CardText = std::vector<CardTextRow>;

/// The rows of a card as they stand, without the card table.
[[nodiscard]] CardText cardText(const std::vector<CardRow>& rows);

}  // namespace winvrx
