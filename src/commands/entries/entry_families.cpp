#include "commands/command_families.h"
#include "commands/entries/entry_objects.h"

namespace tamrix {

void RegisterEntryCommands(Dispatcher& dispatcher) {
  RegisterTextCommand(dispatcher);
  RegisterValueEntryCommands(dispatcher);
  RegisterChoiceCommands(dispatcher);
  RegisterCaptionCommands(dispatcher);
  RegisterScrollBarCommand(dispatcher);
}

}  // namespace tamrix
