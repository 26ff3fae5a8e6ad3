// NewWindow: "SET, <name>[, <kind>]" opens a hidden window in a free slot of
// the Window Table; "<name>.<PROPERTY> ..." works on the window of the first
// slot of that name. The executor hands the whole line from position 30.
#include <array>
#include <string_view>

#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "commands/window_settings.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/procedures.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kNewWindowArguments = 51;
// A static window shows only from a slot below this: the test is on the
// window's own slot, not on how many windows are open.
constexpr int kStaticWindowSlotLimit = 5;
constexpr int kStaticTimerMilliseconds = 1;
constexpr long kModalFormShown = 401;

constexpr std::string_view kUseMessage = "The command 'NewWindow Use' can only be used in dynamic windows!";

WindowClass ClassOfKind(const std::string& kind) {
  if (kind == "FIXED") return WindowClass::Form2;
  if (kind == "WITHOUTBOX") return WindowClass::Form3;
  return WindowClass::Form1;
}

void SetWindow(Interpreter& in, CommandArguments& args) {
  if (Upper(args.Raw(0)) != "SET") return;
  WindowTable& windows = in.Windows();
  const std::string name = Upper(args.Raw(1));
  const int slot = windows.FreeSlot();
  if (slot < 0) {
    WindowErrorBox(in, "Could not set window: more than 20 windows defined!");
    return;
  }
  RunTimeWindow& window = in.Screen().CreateWindow(ClassOfKind(Upper(args.Raw(2))), StripQuotes(name));
  window.SetTag(name);
  windows.Assign(slot, name, window);
}

// A window addressed by "<name>.<PROPERTY>".
struct WindowProperty {
  Interpreter& in;
  CommandArguments& args;
  int slot;
  std::string name;  // as it stood in the command
  RunTimeWindow& window;

  WindowTable& Windows() const { return in.Windows(); }
  const std::string& SlotName() const { return in.Windows().Name(slot); }
  double NumberOrZero(std::size_t i) const { return args.Raw(i).empty() ? 0 : NumberOf(args.Number(i)); }
  bool IsFalse(std::size_t i) const { return Upper(args.Text(i)) == "FALSE"; }
};

// A window can't show non-modally while a modal one is up.
void ShowNonModal(WindowProperty& p) {
  if (p.Windows().ModalDepth() > 0) {
    throw RuntimeFault(kModalFormShown, "Can't show non-modal form when modal form is displayed");
  }
  p.window.Show();
}

void PointSize(WindowProperty& p) { p.window.Drawing().SetDrawWidth(ToInt16(NumberOf(p.args.Number(2)))); }

void Resolution(WindowProperty& p) {
  ApplyResolution(p.in, p.window, NumberOf(p.args.Number(2)), NumberOf(p.args.Number(3)));
}

void Size(WindowProperty& p) { ApplySize(p.in, p.window, p.args.Text(2), p.args.Text(3)); }

void Position(WindowProperty& p) { ApplyPosition(p.in, p.window, p.args.Raw(2), p.args.Raw(3)); }

void Background(WindowProperty& p) {
  if (!SetBackground(p.in, p.window, p.args.Raw(2), p.NumberOrZero(3), p.NumberOrZero(4))) {
    p.in.StopBox("Error in BackGround property!" + p.in.State().errorPosition);
  }
}

void Border(WindowProperty& p) { p.window.SetBorderStyle(p.IsFalse(2) ? 0 : 1); }

// Shows or hides without changing the Current Window.
void Visible(WindowProperty& p) {
  if (p.IsFalse(2)) {
    p.window.Hide();
  } else {
    p.window.Show();
  }
}

// The slot goes free, then the window is unloaded with its objects.
void Off(WindowProperty& p) {
  p.Windows().ClearName(p.slot);
  if (p.slot == 0) {
    p.in.Screen().CloseMainWindow();
    return;
  }
  OnWindowClosing(p.in, p.window);
  p.in.Screen().DestroyWindow(p.window);
  p.Windows().Forget(p.window);
}

void Use(WindowProperty& p) {
  p.Windows().SetCurrent(p.window);
  p.Windows().SetCurrentName(p.SlotName());
  ShowNonModal(p);
  p.Windows().Modes().imageInUse = false;
}

