#include "core/procedures.h"

#include <algorithm>

#include "core/dispatcher.h"
#include "core/evaluator.h"
#include "core/executor.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/preparation.h"
#include "core/text.h"

namespace tamrix {
namespace {

bool StatementStartAt(const std::string& text, std::size_t p, std::size_t back) {
  return p >= back && text[p - back] == '#';
}

std::string Between(const std::string& text, std::size_t from, std::size_t to) {
  if (to < from || to == std::string::npos) Throw(kInvalidCall);
  return text.substr(from, to - from);
}

// The declaration scan of one kind: `opener` ("FUNCTION " or "Sub ") opens a
// declaration at a statement start, `closer` ("ENDFUNCTION" or "EndSub")
// ends it. `onDeclaration` records the declaration at `p`.
template <typename OnDeclaration>
void ScanBlocks(Interpreter& interpreter, const std::string& view, std::string_view opener,
                std::string_view closer, const std::string& missingEnd, OnDeclaration onDeclaration) {
  const std::string_view word = opener.substr(0, opener.size() - 1);  // without its blank
  const std::size_t endExtra = closer.size() - word.size();           // "End" before the word
  auto p = view.find(opener);
  while (p != std::string::npos) {
    if (!StatementStartAt(view, p, 4)) return;
    const std::string name = onDeclaration(p);
    bool closed = false;
    std::size_t q = view.find(word, p + opener.size());
    while (q != std::string::npos) {
      if (StatementStartAt(view, q, 4) || StatementStartAt(view, q, 7)) {
        if (q >= endExtra && view.compare(q - endExtra, closer.size(), closer) == 0) {
          closed = true;
          break;
        }
        if (view.compare(q, opener.size(), opener) == 0) break;
      }
      q = view.find(word, q + 5);
    }
    if (!closed) {
      interpreter.StopBox(missingEnd + name);
      return;
    }
    p = view.find(opener, q + 5);
  }
}

// Unique name and type of one "name Type" entry.
struct LocalEntry {
  std::string name;
  std::string type;
};

LocalEntry SplitEntry(const std::string& entry) {
  const auto blank = entry.find(' ');
  if (blank == std::string::npos) Throw(kInvalidCall);
  return {entry.substr(0, blank), entry.substr(blank + 1)};
}

}  // namespace

void Procedures::Reset() { *this = Procedures(); }

void Procedures::ScanDeclarations(Interpreter& interpreter, const std::string& text) {
  functionNames_.clear();
  functionReturns_.clear();
  subNames_.clear();
  timerNames_.clear();
  timerPeriods_.clear();
  functionCallCache_.Clear();
  plans_.Clear();
  declarations_.clear();
  try {
    ScanFunctions(interpreter, text);
    ScanSubs(interpreter, text);
    ScanTimers(text);
  } catch (const std::exception&) {
    interpreter.StopBox(
        "Error creating function or subroutine!\r\n"
        "-You forgot to put parentheses to declare a function or subroutine?\r\n"
        "-You put some ZR reserved word in the name of some function or subroutine?");
  }
  nameWithoutLetters_ = std::any_of(functionNames_.begin(), functionNames_.end(), [](const std::string& name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), IsLetter);
  });
}

void Procedures::ScanFunctions(Interpreter& interpreter, const std::string& text) {
  const std::string upper = Upper(text);
  ScanBlocks(interpreter, upper, "FUNCTION ", "ENDFUNCTION", "Function without its command EndFunction: ",
             [&](std::size_t p) {
               const std::string name = Between(text, p + 9, text.find('(', p));
               const auto close = text.find(')', p);
               if (close == std::string::npos) Throw(kInvalidCall);
               auto lineEnd = text.find('\r', close);
               if (lineEnd == std::string::npos) lineEnd = text.size();
               functionNames_.push_back(name);
               functionReturns_.push_back(Trim(Between(text, close + 1, lineEnd)));
               return name;
             });
}

void Procedures::ScanSubs(Interpreter& interpreter, const std::string& text) {
  ScanBlocks(interpreter, text, "Sub ", "EndSub", "Sub without its command EndSub: ", [&](std::size_t p) {
    const auto close = text.find(')', p);
    if (close == std::string::npos) Throw(kInvalidCall);
    const std::string name = Between(text, p + 4, close + 1);
    subNames_.push_back(name);
    return name;
  });
}

void Procedures::ScanTimers(const std::string& text) {
  hasTimers_ = false;
  auto p = text.find("Timer_");
  while (p != std::string::npos) {
    hasTimers_ = true;
    const auto close = text.find(')', p);
    const auto open = text.find('(', p);
    if (close == std::string::npos || open == std::string::npos) Throw(kInvalidCall);
    timerNames_.push_back(Between(text, p, close + 1));
    timerPeriods_.push_back(ToInt16(Val(Between(text, open + 1, close))));
    p = text.find("Timer_", open);
  }
}

bool Procedures::IsSub(std::string_view word) const {
  for (const auto& name : subNames_) {
    if (name == word) return true;
  }
  return false;
}

namespace {

// The text of a Sub or Function from its declaration at `start` to the line
// end behind its end word (one standing as a statement), or to the end of
// the text when there is none.
std::string BlockSlice(const std::string& text, std::size_t start, std::string_view endWord) {
  auto end = text.find(endWord, start);
  while (end != std::string::npos && !StatementStartAt(text, end, 4)) end = text.find(endWord, end + 1);
  std::size_t sliceEnd = text.size();
  if (end != std::string::npos) {
    const auto crlf = text.find(kCrLf, end);
    if (crlf != std::string::npos) sliceEnd = crlf + 2;
  }
  return text.substr(start, sliceEnd - start);
}

}  // namespace

