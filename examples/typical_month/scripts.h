#pragma once

namespace winvrx {

class Player;

/// Gives the player the steps of a typical month, from the empty data folder to the printed cards.
void writeMonth(Player& player);

/// Gives the player the steps that leave papers of the people: contract, form, documents, payroll
/// and labels. The month is chosen and its cards are filled.
void writePapers(Player& player);

}  // namespace winvrx
