#include "commands/command_families.h"

namespace tamrix {

void RegisterCoreCommandFamilies(Dispatcher& dispatcher) {
  RegisterTextOutputCommands(dispatcher);
  RegisterWaitCommands(dispatcher);
}

}  // namespace tamrix
