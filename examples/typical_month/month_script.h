#pragma once

namespace winvrx {

class Player;

/// Gives the player the steps of a typical month, from the empty data folder to the printed cards.
void writeMonth(Player& player);

}  // namespace winvrx
