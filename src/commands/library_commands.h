// The command library's way of registering its families: a table of
// commands, each with its own failure handler. A fault shows the Command
// Error Box with the error position, a single carriage return and the
// command's text, and the caller gets the command's failure result.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "commands/command_arguments.h"
#include "core/dispatcher.h"

namespace tamrix {

enum class LibraryGuard {
  Command,   // "Error in command <Name>: " and the fault's description
  Function,  // "Error in function <Name>: " and the description
  Fixed,     // the row's own message in place of both
  None,      // no handler: the fault ends the process
};

enum class FailureResult { Empty, Zero };

struct LibraryCommand {
  std::string_view name;
  CommandHandler handler;
  LibraryGuard guard = LibraryGuard::Command;
  FailureResult failure = FailureResult::Empty;
  std::string_view fixedMessage = {};
  std::string_view prefix = {};  // reached by this prefix test instead of the chain
};

void RegisterLibraryCommands(Dispatcher& dispatcher, std::span<const LibraryCommand> commands);

// An argument through the general evaluator, as a float or as its text.
double NumberArgument(CommandArguments& args, std::size_t i);
std::string TextArgument(CommandArguments& args, std::size_t i);

}  // namespace tamrix