// Runs <name>_Code to its end on the shown window; then the main window is
// current again, whatever the code did.
void ActivateDynamic(WindowProperty& p) {
  WindowTable& windows = p.Windows();
  windows.SetCurrentName(p.SlotName());
  p.window.SetTag(p.SlotName());
  ShowNonModal(p);
  windows.WindowCodeOwner() = p.SlotName();
  p.in.State().windowStopFlag = false;
  ExecuteSub(p.in, p.name + "_Code");
  windows.WindowCodeOwner().clear();
  p.in.State().windowStopFlag = false;
  windows.MakeMainCurrent();
}

// The code runs in the first tick of a static window timer, inside the
// modal wait; the timer starts even when the window can't show.
void ActivateStatic(WindowProperty& p) {
  WindowTable& windows = p.Windows();
  windows.PendingWindowCode() = p.name + "_Code";
  for (StaticWindowTimer& timer : windows.StaticTimers()) {
    if (timer.running) continue;
    timer.running = true;
    timer.timer->Start(kStaticTimerMilliseconds);
    break;
  }
  if (p.slot >= kStaticWindowSlotLimit) {
    WindowErrorBox(p.in, "Can't open static window, maximum overlapping windows = 5!");
    return;
  }
  p.window.SetTag(windows.CurrentName());
  ++windows.ModalDepth();
  p.window.ShowModal();
  --windows.ModalDepth();
}

// Any other word than DYNAMIC or STATIC only makes the window current.
void Activate(WindowProperty& p) {
  const std::string word = Upper(p.args.Raw(1));
  p.Windows().SetCurrent(p.window);
  if (word.empty() || word == "DYNAMIC") ActivateDynamic(p);
  if (word == "STATIC") ActivateStatic(p);
}

enum class OnFault { Silent, UseMessage };

struct PropertyEntry {
  std::string_view word;
  void (*apply)(WindowProperty&);
  OnFault onFault;
};

constexpr std::array<PropertyEntry, 10> kProperties = {{
    {".POINTSIZE", PointSize, OnFault::Silent},
    {".RES", Resolution, OnFault::Silent},
    {".SIZE", Size, OnFault::Silent},
    {".POS", Position, OnFault::Silent},
    {".BACKGROUND", Background, OnFault::Silent},
    {".BORDER", Border, OnFault::Silent},
    {".VISIBLE", Visible, OnFault::Silent},
    {".OFF", Off, OnFault::Silent},
    {".USE", Use, OnFault::UseMessage},
    {".ACTIVATE", Activate, OnFault::UseMessage},
}};

void ChangeWindow(Interpreter& in, CommandArguments& args) {
  const std::string& element = args.Raw(0);
  const auto dot = element.find('.');
  const std::string name = Trim(element.substr(0, dot));
  const auto blank = element.find(' ', dot);
  const std::string property = Upper(element.substr(dot, blank == std::string::npos ? npos : blank - dot));
  const int slot = in.Windows().Find(name);
  // An empty name matches a free slot, which holds no window.
  if (slot < 0 || in.Windows().Window(slot) == nullptr) return;
  WindowProperty target{in, args, slot, name, *in.Windows().Window(slot)};
  for (const PropertyEntry& entry : kProperties) {
    if (property != entry.word) continue;
    try {
      entry.apply(target);
    } catch (const RuntimeFault&) {
      if (entry.onFault == OnFault::UseMessage) WindowErrorBox(in, std::string(kUseMessage));
    }
    return;
  }
}

Value NewWindow(CommandCall& call) {
  Interpreter& in = call.interpreter;
  try {
    CommandArguments args(call, kNewWindowArguments, true);
    if (args.Raw(0).find('.') == std::string::npos) {
      SetWindow(in, args);
    } else {
      ChangeWindow(in, args);
    }
  } catch (const RuntimeFault&) {
    // The handler's only message is the one of .USE; the rest ends quietly.
  }
  return std::string();
}

}  // namespace

void RegisterNewWindowCommand(Dispatcher& dispatcher) {
  dispatcher.Register("NewWindow", GuardForm::None, NewWindow);
}

}  // namespace tamrix
