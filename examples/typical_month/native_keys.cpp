#include "native_keys.h"

#ifdef Q_OS_WIN

#include <vector>

#include <windows.h>

namespace winvrx {

namespace {

/// Letters, digits and the space are their own numbers.
WORD numberOf(Qt::Key key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return static_cast<WORD>(VK_F1 + (key - Qt::Key_F1));
    switch (key) {
        case Qt::Key_Escape:
            return VK_ESCAPE;
        case Qt::Key_Insert:
            return VK_INSERT;
        case Qt::Key_Right:
            return VK_RIGHT;
        default:
            return static_cast<WORD>(key);
    }
}

INPUT inputOf(WORD number, DWORD flags) {
    const bool extended = number == VK_INSERT || number == VK_RIGHT;
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = number;
    input.ki.dwFlags = flags | (extended ? KEYEVENTF_EXTENDEDKEY : 0U);
    return input;
}

}  // namespace

bool pressNatively(QKeyCombination key) {
    std::vector<WORD> held;
    if (key.keyboardModifiers() & Qt::ControlModifier) held.push_back(VK_CONTROL);
    if (key.keyboardModifiers() & Qt::ShiftModifier) held.push_back(VK_SHIFT);
    if (key.keyboardModifiers() & Qt::AltModifier) held.push_back(VK_MENU);
    held.push_back(numberOf(key.key()));
    std::vector<INPUT> inputs;
    for (auto one = held.begin(); one != held.end(); ++one)
        inputs.push_back(inputOf(*one, 0));
    for (auto one = held.rbegin(); one != held.rend(); ++one)
        inputs.push_back(inputOf(*one, KEYEVENTF_KEYUP));
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    return true;
}

}  // namespace winvrx

#else

namespace winvrx {

bool pressNatively(QKeyCombination) {
    return false;
}

}  // namespace winvrx

#endif
