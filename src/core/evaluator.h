// Expressions are evaluated by rewriting their text: each call found in the
// text is run and its result written in its place, until none is left; the
// rest is then read as a number, a formula, a variable or a literal.
#pragma once

#include <string>
#include <string_view>

#include "core/call_search_cache.h"
#include "core/value.h"

namespace tamrix {

class Interpreter;

// Bounds one loop of rewrites. A text whose calls keep rewriting into
// further calls would loop for ever or grow without end: past 10,000
// rewrites the run ends with the stack fault, past the text limit with the
// memory fault. A rewrite whose rest starts in front of the call brings
// text back a second time, and a text that does so at every rewrite doubles
// each time: past 16 MiB brought back in one loop the run ends with the
// memory fault too, long before the text itself reaches the limit.
class RewriteGuard {
 public:
  // `broughtBack`: the bytes that the rewrite put in the text a second time.
  void Step(const std::string& expr, std::size_t broughtBack = 0);

 private:
  int count_ = 0;
  std::size_t broughtBack_ = 0;
};

Value Evaluate(Interpreter& interpreter, std::string_view expr, bool& numericFlag);
Value EvaluateText(Interpreter& interpreter, std::string_view expr, bool& numericFlag);

// Bracket tags: "(" becomes "(<depth>]" and ")" becomes "[<depth>)".
std::string TagBrackets(std::string_view text);
std::string StripTags(std::string_view text);

bool FindCommandCall(Interpreter& interpreter, std::string_view expr, CallRecord& call);
// Both rewrite `expr` with the call's result and give the bytes that the
// rewrite brought back a second time (for RewriteGuard::Step).
std::size_t ExecuteCommandCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                               bool& numericFlag);
bool FindFunctionCall(Interpreter& interpreter, std::string_view expr, CallRecord& call,
                      std::string& returnType);
std::size_t ExecuteFunctionCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                                const std::string& returnType);

// True when both finders are known to find no call in the trimmed `expr`,
// having searched it before. A text whose brackets don't match is never
// known: its box shows at each search.
bool HoldsNoCall(Interpreter& interpreter, const std::string& expr);

bool IsArithmetic(std::string_view expr);
std::string ExpandVariables(Interpreter& interpreter, std::string_view expr, int& itemCount);

}  // namespace tamrix
