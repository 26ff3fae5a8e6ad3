// What the events of the run-time windows write: the key tables, the mouse
// variables, the mailboxes, the Current Window by focus; and the timers of
// the window commands. An event never calls the program; only the static
// window timer runs a <name>_Code subroutine.
#pragma once

#include <array>
#include <string>

namespace tamrix {

class Interpreter;
class RunTimeWindow;

// Virtual key codes that the key tables know by name.
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyShift = 16;
inline constexpr int kKeyCtrl = 17;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeyEnter = 13;

// The shift states of a key event, as a mask.
inline constexpr int kShiftMask = 1;
inline constexpr int kCtrlMask = 2;
inline constexpr int kAltMask = 4;

// Mouse buttons, as a mask.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

inline constexpr int kCodeStates = 257;

struct KeyTables {
  // Left, right, up, down, Shift, Ctrl, space: "L-" ... "#-", "+" while down.
  std::array<std::string, 7> keyState;
  // "65-" or "65+" for codes 0 to 255; entry 256 stays empty.
  std::array<std::string, kCodeStates> codeState;
};

struct InputState {
  KeyTables keys;
  // "1" at the first character while the left button is down over the main
  // window, at the second for the right button.
  std::string mouseButtons = "00";
  // Where the main window was pressed under CaptureWindow, in twips.
  int captureX = 0;
  int captureY = 0;

  void Reset();
};

enum class MouseAction { Down, Move, Up };

// Starts the window system of a run: the Window Table with the main window
// current, the input state and the window command timers.
void StartWindowSystem(Interpreter& in);
// Stops the timers of the window commands when the main window closes.
void StopWindowTimers(Interpreter& in);

// A window got the focus: it becomes the Current Window, with its Tag as
// name, unless an Image is the surface.
void OnWindowFocus(Interpreter& in, RunTimeWindow& window);
// A click ("CLICK", then a 100 ms sleep) or double click on a window.
void OnWindowClick(Interpreter& in, bool doubleClick);
// Press, move or release on the main window; `buttons` is the button pressed
// or released, or on a move the buttons held; x and y are client pixels.
void OnMainWindowMouse(Interpreter& in, MouseAction action, int buttons, int x, int y);
// A key down at a control that takes keys (TxtAux, buttons, grids).
void OnKeyDown(Interpreter& in, int code, int shift);
// A key up at TxtAux.
void OnKeyUp(Interpreter& in, int code);
// A key up that a window of the Form1 family received itself: its older
// table codes.
void OnFormKeyUp(Interpreter& in, int code);
// Any window was resized.
void OnWindowResize(Interpreter& in, RunTimeWindow& window);
// A window of the Form1 family is closing or being unloaded: its objects
// go, and its running <name>_Code stops at its next statement.
void OnWindowClosing(Interpreter& in, RunTimeWindow& window);

// The text of a key press: the code, and "SHIFT" or "CTRL" when that is the
// only shift state.
std::string KeyPressText(int code, int shift);

}  // namespace tamrix
