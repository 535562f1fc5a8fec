#include "output/cards/card_sides.h"

#include <algorithm>
#include <numeric>

namespace winvrx {

std::vector<std::size_t> printOrder(std::size_t cards, CardSide side, CardOutput output) {
    std::vector<std::size_t> order(cards);
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (side == CardSide::Second && output == CardOutput::FaceDown) std::ranges::reverse(order);
    return order;
}

std::string stackInstruction(CardOutput output, std::size_t cards) {
    if (cards == 1) return "Vire o cartão e ponha-o de volta na bandeja.";
    if (output == CardOutput::FaceDown)
        return "Ponha a pilha de volta na bandeja como ela saiu, sem virar e sem mudar a ordem. "
               "O segundo lado sai do último cartão para o primeiro.";
    return "Vire a pilha inteira de uma vez, sem mudar a ordem, e ponha-a de volta na bandeja. "
           "O segundo lado sai do primeiro cartão para o último.";
}

}  // namespace winvrx
