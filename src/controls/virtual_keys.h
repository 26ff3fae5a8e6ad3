// Keys and mouse buttons as the language counts them: the classic virtual
// key codes (65 for A, 13 for Enter, 37 for Left) and the shift mask
// (1 Shift, 2 Ctrl, 4 Alt).
#pragma once

#include <Qt>

class QKeyEvent;

namespace tamrix {

inline constexpr int kVirtualKeyEnter = 13;
inline constexpr int kVirtualKeySpace = 32;
inline constexpr int kVirtualKeyLeft = 37;
inline constexpr int kVirtualKeyUp = 38;
inline constexpr int kVirtualKeyRight = 39;
inline constexpr int kVirtualKeyDown = 40;

// The virtual key code of a key event; 0 for a key that has none.
int VirtualKeyCode(const QKeyEvent& event);
int ShiftState(Qt::KeyboardModifiers modifiers);
// The Qt key of a virtual key code (the keypad's digits as plain digits);
// Qt::Key_unknown for a code that names no key.
int QtKeyOf(int virtualKey);
// 1 left, 2 right, 4 middle; 0 for any other button.
int MouseButtonCode(Qt::MouseButton button);

}  // namespace tamrix
