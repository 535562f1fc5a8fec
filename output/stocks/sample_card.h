#pragma once

#include "output/stocks/card_rows.h"

namespace winvrx {

/// A card with a time in every place of every day, to align the print by. It says the month in
/// full, "novembro/2026", and belongs to nobody.
[[nodiscard]] ReportRows sampleCardRows(const Company& company, WorkMonth month);

}  // namespace winvrx
