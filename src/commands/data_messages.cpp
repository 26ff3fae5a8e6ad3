#include "commands/data_messages.h"

#include "core/fault.h"
#include "core/interpreter.h"

namespace tamrix {

bool RunTimeMessage(Interpreter& interpreter, const std::string& text) {
  return interpreter.QueryBox(interpreter.State().errorPosition + "\r" + text);
}

CommandHandler WithFailureMessage(const std::string& name, CommandHandler handler) {
  return [prefix = "Error in command " + name + ": ", handler = std::move(handler)](CommandCall& call) -> Value {
    try {
      return handler(call);
    } catch (const RuntimeFault& fault) {
      RunTimeMessage(call.interpreter, prefix + fault.Description());
      return std::string();
    }
  };
}

}  // namespace tamrix
