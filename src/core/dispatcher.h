// The command dispatcher: a table from upper-cased command words to their
// handlers, which each command family fills at start-up, followed by the
// three prefix tests ("CHR", "PRINTER", "REP") that run after every lookup.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/value.h"

namespace tamrix {

class Interpreter;

// What a handler gets: the raw argument text (which it may rewrite, as the
// caller's text is passed on) and the word as it was called, upper-cased.
struct CommandCall {
  Interpreter& interpreter;
  std::string& arguments;
  const std::string& word;
};

using CommandHandler = std::function<Value(CommandCall&)>;

// How a handler's guard names it in its error box.
enum class GuardForm {
  Command,   // "Error in command <Name>: "
  Function,  // "Error in function <Name>: "
  Surface,   // "Error in command <Name>: " after a single CR, as the object commands
  None,      // no guard: faults travel on to the caller
};

class Dispatcher {
 public:
  // `name` is the command's spelling in messages; the lookup is by its
  // upper-cased form.
  void Register(std::string_view name, GuardForm guard, CommandHandler handler);
  // A handler for one of the prefix tests that follow every lookup.
  void RegisterPrefix(std::string_view prefix, std::string_view name, GuardForm guard,
                      CommandHandler handler);

  // Runs the handler of `word` (any case); an unknown word gives an empty
  // value and no message. The prefix tests follow in every case.
  Value RunCommand(Interpreter& interpreter, std::string_view word, std::string& arguments);

  bool HasHandler(std::string_view upperWord) const;

 private:
  struct Entry {
    std::string name;
    GuardForm guard;
    CommandHandler handler;
  };
  struct PrefixEntry {
    std::string prefix;
    Entry entry;
  };

  static Value RunGuarded(Interpreter& interpreter, const Entry& entry, CommandCall& call);

  std::unordered_map<std::string, Entry> chain_;
  std::vector<PrefixEntry> prefixes_;
};

// The separators between the error position and the words of a command's
// error box: the language's own handlers use a line break, the object, data
// and library families a single carriage return.
inline constexpr std::string_view kLineBreak = "\r\n";
inline constexpr std::string_view kCarriageReturn = "\r";

// The Command Error Box: OK and Cancel, the error position, `separator` and
// `words`; Cancel stops the run at its next statement. True for OK.
bool CommandErrorBox(Interpreter& interpreter, std::string_view separator, const std::string& words);

// `handler` behind a guard of its own: a fault shows the Command Error Box
// with "Error in command <name>: " and the fault's description, and the
// result is empty.
CommandHandler GuardedHandler(const std::string& name, std::string_view separator, CommandHandler handler);

// True when SplitArguments runs the text's calls before it splits: it holds
// a call whose commas must survive the split.
bool SplitRunsCallsFirst(std::string_view text);

// The argument splitter shared by every handler: parts at commas outside
// string literals, optionally "=" as a part of its own. `capacity` is the
// size of the caller's array; one part more is a subscript fault.
std::vector<std::string> SplitArguments(Interpreter& interpreter, std::string_view text,
                                        std::size_t capacity, bool splitAtEquals,
                                        bool& numericFlag);

}  // namespace tamrix
