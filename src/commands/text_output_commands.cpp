// Write, Position, Cls, ClearWindow and Message: text on the current window
// and the program's own message boxes.
#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kMaxExpressions = 101;

Value Write(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kMaxExpressions);
  bool toCaption = false;
  std::string text;
  for (std::size_t i = 0; i < args.UsedCount(); ++i) {
    if (Upper(args.Raw(i)) == "WINDOWTITLE") {
      toCaption = true;
      continue;
    }
    text += TextOf(args.Number(i));
  }
  Surface& surface = in.Windows().CurrentSurface();
  if (toCaption) {
    surface.SetCaption(text);
    in.Tracer().Write({"caption", surface.Name(), text});
    return std::string("True");
  }
  SurfaceCursor& at = surface.Cursor();
  const int x = ToInt32(at.x);
  const int y = ToInt32(at.y);
  surface.PrintText(x, y, text);
  in.Tracer().Write({"write", surface.Name(), std::to_string(x), std::to_string(y), text});
  // Each Write starts a new line at the column where the shared cursor was.
  TextCursor& shared = in.Cursor();
  shared.writeY = ToInt16(shared.writeY + in.Coordinates().linSize);
  at.x = shared.writeX;
  at.y = shared.writeY;
  in.Screen().PumpEvents();
  return std::string("True");
}

Value Position(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 3);
  const double line = NumberOf(args.Number(0));
  const double column = NumberOf(args.Number(1));
  SurfaceCursor& at = in.Windows().CurrentSurface().Cursor();
  at.y = line * in.Coordinates().linSize;
  at.x = column * in.Coordinates().colSize;
  in.Cursor().writeY = ToInt16(at.y);
  in.Cursor().writeX = ToInt16(at.x);
  return std::string();
}

// Clearing the surface puts its own cursor back at the corner; the Write
// cursor stays where it was.
Value ClearSurface(CommandCall& call) {
  Interpreter& in = call.interpreter;
  Surface& surface = in.Windows().CurrentSurface();
  surface.Clear();
  surface.Cursor() = SurfaceCursor();
  return std::string();
}

Value Message(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kMaxExpressions);
  bool question = false;
  std::string text;
  for (std::size_t i = 0; i < args.UsedCount(); ++i) {
    const std::string part = TextOf(args.Number(i));
    if (Upper(part) == "OPTIONYESNO") {
      question = true;
    } else {
      text += part;
    }
  }
  const std::string& name = in.Launch().programName;
  const std::string title = name.size() > 4 ? name.substr(0, name.size() - 4) : std::string();
  if (!question) {
    in.Box({BoxButtons::Ok, BoxIcon::Info, title, text, BoxAnswer::Ok});
    return std::string();
  }
  const BoxAnswer answer = in.Box({BoxButtons::YesNo, BoxIcon::Question, title, text, BoxAnswer::No});
  return Quoted(answer == BoxAnswer::Yes ? "True" : "False");
}

}  // namespace

void RegisterTextOutputCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Write", GuardForm::Surface, Write);
  dispatcher.Register("Position", GuardForm::Surface, Position);
  dispatcher.Register("Cls", GuardForm::Surface, ClearSurface);
  dispatcher.Register("ClearWindow", GuardForm::Surface, ClearSurface);
  dispatcher.Register("Message", GuardForm::Surface, Message);
}

}  // namespace tamrix
