#include "core/expression_plan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/evaluator.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/regional.h"
#include "core/text.h"

namespace tamrix {
namespace {

// Stands for a variable's digits when a formula is compiled.
constexpr char kPlaceholder = '0';

bool IsNameCharacter(char c) {
  const char l = LowerChar(c);
  return IsDigit(l) || (l >= '_' && l <= 'z') || l == '.';
}

// The value a variable's text form gives when read back as a number, for
// values whose text is plain digits; nothing for any other value (a sign,
// a fraction, an exponent, a text that is no digit run), which the text
// reading then handles.
std::optional<double> PlainWhole(const Value& value) {
  if (const auto* integer = std::get_if<std::int32_t>(&value)) {
    if (*integer < 0) return std::nullopt;
    return static_cast<double>(*integer);
  }
  if (const auto* real = std::get_if<double>(&value)) {
    if (*real == 0) return 0.0;  // "0", whatever the sign
    if (!(*real > 0 && *real < 1e15) || *real != std::trunc(*real)) return std::nullopt;
    return *real;
  }
  const auto& text = std::get<std::string>(value);
  if (text.empty() || text.size() > 15 || !std::all_of(text.begin(), text.end(), IsDigit)) return std::nullopt;
  return Val(text);
}

// A result as Evaluate hands it on: through its text form and back. Whole
// numbers below 1E15 come back as they are.
double ReadBack(double value) {
  if (value == 0) return 0.0;
  if (std::abs(value) < 1e15 && value == std::trunc(value)) return value;
  return Val(ReplaceAll(NumberText(value), ",", "."));
}

CompiledFormula CompilePieces(const std::vector<FormulaPiece>& pieces) {
  std::string text;
  std::vector<int> origins;
  int variable = 0;
  for (const auto& piece : pieces) {
    if (piece.isName) {
      text += kPlaceholder;
      origins.push_back(variable++);
    } else {
      text += piece.text;
      origins.insert(origins.end(), piece.text.size(), -1);
    }
  }
  return CompiledFormula::Compile(text, origins);
}

}  // namespace

std::vector<FormulaPiece> SplitFormula(std::string_view formula, int& itemCount) {
  itemCount = 0;
  std::vector<FormulaPiece> pieces;
  for (std::size_t i = 0; i < formula.size();) {
    if (!IsLetter(formula[i])) {
      if (pieces.empty() || pieces.back().isName) pieces.push_back({false, {}, {}});
      pieces.back().text += formula[i++];
      ++itemCount;
      continue;
    }
    std::size_t j = i;
    while (j < formula.size() && formula[j] != '(' && IsNameCharacter(formula[j])) ++j;
    if (j < formula.size() && formula[j] == '(') {
      const auto close = formula.find(')', j);
      j = close == std::string_view::npos ? formula.size() : close + 1;
    }
    pieces.push_back({true, std::string(formula.substr(i, j - i)), {}});
    ++itemCount;
    i = j;
  }
  return pieces;
}

ExpressionPlan ReadExpression(std::string expr) {
  ExpressionPlan plan;
  const Regional& regional = Regional::Current();
  plan.decimalSign = regional.decimalSign;
  plan.groupingSign = regional.groupingSign;
  if (IsNumeric(expr)) {
    plan.reading = ExpressionPlan::Reading::Number;
    plan.number = Val(expr);
  } else if (IsArithmetic(expr)) {
    plan.reading = ExpressionPlan::Reading::Formula;
    plan.pieces = SplitFormula(expr, plan.itemCount);
    plan.nameCount = static_cast<std::size_t>(
        std::count_if(plan.pieces.begin(), plan.pieces.end(), [](const FormulaPiece& piece) { return piece.isName; }));
  } else {
    plan.reading = ExpressionPlan::Reading::NameOrLiteral;
    plan.literal = StripQuotes(expr);
  }
  plan.expr = std::move(expr);
  return plan;
}

Value RunExpression(Interpreter& interpreter, const ExpressionPlan& plan) {
  VariableStore& vars = interpreter.Variables();
  switch (plan.reading) {
    case ExpressionPlan::Reading::Number: return plan.number;
    case ExpressionPlan::Reading::NameOrLiteral:
      if (const int first = vars.VarIndex(plan.expr, &plan.found); first >= 0) return vars.ReadFound(plan.expr, first);
      return plan.literal;
    case ExpressionPlan::Reading::Formula: break;
  }
  // The values of the formula's names, read in order; most formulas have
  // few names, which stay off the heap.
  constexpr std::size_t kFewNames = 8;
  const bool few = plan.nameCount <= kFewNames;
  std::array<Value, kFewNames> fewValues;
  std::vector<Value> manyValues(few ? 0 : plan.nameCount);
  const std::span<Value> values = few ? std::span<Value>(fewValues.data(), plan.nameCount) : manyValues;
  auto next = values.begin();
  for (const auto& piece : plan.pieces) {
    if (piece.isName) *next++ = vars.GetVariable(piece.text, &piece.found);
  }
  if (plan.compiled.Compiled() && few) {
    std::array<double, kFewNames> numbers{};
    bool plain = true;
    for (std::size_t i = 0; i < values.size() && plain; ++i) {
      const auto number = PlainWhole(values[i]);
      plain = number.has_value();
      if (plain) numbers[i] = *number;
    }
    if (plain) {
      if (const auto result = plan.compiled.Run(std::span<const double>(numbers.data(), values.size()))) {
        return ReadBack(*result);
      }
    }
  }
  std::string expanded;
  auto value = values.begin();
  for (const auto& piece : plan.pieces) expanded += piece.isName ? TextOf(*value++) : piece.text;
  if (plan.itemCount == 1) return expanded;
  return Val(ReplaceAll(Calculate(expanded).text, ",", "."));
}

const ExpressionPlan* ExpressionPlans::Find(std::string_view source) {
  const auto hit = plans_.find(source);
  if (hit == plans_.end()) return nullptr;
  const Regional& regional = Regional::Current();
  ExpressionPlan& plan = hit->second;
  if (plan.decimalSign != regional.decimalSign || plan.groupingSign != regional.groupingSign) return nullptr;
  if (!plan.compileTried && plan.reading == ExpressionPlan::Reading::Formula && plan.itemCount != 1) {
    plan.compiled = CompilePieces(plan.pieces);
  }
  plan.compileTried = true;
  return &plan;
}

bool ExpressionPlans::Keeps(std::string_view source) const { return source.size() <= kLongestText; }

const ExpressionPlan& ExpressionPlans::Remember(std::string_view source, ExpressionPlan plan) {
  if (plans_.size() >= kMostPlans) plans_.clear();
  return plans_.insert_or_assign(std::string(source), std::move(plan)).first->second;
}

}  // namespace tamrix
