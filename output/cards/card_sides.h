#pragma once

#include "report/report_engine.h"

#include <cstddef>
#include <string>
#include <vector>

// Cards with one half of the month on each side. All cards are printed on their first side, the
// operator puts the stack back into the tray, and then on their second.

namespace winvrx {

/// How printed cards come to lie, which settles how the stack goes back into the tray.
enum class CardOutput {
    FaceDown,  ///< the first card at the bottom of the stack, its print hidden
    FaceUp     ///< the first card at the bottom of the stack, its print to be seen
};

/// The positions of the cards in the order of a pass, so that the second pass meets the stack as
/// stackInstruction() has it laid: from the last card to the first for FaceDown.
[[nodiscard]] std::vector<std::size_t> printOrder(std::size_t cards, CardSide side,
                                                  CardOutput output);

/// What the operator does with the stack between the passes.
[[nodiscard]] std::string stackInstruction(CardOutput output, std::size_t cards);

}  // namespace winvrx
