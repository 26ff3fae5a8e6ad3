#include "commands/data_families.h"

#include "commands/command_families.h"
#include "core/interpreter.h"
#include "data/data_state.h"
#include "data/database_block.h"

namespace tamrix {

void RegisterDataHandler(Dispatcher& dispatcher, std::string_view name, std::shared_ptr<DataState> state,
                         DataHandler handler, Guard guard) {
  CommandHandler bound = [state = std::move(state), handler](CommandCall& call) { return handler(call, *state); };
  if (guard == Guard::FailureMessage) bound = GuardedHandler(std::string(name), kCarriageReturn, std::move(bound));
  dispatcher.Register(name, GuardForm::None, std::move(bound));
}

void RegisterDataCommands(Interpreter& interpreter) {
  auto state = std::make_shared<DataState>();
  RegisterFileCommands(interpreter.Commands(), state);
  RegisterStoreCommands(interpreter.Commands(), state);
  RegisterRecordCommands(interpreter.Commands(), state);
  interpreter.DatabaseBlockReader() = [state](Interpreter& in, const std::string& text, std::size_t lineStart, int) {
    return ReadDatabaseBlock(in, *state, text, lineStart);
  };
  // Record files and aliased files close with the main window.
  interpreter.AddShutdownHook([state] { state->files.CloseAll(); });
}

}  // namespace tamrix
