#pragma once

#include <QKeyCombination>

namespace winvrx {

/// Presses a key as the keyboard of the computer does, for the window that is active. False where
/// the player has no such way and gives the key to the window itself.
bool pressNatively(QKeyCombination key);

}  // namespace winvrx
