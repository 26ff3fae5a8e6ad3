// What Evaluate reads off a text that holds no call, kept per text: the
// trimmed text, which of its three readings applies (a number, a formula,
// a name or literal), and for a formula its pieces and its compiled steps.
// Nothing kept depends on a variable's value or on whether a name is
// declared: the values are read anew at each evaluation, through the same
// lookups and in the same order, so boxes and faults come as before.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/calculate.h"
#include "core/value.h"
#include "core/variable_store.h"

namespace tamrix {

class Interpreter;

// A formula cut as the variable expansion reads it: runs of other
// characters, and names (an array element with its "(...)").
struct FormulaPiece {
  bool isName = false;
  std::string text;
  mutable NameCache found;  // a name's place, for the next evaluation
};

// The pieces of `formula`; `itemCount` counts each other character and each
// name as one item.
std::vector<FormulaPiece> SplitFormula(std::string_view formula, int& itemCount);

struct ExpressionPlan {
  enum class Reading { Number, Formula, NameOrLiteral };
  Reading reading = Reading::NameOrLiteral;
  std::string expr;
  // The regional signs the number test read the text with.
  char decimalSign = '.';
  char groupingSign = ',';
  double number = 0;     // Number
  std::string literal;   // NameOrLiteral: the text without its quotes
  mutable NameCache found;  // NameOrLiteral: where the text was found as a name
  std::vector<FormulaPiece> pieces;  // Formula
  int itemCount = 0;
  std::size_t nameCount = 0;
  // A formula is compiled when its plan is used a second time: most texts
  // met once (a function body renamed for its call) are never met again.
  bool compileTried = false;
  CompiledFormula compiled;
};

// The reading of an expression text with its calls already rewritten.
ExpressionPlan ReadExpression(std::string expr);
// The value of the expression, as Evaluate gives it.
Value RunExpression(Interpreter& interpreter, const ExpressionPlan& plan);

// The plans of source texts found to hold no call. Which texts hold a call
// changes only with the function names, so the interpreter clears the plans
// whenever it reads them anew.
class ExpressionPlans {
 public:
  // The plan for `source`, when one is kept and the regional signs are
  // still those it was read with; its formula compiled.
  const ExpressionPlan* Find(std::string_view source);
  // Whether a plan for `source` would be kept: long texts are rare in
  // expressions and not worth it.
  bool Keeps(std::string_view source) const;
  const ExpressionPlan& Remember(std::string_view source, ExpressionPlan plan);
  void Clear() { plans_.clear(); }

 private:
  static constexpr std::size_t kLongestText = 512;
  static constexpr std::size_t kMostPlans = 4096;
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  std::unordered_map<std::string, ExpressionPlan, TextHash, std::equal_to<>> plans_;
};

}  // namespace tamrix
