// The checker behind "tamrix-pack --check": it prepares and links the units
// exactly as the first activation does and reads the prepared text for what
// would stop or mislead a run, without running anything.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace tamrix {

struct CheckFinding {
  int unit = 0;  // 0 to 6
  int line = 0;  // 1-based source line inside the unit
  std::string message;
};

// Findings in the order of the prepared text: unbalanced or too deep
// If/While blocks, Subs and Functions without their end word, words at the
// start of a statement that no form takes, GoTo labels that cannot be
// found, and calls of functions that are not declared.
std::vector<CheckFinding> CheckProgram(const std::array<std::string, 7>& codes);

}  // namespace tamrix
