#include "commands/library_commands.h"

#include "core/fault.h"
#include "core/interpreter.h"

namespace tamrix {
namespace {

std::string FailureText(const LibraryCommand& command, const RuntimeFault& fault) {
  switch (command.guard) {
    case LibraryGuard::Function: return "Error in function " + std::string(command.name) + ": " + fault.Description();
    case LibraryGuard::Fixed: return std::string(command.fixedMessage);
    default: return "Error in command " + std::string(command.name) + ": " + fault.Description();
  }
}

CommandHandler Guarded(const LibraryCommand& command) {
  if (command.guard == LibraryGuard::None) return command.handler;
  return [command](CommandCall& call) -> Value {
    try {
      return command.handler(call);
    } catch (const RuntimeFault& fault) {
      Interpreter& in = call.interpreter;
      CommandErrorBox(in, kCarriageReturn, FailureText(command, fault));
      if (command.failure == FailureResult::Zero) return std::int32_t{0};
      return std::string();
    }
  };
}

}  // namespace

void RegisterLibraryCommands(Dispatcher& dispatcher, std::span<const LibraryCommand> commands) {
  for (const auto& command : commands) {
    if (command.prefix.empty()) {
      dispatcher.Register(command.name, GuardForm::None, Guarded(command));
    } else {
      dispatcher.RegisterPrefix(command.prefix, command.name, GuardForm::None, Guarded(command));
    }
  }
}

double NumberArgument(CommandArguments& args, std::size_t i) { return NumberOf(args.Number(i)); }

std::string TextArgument(CommandArguments& args, std::size_t i) { return TextOf(args.Number(i)); }

}  // namespace tamrix
