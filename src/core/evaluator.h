// Expressions are evaluated by rewriting their text: each call found in the
// text is run and its result written in its place, until none is left; the
// rest is then read as a number, a formula, a variable or a literal.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace tamrix {

class Interpreter;

// A call found in an expression: its name as found and its argument list,
// still carrying bracket tags.
struct CallRecord {
  std::string name;
  std::string arguments;
};

Value Evaluate(Interpreter& interpreter, std::string_view expr, bool& numericFlag);
Value EvaluateText(Interpreter& interpreter, std::string_view expr, bool& numericFlag);

// Bracket tags: "(" becomes "(<depth>]" and ")" becomes "[<depth>)".
std::string TagBrackets(std::string_view text);
std::string StripTags(std::string_view text);

bool FindCommandCall(Interpreter& interpreter, std::string_view expr, CallRecord& call);
void ExecuteCommandCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                        bool& numericFlag);
bool FindFunctionCall(Interpreter& interpreter, std::string_view expr, CallRecord& call,
                      std::string& returnType);
void ExecuteFunctionCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                         const std::string& returnType);

bool IsArithmetic(std::string_view expr);
std::string ExpandVariables(Interpreter& interpreter, std::string_view expr, int& itemCount);

}  // namespace tamrix
