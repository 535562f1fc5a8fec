#pragma once

#include "output/cards/card_rows.h"

namespace winvrx {

/// A card with a time in every place of every day, to align the print by. It says the month in
/// full, "novembro/2026", and belongs to nobody.
[[nodiscard]] std::vector<CardRow> sampleCardRows(const Company& company, WorkMonth month);

}  // namespace winvrx
