#include "commands/command_arguments.h"

#include "core/evaluator.h"
#include "core/interpreter.h"

namespace tamrix {

CommandArguments::CommandArguments(CommandCall& call, std::size_t capacity, bool splitAtEquals)
    : interpreter_(call.interpreter),
      parts_(SplitArguments(call.interpreter, call.arguments, capacity, splitAtEquals, numericFlag_)) {}

std::size_t CommandArguments::UsedCount() const {
  std::size_t n = 0;
  while (n < parts_.size() && !parts_[n].empty()) ++n;
  return n;
}

Value CommandArguments::Number(std::size_t i) { return Evaluate(interpreter_, parts_[i], numericFlag_); }

std::string CommandArguments::Text(std::size_t i) {
  return TextOf(EvaluateText(interpreter_, parts_[i], numericFlag_));
}

}  // namespace tamrix
