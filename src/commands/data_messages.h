// The message box of the data commands: the statement's position, a
// carriage return and the text, with OK and Cancel; Cancel stops the
// program at its next statement.
#pragma once

#include <string>

#include "core/dispatcher.h"

namespace tamrix {

class Interpreter;

// True for OK.
bool RunTimeMessage(Interpreter& interpreter, const std::string& text);

// A handler whose faults show "Error in command <name>: " and the fault's
// description in that box; the result is then empty.
CommandHandler WithFailureMessage(const std::string& name, CommandHandler handler);

}  // namespace tamrix
