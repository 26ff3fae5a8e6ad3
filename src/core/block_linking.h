// Block linking: every If/Else/EndIf and While/Loop that opens a statement
// gets its nesting depth written behind the keyword in square brackets; the
// executor finds the end of a block by searching for the same tag.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

std::string LinkIfBlocks(std::string_view text);
std::string LinkWhileBlocks(std::string_view text);
// The message for an unbalanced program, or empty.
std::string CheckBlocks(std::string_view text);

}  // namespace tamrix
