#include "controls/virtual_keys.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>
#include <utility>

namespace tamrix {
namespace {

// Keys whose code is neither their letter nor their digit.
constexpr std::pair<int, int> kNamedKeys[] = {
    {Qt::Key_Backspace, 8},  {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},     {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},   {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},     {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},    {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},       {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},      {Qt::Key_Up, 38},       {Qt::Key_Right, 39},     {Qt::Key_Down, 40},
    {Qt::Key_Insert, 45},    {Qt::Key_Delete, 46},   {Qt::Key_NumLock, 144},  {Qt::Key_ScrollLock, 145},
    {Qt::Key_Semicolon, 186}, {Qt::Key_Colon, 186},  {Qt::Key_Equal, 187},    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},    {Qt::Key_Less, 188},    {Qt::Key_Minus, 189},    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},   {Qt::Key_Greater, 190}, {Qt::Key_Slash, 191},    {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192}, {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219}, {Qt::Key_Backslash, 220}, {Qt::Key_Bar, 220},   {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222}, {Qt::Key_QuoteDbl, 222},
};

// The keypad sends digits and operators with their own codes.
constexpr std::pair<int, int> kKeypadKeys[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Period, 110},
    {Qt::Key_Slash, 111},
};

int Lookup(const std::pair<int, int>* begin, const std::pair<int, int>* end, int key) {
  const auto* hit = std::find_if(begin, end, [key](const auto& entry) { return entry.first == key; });
  return hit == end ? 0 : hit->second;
}

}  // namespace

int VirtualKeyCode(const QKeyEvent& event) {
  const int key = event.key();
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (keypad && key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + (key - Qt::Key_0);
  if (keypad) {
    if (const int code = Lookup(std::begin(kKeypadKeys), std::end(kKeypadKeys), key)) return code;
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return 'A' + (key - Qt::Key_A);
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return '0' + (key - Qt::Key_0);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + (key - Qt::Key_F1);
  return Lookup(std::begin(kNamedKeys), std::end(kNamedKeys), key);
}

int QtKeyOf(int virtualKey) {
  if (virtualKey >= 'A' && virtualKey <= 'Z') return Qt::Key_A + (virtualKey - 'A');
  if (virtualKey >= '0' && virtualKey <= '9') return Qt::Key_0 + (virtualKey - '0');
  if (virtualKey >= 96 && virtualKey <= 105) return Qt::Key_0 + (virtualKey - 96);
  if (virtualKey >= 112 && virtualKey <= 135) return Qt::Key_F1 + (virtualKey - 112);
  for (const auto& [qtKey, code] : kKeypadKeys) {
    if (code == virtualKey) return qtKey;
  }
  // The first key of each code is its plain, unshifted one.
  for (const auto& [qtKey, code] : kNamedKeys) {
    if (code == virtualKey) return qtKey;
  }
  return Qt::Key_unknown;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) | (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

int MouseButtonCode(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
  }
}

}  // namespace tamrix
