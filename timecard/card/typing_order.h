#pragma once

#include "timecard/card/cartao_ponto_dados.h"

// A month typed from paper has times where the schedule has them.

namespace winvrx {

/// Whether typing stops at a time cell of the day: its pair is on the schedule or holds something.
/// Whoever has no schedule may have worked both pairs of every working day; on a rotation scale any
/// day may be one of work.
[[nodiscard]] bool expectsTimes(const CartaoPontoDados& card, int day, PunchCell cell);

/// Times stand on the card of somebody without a schedule, so that all of them are extra.
[[nodiscard]] bool countsOnlyExtra(const CartaoPontoDados& card);

}  // namespace winvrx
