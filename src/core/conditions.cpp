#include "core/conditions.h"

#include "core/evaluator.h"
#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

template <std::size_t N>
void ClearToFirstEmpty(std::array<std::string, N>& entries) {
  for (auto& entry : entries) {
    if (entry.empty()) break;
    entry.clear();
  }
}

template <std::size_t N>
void Put(std::array<std::string, N>& entries, std::size_t& next, const std::string& value) {
  if (next >= N) Throw(kSubscriptOutOfRange);
  entries[next++] = value;
}

// A side that is numeric, a numeric text included, as a float; texts that
// are no number stay texts.
Value Numeric(const Value& v) {
  if (const auto* text = std::get_if<std::string>(&v)) {
    if (const auto number = ParseRegionalNumber(*text)) return *number;
    return v;
  }
  return NumberOf(v);
}

}  // namespace

ConditionSplit ReadCondition(std::string_view source) {
  using Array = ConditionSplit::Array;
  ConditionSplit split;
  const std::string text = Trim(source);
  std::string current;
  for (std::size_t i = 0; i < text.size();) {
    const char a = text[i];
    if (a == '"') {
      const auto close = text.find('"', i + 1);
      const auto end = close == std::string::npos ? text.size() : close + 1;
      current.append(text, i, end - i);
      i = end;
      continue;
    }
    const char b = i + 1 < text.size() ? UpperChar(text[i + 1]) : '\0';
    const char c = i + 2 < text.size() ? UpperChar(text[i + 2]) : '\0';
    if (a == '<' || a == '>' || a == '=') {
      const bool twoSigns = (a == '<' && (b == '>' || b == '=')) || (a == '>' && b == '=');
      split.entries.emplace_back(Array::Comparisons, twoSigns ? std::string{a, b} : std::string{a});
      i += twoSigns ? 2 : 1;
    } else if (a == 'O' && b == 'R') {
      split.entries.emplace_back(Array::Logics, "OR");
      i += 2;
    } else if (a == 'A' && b == 'N' && c == 'D') {
      split.entries.emplace_back(Array::Logics, "AND");
      i += 3;
    } else {
      current += a;
      ++i;
      continue;
    }
    split.entries.emplace_back(Array::Operands, Trim(current));
    current.clear();
  }
  split.entries.emplace_back(Array::Operands, Trim(current));
  return split;
}

void StoreCondition(const ConditionSplit& split, ConditionArrays& arrays) {
  ClearToFirstEmpty(arrays.operands);
  ClearToFirstEmpty(arrays.comparisons);
  ClearToFirstEmpty(arrays.logics);
  std::size_t nextOperand = 0;
  std::size_t nextComparison = 0;
  std::size_t nextLogic = 0;
  for (const auto& [array, value] : split.entries) {
    switch (array) {
      case ConditionSplit::Array::Operands: Put(arrays.operands, nextOperand, value); break;
      case ConditionSplit::Array::Comparisons: Put(arrays.comparisons, nextComparison, value); break;
      case ConditionSplit::Array::Logics: Put(arrays.logics, nextLogic, value); break;
    }
  }
}

void SplitCondition(std::string_view text, ConditionArrays& arrays) { StoreCondition(ReadCondition(text), arrays); }

std::string CompareValues(const std::string& comparison, const Value& left, const Value& right) {
  Value l = left;
  Value r = right;
  if (!IsText(left)) {
    l = Numeric(left);
    r = Numeric(right);
  }
  // -1, 0 or 1; a number is less than a text.
  int order = 0;
  if (IsText(l) && IsText(r)) {
    const int cmp = std::get<std::string>(l).compare(std::get<std::string>(r));
    order = cmp < 0 ? -1 : (cmp > 0 ? 1 : 0);
  } else if (IsText(l)) {
    order = 1;
  } else if (IsText(r)) {
    order = -1;
  } else {
    const double x = NumberOf(l);
    const double y = NumberOf(r);
    order = x < y ? -1 : (x > y ? 1 : 0);
  }
  bool result = false;
  if (comparison == "=") {
    result = order == 0;
  } else if (comparison == "<") {
    result = order < 0;
  } else if (comparison == ">") {
    result = order > 0;
  } else if (comparison == "<>") {
    result = order != 0;
  } else if (comparison == "<=") {
    result = order <= 0;
  } else if (comparison == ">=") {
    result = order >= 0;
  } else {
    return {};
  }
  return result ? "TRUE" : "FALSE";
}

std::string CombineResults(const ConditionArrays& arrays) {
  std::string value = arrays.results[0];
  for (std::size_t j = 0; j < arrays.logics.size() && !arrays.logics[j].empty(); ++j) {
    if (j + 1 >= arrays.results.size()) Throw(kSubscriptOutOfRange);
    const std::string& next = arrays.results[j + 1];
    if (arrays.logics[j] == "OR" && next == "TRUE") value = "TRUE";
    if (arrays.logics[j] == "AND" && next == "FALSE") value = "FALSE";
  }
  return value;
}

std::string EvaluateCondition(Interpreter& interpreter, std::string_view text, ConditionArrays& arrays,
                              bool& numericFlag) {
  return EvaluateCondition(interpreter, ReadCondition(text), arrays, numericFlag);
}

std::string EvaluateCondition(Interpreter& interpreter, const ConditionSplit& split, ConditionArrays& arrays,
                              bool& numericFlag) {
  StoreCondition(split, arrays);
  std::size_t k = 0;
  for (std::size_t i = 0; i < arrays.operands.size() && !arrays.operands[i].empty(); i += 2, ++k) {
    const Value left = Evaluate(interpreter, arrays.operands[i], numericFlag);
    const std::string rightText = i + 1 < arrays.operands.size() ? arrays.operands[i + 1] : std::string();
    const Value right = Evaluate(interpreter, rightText, numericFlag);
    if (k >= arrays.results.size() || k + 1 >= arrays.results.size()) Throw(kSubscriptOutOfRange);
    arrays.results[k] = CompareValues(arrays.comparisons[k], left, right);
    arrays.results[k + 1].clear();
  }
  if (!arrays.logics[0].empty()) return CombineResults(arrays);
  return arrays.results[0];
}

}  // namespace tamrix