void ExecuteSub(Interpreter& interpreter, const std::string& name) {
  const std::string& text = interpreter.ProgramText();
  const auto p = text.find("Sub " + name);
  if (p == std::string::npos) {
    interpreter.StopBox("Subroutine not found: " + name);
    return;
  }
  RunStatements(interpreter, BlockSlice(text, p, "EndSub"), 0);
}

namespace {

// What every call of a function reads off its declaration in the Program
// Text: the slice from "Function <name>" to the line end behind its
// EndFunction, its parameter list split, and the body behind its first line.
FunctionDeclaration ReadDeclaration(Interpreter& interpreter, const std::string& name) {
  const std::string& text = interpreter.ProgramText();
  const auto p = text.find("Function " + name);
  if (p == std::string::npos) {
    interpreter.StopBox("Function not found: " + name);
    Throw(kInvalidCall);
  }
  FunctionDeclaration declaration;
  const std::string slice = BlockSlice(text, p, "EndFunction");
  const std::string parameterList = Between(slice, slice.find('(') + 1, slice.find(')'));
  declaration.parameters = SplitArguments(interpreter, parameterList, 21, false, declaration.numericFlag);
  // A list whose split runs calls is split anew at each call.
  declaration.fixed = !SplitRunsCallsFirst(parameterList);
  const auto firstLf = slice.find('\n');
  declaration.body = firstLf == std::string::npos ? std::string() : slice.substr(firstLf + 1);
  return declaration;
}

}  // namespace

const FunctionDeclaration& Procedures::Declaration(Interpreter& interpreter, const std::string& name,
                                                   FunctionDeclaration& unkept) {
  if (const auto hit = declarations_.find(name); hit != declarations_.end()) return hit->second;
  FunctionDeclaration declaration = ReadDeclaration(interpreter, name);
  if (!declaration.fixed) {
    unkept = std::move(declaration);
    return unkept;
  }
  return declarations_.emplace(name, std::move(declaration)).first->second;
}

Value CallFunction(Interpreter& interpreter, const std::string& name, const std::string& arguments) {
  Procedures& procs = interpreter.Procs();
  std::vector<std::string> locals;
  try {
    FunctionDeclaration unkept;
    const FunctionDeclaration& declaration = procs.Declaration(interpreter, name, unkept);
    const std::vector<std::string>& parameters = declaration.parameters;
    bool flag = declaration.numericFlag;
    const std::string prefix = name + std::to_string(procs.CallCounter());
    std::vector<std::string> uniques;
    for (const auto& parameter : parameters) {
      if (parameter.empty()) break;
      const LocalEntry entry = SplitEntry(parameter);
      uniques.push_back(prefix + entry.name);
      interpreter.Variables().DeclareScalar(uniques.back(), entry.type);
      locals.push_back(uniques.back());
    }

    const auto values = SplitArguments(interpreter, arguments, 21, false, flag);
    std::string body = declaration.body;
    for (std::size_t i = 0; i < values.size() && !values[i].empty(); ++i) {
      const std::string parameter = i < parameters.size() ? SplitEntry(parameters[i]).name : std::string();
      const std::string unique = i < uniques.size() ? uniques[i] : std::string();
      RenameInBody(body, parameter, unique);
      bool numeric = false;
      interpreter.Variables().SetVariable(unique, Evaluate(interpreter, values[i], numeric), true);
    }

    // A "Var" line as the first statement declares the function's locals.
    if (body.size() > kStatementColumn) {
      const auto lineEnd = body.find(kCrLf);
      const std::string firstLine = body.substr(0, lineEnd);
      const std::string statement = firstLine.substr(std::min(firstLine.size(), kStatementColumn));
      const std::string word = statement.substr(0, statement.find(' '));
      const std::string upperWord = Upper(word);
      if (upperWord == "VAR" || upperWord == "VARIABLE") {
        const std::string list =
            statement.size() > word.size() ? statement.substr(word.size() + 1) : std::string();
        for (const auto& item : SplitArguments(interpreter, list, 21, false, flag)) {
          if (item.empty()) break;
          const LocalEntry entry = SplitEntry(item);
          const std::string unique = prefix + entry.name;
          RenameInBody(body, entry.name, unique);
          interpreter.Variables().DeclareScalar(unique, entry.type);
          locals.push_back(unique);
        }
        const auto next = body.find("&#", 2);
        body = next == std::string::npos ? std::string() : body.substr(next);
      }
    }

    RunStatements(interpreter, body, 0);
    const Value result = interpreter.State().returnValue;
    for (const auto& local : locals) interpreter.Variables().RemoveVariable(local, false);
    ++procs.CallCounter();
    return result;
  } catch (const RuntimeFault&) {
    interpreter.QueryBox(interpreter.State().errorPosition +
                         "\r\nError executing the function, make sure you set the argument types and "
                         "the return type of the function!");
    return std::string();
  }
}

void RenameInBody(std::string& body, const std::string& oldName, const std::string& newName) {
  if (oldName.empty()) return;
  const auto isBefore = [](char c) { return c == '(' || c == ' ' || c == '\r'; };
  const auto isAfter = [](char c) { return c == ',' || c == ')' || c == ' ' || c == '\r'; };
  auto hit = body.find(oldName);
  while (hit != std::string::npos) {
    const auto after = hit + oldName.size();
    if (hit > 0 && after < body.size() && isBefore(body[hit - 1]) && isAfter(body[after])) {
      body.replace(hit, oldName.size(), newName);
      hit = body.find(oldName, hit + newName.size());
    } else {
      hit = body.find(oldName, after);
    }
  }
}

}  // namespace tamrix
