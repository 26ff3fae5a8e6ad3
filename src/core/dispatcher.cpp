#include "core/dispatcher.h"

#include <algorithm>

#include "core/evaluator.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/text.h"

namespace tamrix {
namespace {

// The prefix tests run in this order after the chain.
constexpr std::string_view kPrefixOrder[] = {"CHR", "PRINTER", "REP"};

std::string GuardText(GuardForm guard, const std::string& name) {
  return guard == GuardForm::Function ? "Error in function " + name + ": "
                                      : "Error in command " + name + ": ";
}

}  // namespace

void Dispatcher::Register(std::string_view name, GuardForm guard, CommandHandler handler) {
  chain_[Upper(name)] = Entry{std::string(name), guard, std::move(handler)};
}

void Dispatcher::RegisterPrefix(std::string_view prefix, std::string_view name, GuardForm guard,
                                CommandHandler handler) {
  prefixes_.push_back(PrefixEntry{std::string(prefix), Entry{std::string(name), guard, std::move(handler)}});
  const auto rank = [](const PrefixEntry& e) {
    return std::find(std::begin(kPrefixOrder), std::end(kPrefixOrder), e.prefix) - std::begin(kPrefixOrder);
  };
  std::stable_sort(prefixes_.begin(), prefixes_.end(),
                   [&](const PrefixEntry& a, const PrefixEntry& b) { return rank(a) < rank(b); });
}

bool Dispatcher::HasHandler(std::string_view upperWord) const {
  return chain_.count(std::string(upperWord)) != 0;
}

Value Dispatcher::RunGuarded(Interpreter& interpreter, const Entry& entry, CommandCall& call) {
  if (entry.guard == GuardForm::None) return entry.handler(call);
  try {
    return entry.handler(call);
  } catch (const RuntimeFault& fault) {
    const std::string_view separator = entry.guard == GuardForm::Surface ? kCarriageReturn : kLineBreak;
    CommandErrorBox(interpreter, separator, GuardText(entry.guard, entry.name) + fault.Description());
    return std::string();
  }
}

bool CommandErrorBox(Interpreter& interpreter, std::string_view separator, const std::string& words) {
  return interpreter.QueryBox(interpreter.State().errorPosition + std::string(separator) + words);
}

CommandHandler GuardedHandler(const std::string& name, std::string_view separator, CommandHandler handler) {
  return [prefix = GuardText(GuardForm::Command, name), separator,
          handler = std::move(handler)](CommandCall& call) -> Value {
    try {
      return handler(call);
    } catch (const RuntimeFault& fault) {
      CommandErrorBox(call.interpreter, separator, prefix + fault.Description());
      return std::string();
    }
  };
}

Value Dispatcher::RunCommand(Interpreter& interpreter, std::string_view word, std::string& arguments) {
  const std::string upper = Upper(word);
  Value result = std::string();
  // A copy of the word: a handler may run code that changes the caller's text.
  CommandCall call{interpreter, arguments, upper};
  if (const auto hit = chain_.find(upper); hit != chain_.end()) {
    const Entry entry = hit->second;
    result = RunGuarded(interpreter, entry, call);
  }
  for (const auto& prefixEntry : prefixes_) {
    if (StartsWith(upper, prefixEntry.prefix)) {
      result = RunGuarded(interpreter, prefixEntry.entry, call);
    }
  }
  return result;
}

bool SplitRunsCallsFirst(std::string_view text) {
  static constexpr std::string_view kProtectedCalls[] = {
      "JOINSTR(", "FORMAT(", "DATEADD(", "DATEDIFF(", "READPOINT(", "FIND(", "RGB(",
      "CIRCLE(", "RECTANGLE(", "READFILE(", "COPY(", "CALL(", "SEQSTR(", "SUBSTR("};
  const std::string upper = Upper(text);
  return std::any_of(std::begin(kProtectedCalls), std::end(kProtectedCalls),
                     [&](std::string_view call) { return Contains(upper, call); });
}

std::vector<std::string> SplitArguments(Interpreter& interpreter, std::string_view text,
                                        std::size_t capacity, bool splitAtEquals,
                                        bool& numericFlag) {
  std::string work = Trim(text);
  if (SplitRunsCallsFirst(work)) {
    // Calls whose commas must survive the split run first.
    CallRecord call;
    RewriteGuard guard;
    while (FindCommandCall(interpreter, work, call)) {
      const std::size_t back = ExecuteCommandCall(interpreter, work, call, numericFlag);
      guard.Step(work, back);
    }
  }
  std::vector<std::string> parts(capacity);
  std::size_t k = 0;
  std::string current;
  const auto store = [&](std::string part) {
    if (k >= capacity) Throw(kSubscriptOutOfRange);
    parts[k++] = std::move(part);
  };
  for (std::size_t i = 0; i < work.size(); ++i) {
    const char c = work[i];
    if (c == '"') {
      const auto close = work.find('"', i + 1);
      const auto end = close == std::string::npos ? work.size() : close + 1;
      current.append(work, i, end - i);
      i = end - 1;
    } else if (c == ',') {
      store(Trim(current));
      current.clear();
    } else if (splitAtEquals && c == '=') {
      store(Trim(current));
      current.clear();
      store("=");
    } else {
      current += c;
    }
  }
  store(Trim(current));
  return parts;
}

}  // namespace tamrix
