// Gradient <start colour>, <end colour>: the gradient of the Current Window,
// painted now and again at each of its resizes.
#include "commands/command_families.h"
#include "commands/object_frame.h"
#include "core/interpreter.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

Value Gradient(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kObjectArgumentCount);
  RunTimeWindow& window = in.Windows().Current();
  Gradiente& grd = window.Grd();
  if (args.UsedCount() > 0) {
    grd.corInicial = ToInt32(NumberOf(args.Number(0)));
    grd.corFinal = ToInt32(NumberOf(args.Number(1)));
    grd.Paint(window.Drawing());
  }
  grd.active = true;
  return std::string();
}

}  // namespace

void RegisterGradientCommand(Dispatcher& dispatcher) {
  dispatcher.Register("Gradient", GuardForm::None, GuardedHandler("Gradient", kCarriageReturn, Gradient));
}

}  // namespace tamrix
