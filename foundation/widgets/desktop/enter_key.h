#pragma once

#include <functional>

class QKeyEvent;
class QWidget;

namespace winvrx {

/// ENTER, on the keypad too.
[[nodiscard]] bool isEnter(const QKeyEvent& event);

/// ENTER in the list does this, whatever the list or its window would make of the key.
void onEnter(QWidget& list, std::function<void()> run);

}  // namespace winvrx
