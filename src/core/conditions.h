// Conditions of If and While lines: a flat list of comparisons joined by
// AND and OR, read strictly from the left, reduced to "TRUE" or "FALSE".
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/value.h"

namespace tamrix {

class Interpreter;

// The arrays of one executor frame; they keep their entries between
// conditions and are cleared only up to their first empty entry.
struct ConditionArrays {
  std::array<std::string, 51> operands;
  std::array<std::string, 51> comparisons;
  std::array<std::string, 51> logics;
  std::array<std::string, 21> results;
};

// A condition text cut into operands, comparison signs and logic words, in
// the order the cut stores them (a cut that overflows an array faults at
// the same entry when stored again).
struct ConditionSplit {
  enum class Array { Operands, Comparisons, Logics };
  std::vector<std::pair<Array, std::string>> entries;
};

ConditionSplit ReadCondition(std::string_view text);
// Clears the arrays up to their first empty entries and stores the cut.
void StoreCondition(const ConditionSplit& split, ConditionArrays& arrays);
void SplitCondition(std::string_view text, ConditionArrays& arrays);
std::string CompareValues(const std::string& comparison, const Value& left, const Value& right);
std::string CombineResults(const ConditionArrays& arrays);
std::string EvaluateCondition(Interpreter& interpreter, std::string_view text, ConditionArrays& arrays,
                              bool& numericFlag);
std::string EvaluateCondition(Interpreter& interpreter, const ConditionSplit& split, ConditionArrays& arrays,
                              bool& numericFlag);

}  // namespace tamrix
