// Format: a value's text laid out by a pattern. A text that reads as a
// number is formatted as a number, one that reads as a date as a date, and
// any other as a text.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

std::string FormatValue(std::string_view value, std::string_view pattern);

}  // namespace tamrix
