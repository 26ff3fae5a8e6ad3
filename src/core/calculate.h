// The arithmetic reader of formulas. Its grouping is the language's own: a
// bracket's ")" ends only the innermost frame, so "2*(1+2)+3" gives 12.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

struct CalculateResult {
  std::string text;  // the value in the general text form; empty on error
  int error = 0;     // 0, 2 (malformed) or 11 (division by zero)
};

CalculateResult Calculate(std::string_view formula);

// A formula read once into steps, for formulas whose variables hold plain
// whole numbers: each variable stands in the text as one placeholder digit,
// and the steps give what Calculate gives on the text with the variables'
// digits in their places.
class CompiledFormula {
 public:
  struct Step {
    enum class Kind { Constant, Load, Operator };
    Kind kind;
    double constant = 0;
    int variable = 0;  // Load: the variable's place among the formula's names
    char op = 0;       // Operator: on the results of steps `left` and `right`
    int left = 0;
    int right = 0;
  };

  // `origins` gives, per character of `text`, the place of the variable
  // whose placeholder it is, or -1. A formula the reader can't take without
  // an error, or where a number mixes a placeholder with other digits, is
  // not compiled.
  static CompiledFormula Compile(std::string_view text, const std::vector<int>& origins);

  bool Compiled() const { return compiled_; }
  // The value for these variable values; nothing where Calculate would
  // report an error or where the value is not finite.
  std::optional<double> Run(std::span<const double> values) const;

 private:
  bool compiled_ = false;
  std::vector<Step> steps_;
  int result_ = 0;
  mutable std::vector<double> results_;  // scratch, one per step
};

}  // namespace tamrix
