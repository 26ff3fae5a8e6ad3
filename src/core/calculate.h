// The arithmetic reader of formulas. Its grouping is the language's own: a
// bracket's ")" ends only the innermost frame, so "2*(1+2)+3" gives 12.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

struct CalculateResult {
  std::string text;  // the value in the general text form; empty on error
  int error = 0;     // 0, 2 (malformed) or 11 (division by zero)
};

CalculateResult Calculate(std::string_view formula);

}  // namespace tamrix
