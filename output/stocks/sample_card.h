#pragma once

#include "output/stocks/card_rows.h"

namespace winvrx {

/// A card with a time in every place of nearly every day, to align the print by. It belongs to
/// nobody. The month, "novembro/2026", stands in its header block and once among the days of each
/// half, so that a card without the header block and the back of a card say it too.
[[nodiscard]] ReportRows sampleCardRows(const Company& company, WorkMonth month);

}  // namespace winvrx
