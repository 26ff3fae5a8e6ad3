#include "commands/command_families.h"

#include "core/interpreter.h"

namespace tamrix {

void RegisterCoreCommandFamilies(Dispatcher& dispatcher) {
  RegisterTextOutputCommands(dispatcher);
  RegisterWaitCommands(dispatcher);
  RegisterButtonCommands(dispatcher);
  RegisterStringCommands(dispatcher);
  RegisterNumericCommands(dispatcher);
  RegisterDateCommands(dispatcher);
  RegisterWindowCommand(dispatcher);
  RegisterNewWindowCommand(dispatcher);
  RegisterGetTextCommand(dispatcher);
  RegisterEventCommands(dispatcher);
  RegisterDrawingCommands(dispatcher);
  RegisterPictureCommands(dispatcher);
  RegisterImageCommands(dispatcher);
  RegisterAnimatedGifCommands(dispatcher);
  RegisterGradientCommand(dispatcher);

  RegisterEntryCommands(dispatcher);
}

void RegisterCoreCommandFamilies(Interpreter& interpreter) {
  RegisterCoreCommandFamilies(interpreter.Commands());
  RegisterDataCommands(interpreter);
}

}  // namespace tamrix
