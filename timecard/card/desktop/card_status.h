#pragma once

#include <QString>

namespace winvrx {

class CartaoPontoDados;
class PunchGrid;

/// The status line of the card: what is wrong under the grid's cursor, what the last edit did, or
/// how the card stands and the keys that lead on from where the focus is.
[[nodiscard]] QString cardStatus(const CartaoPontoDados& card, const PunchGrid& grid,
                                 bool inEmployees);

}  // namespace winvrx
