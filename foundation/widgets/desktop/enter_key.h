#pragma once

#include <functional>

class QWidget;

namespace winvrx {

/// ENTER in the list does this, whatever the list or its window would make of the key.
void onEnter(QWidget& list, std::function<void()> run);

}  // namespace winvrx
