// Event, KeyTest, TestMouse, CaptureWindow and UnCaptureWindow: the program
// polls what the window events left in the mailboxes and key tables.
#include <array>
#include <string_view>

#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

struct EventMailbox {
  std::string_view word;
  std::string Mailboxes::*mailbox;
};

constexpr std::array<EventMailbox, 5> kEventMailboxes = {{
    {"EVENTKEY", &Mailboxes::lastEventKey},
    {"EVENTCLICK", &Mailboxes::lastEventClick},
    {"EVENTRESIZE", &Mailboxes::lastEventResize},
    {"EVENTBOX", &Mailboxes::lastEventBox},
    {"EVENTANIMATEDGIF", &Mailboxes::lastEventGif},
}};

// The letters of KeyTest in the order of the KeyState table.
constexpr std::string_view kKeyLetters = "LRUDSC#";

// Keys reach the key tables through TxtAux of the Current Window.
void CatchKeys(Interpreter& in) { in.Windows().Current().FocusKeyCatcher(); }

// The mailbox's text, quoted; the mailbox is emptied.
Value Event(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CatchKeys(in);
  CommandArguments args(call, 1);
  const std::string word = Upper(args.Text(0));
  for (const EventMailbox& entry : kEventMailboxes) {
    if (word != entry.word) continue;
    std::string& mailbox = in.Mail().*entry.mailbox;
    const std::string text = Quoted(mailbox);
    mailbox.clear();
    return text;
  }
  return std::string();
}

// "?" gives the last key press unquoted and empties it; a letter the
// KeyState entry, a code up to 256 the CodeState entry.
Value KeyTest(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CatchKeys(in);
  CommandArguments args(call, 1);
  const std::string key = Upper(args.Text(0));
  if (key == "?") {
    const std::string last = in.Mail().lastKey;
    in.Mail().lastKey.clear();
    return last;
  }
  const KeyTables& tables = in.Input().keys;
  if (key.size() == 1 && kKeyLetters.find(key[0]) != std::string_view::npos) {
    return Quoted(tables.keyState[kKeyLetters.find(key[0])]);
  }
  if (const auto code = ParseRegionalNumber(key)) {
    const std::int32_t index = ToInt32(*code);
    if (index >= 0 && index < kCodeStates) return Quoted(tables.codeState[static_cast<std::size_t>(index)]);
  }
  return std::string();
}

Value TestMouse(CommandCall& call) { return Quoted(call.interpreter.Input().mouseButtons); }

Value CaptureWindow(CommandCall& call) {
  call.interpreter.Windows().Modes().windowCaptured = true;
  return std::string();
}

Value UnCaptureWindow(CommandCall& call) {
  call.interpreter.Windows().Modes().windowCaptured = false;
  return std::string();
}

}  // namespace

void RegisterEventCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Event", GuardForm::Command, Event);
  dispatcher.Register("KeyTest", GuardForm::Command, KeyTest);
  dispatcher.Register("TestMouse", GuardForm::Command, TestMouse);
  dispatcher.Register("CaptureWindow", GuardForm::Command, CaptureWindow);
  dispatcher.Register("UnCaptureWindow", GuardForm::Command, UnCaptureWindow);
}

}  // namespace tamrix
