#include "core/window_events.h"

#include <cmath>
#include <cstdint>

#include "core/interpreter.h"
#include "core/object_closing.h"
#include "core/procedures.h"
#include "core/run_time_window.h"
#include "core/text.h"
#include "core/window_table.h"

namespace tamrix {
namespace {

constexpr int kClickSleepMilliseconds = 100;

// The keys of KeyState in table order, with the letters that TxtAux writes
// and the older ones of the Form1 family's own key up.
struct NamedKey {
  int code;
  char letter;
  char olderLetter;
};
constexpr std::array<NamedKey, 7> kNamedKeys = {{
    {kKeyLeft, 'L', 'E'},
    {kKeyRight, 'R', 'D'},
    {kKeyUp, 'U', 'A'},
    {kKeyDown, 'D', 'B'},
    {kKeyShift, 'S', 'S'},
    {kKeyCtrl, 'C', 'C'},
    {kKeySpace, '#', '#'},
}};

const NamedKey* FindNamedKey(int code) {
  for (const NamedKey& key : kNamedKeys) {
    if (key.code == code) return &key;
  }
  return nullptr;
}

std::size_t NamedKeyIndex(const NamedKey& key) { return static_cast<std::size_t>(&key - kNamedKeys.data()); }

bool HasCodeState(int code) { return code >= 0 && code < kCodeStates - 1; }

// TxtAux writes the key's own letter and code with the sign.
void WriteKeySign(Interpreter& in, int code, char sign) {
  KeyTables& keys = in.Input().keys;
  if (const NamedKey* key = FindNamedKey(code)) {
    keys.keyState[NamedKeyIndex(*key)] = std::string{key->letter, sign};
  }
  if (HasCodeState(code)) keys.codeState[static_cast<std::size_t>(code)] = std::to_string(code) + sign;
}

// Runs a tick's work; a fault that nothing catches ends the process.
template <typename Work>
void RunTick(Interpreter& in, Work work) {
  try {
    work();
  } catch (const RuntimeFault& fault) {
    in.Fatal(fault);
  }
}

// TimerJanela(i): the code of a static window, run once, with the Current
// Window restored afterwards by nesting depth, not by window.
void StaticWindowTick(Interpreter& in, std::size_t i) {
  WindowTable& windows = in.Windows();
  StaticWindowTimer& timer = windows.StaticTimers()[i];
  timer.timer->Stop();  // one shot: no second tick while the code waits
  RunTick(in, [&] {
    timer.savedWindow = &windows.Current();
    windows.WindowCodeOwner() = windows.CurrentName();
    in.State().windowStopFlag = false;
    ExecuteSub(in, windows.PendingWindowCode());
    windows.WindowCodeOwner().clear();
    in.State().windowStopFlag = false;
    if (i < 1) {
      windows.MakeMainCurrent();
    } else {
      const StaticWindowTimer& outer = windows.StaticTimers()[i - 1];
      windows.SetCurrent(outer.savedWindow != nullptr ? *outer.savedWindow : windows.Main());
      windows.SetCurrentName(windows.Name(static_cast<int>(i) - 1));
    }
  });
  timer.running = false;
}

// Timer3: the screen position of the mouse into variables that the program
// has to declare itself.
void MouseGeneralTick(Interpreter& in) {
  if (!in.Windows().Modes().mouseGeneral) return;
  RunTick(in, [&] {
    const PixelPoint position = in.Screen().CursorPosition();
    in.Variables().SetVariable("LinhaMouse", std::to_string(position.y), true);
    in.Variables().SetVariable("ColunaMouse", std::to_string(position.x), true);
  });
}

// Line or column under a pixel: the nearest whole one, halves up.
std::int32_t CellOf(int pixels, double cellSize) {
  return static_cast<std::int32_t>(std::floor(pixels / cellSize + 0.5));
}

}  // namespace

void InputState::Reset() {
  for (const NamedKey& key : kNamedKeys) keys.keyState[NamedKeyIndex(key)] = std::string{key.letter, '-'};
  for (int code = 0; code < kCodeStates - 1; ++code) {
    keys.codeState[static_cast<std::size_t>(code)] = std::to_string(code) + "-";
  }
  keys.codeState[kCodeStates - 1].clear();
  mouseButtons = "00";
  captureX = 0;
  captureY = 0;
}

void StartWindowSystem(Interpreter& in) {
  WindowTable& windows = in.Windows();
  windows.Reset(in.Screen().MainWindow());
  in.Input().Reset();
  in.Mail() = Mailboxes();
  for (std::size_t i = 0; i < windows.StaticTimers().size(); ++i) {
    StaticWindowTimer& timer = windows.StaticTimers()[i];
    if (!timer.timer) timer.timer = in.Screen().CreateTimer([&in, i] { StaticWindowTick(in, i); });
    timer.running = false;
    timer.savedWindow = nullptr;
  }
  if (!windows.MouseTimer()) windows.MouseTimer() = in.Screen().CreateTimer([&in] { MouseGeneralTick(in); });
}

void StopWindowTimers(Interpreter& in) {
  for (StaticWindowTimer& timer : in.Windows().StaticTimers()) {
    if (timer.timer) timer.timer->Stop();
    timer.running = false;
  }
  if (in.Windows().MouseTimer()) in.Windows().MouseTimer()->Stop();
  if (in.Windows().TextTimer()) in.Windows().TextTimer()->Stop();
}

void OnWindowFocus(Interpreter& in, RunTimeWindow& window) {
  WindowTable& windows = in.Windows();
  if (windows.Modes().imageInUse) return;
  windows.SetCurrent(window);
  windows.SetCurrentName(Upper(window.Tag()));
}

void OnWindowClick(Interpreter& in, bool doubleClick) {
  const std::string text = doubleClick ? "DOUBLECLICK" : "CLICK";
  in.Mail().lastEventClick = text;
  in.Variables().SetVariable("MouseClick", text, false);
  // A click never returns faster than this.
  if (!doubleClick) in.Screen().Sleep(kClickSleepMilliseconds);
}

void OnMainWindowMouse(Interpreter& in, MouseAction action, int buttons, int x, int y) {
  InputState& input = in.Input();
  WindowTable& windows = in.Windows();
  const bool oneButton = buttons == kLeftButton || buttons == kRightButton;
  if (action == MouseAction::Down && oneButton) {
    input.mouseButtons[static_cast<std::size_t>(buttons - 1)] = '1';
    if (windows.Modes().windowCaptured && buttons == kLeftButton) {
      input.captureX = x * kTwipsPerPixel;
      input.captureY = y * kTwipsPerPixel;
      return;
    }
  }
  if (action == MouseAction::Up && oneButton) input.mouseButtons[static_cast<std::size_t>(buttons - 1)] = '0';
  if (action == MouseAction::Move && (buttons & kLeftButton) != 0 && windows.Modes().windowCaptured) {
    RunTimeWindow& main = windows.Main();
    if (!main.IsMaximized()) {
      TwipRect outer = main.Outer();
      outer.left += x * kTwipsPerPixel - input.captureX;
      outer.top += y * kTwipsPerPixel - input.captureY;
      main.SetOuter(outer);
    }
  }
  if (windows.Modes().mouseGeneral) return;
  in.Variables().SetVariable("MouseY", CellOf(y, in.Coordinates().linSize), false);
  in.Variables().SetVariable("MouseX", CellOf(x, in.Coordinates().colSize), false);
}

std::string KeyPressText(int code, int shift) {
  std::string text = std::to_string(code);
  if (shift == kShiftMask) text += "SHIFT";
  if (shift == kCtrlMask) text += "CTRL";
  return text;
}

void OnKeyDown(Interpreter& in, int code, int shift) {
  const std::string text = KeyPressText(code, shift);
  in.Mail().lastEventKey = text;
  in.Mail().lastKey = text;
  WriteKeySign(in, code, '+');
}

void OnKeyUp(Interpreter& in, int code) { WriteKeySign(in, code, '-'); }

void OnFormKeyUp(Interpreter& in, int code) {
  KeyTables& keys = in.Input().keys;
  if (const NamedKey* key = FindNamedKey(code)) {
    keys.keyState[NamedKeyIndex(*key)] = std::string{key->olderLetter, '-'};
  }
  if (HasCodeState(code)) keys.codeState[static_cast<std::size_t>(code)] = "(" + ZeroPadded(code, 3) + ")-";
}

void OnWindowResize(Interpreter& in, RunTimeWindow& window) {
  WindowTable& windows = in.Windows();
  // The Current Window's name, not the resized one's.
  in.Mail().lastEventResize = "RESIZE " + Upper(windows.Current().Tag());
  if (&window == &windows.Main() && windows.Modes().fixedWindow && window.IsMaximized()) window.Restore();
  if (window.Grd().active) window.Grd().Paint(window.Drawing());
}

void OnWindowClosing(Interpreter& in, RunTimeWindow& window) {
  window.Flags().closing = true;
  CloseWindowObjects(in, window.Tag());
  if (window.Tag() == in.Windows().WindowCodeOwner()) in.State().windowStopFlag = true;
  window.Flags().closing = false;
}

}  // namespace tamrix
