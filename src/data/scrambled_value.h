// Values of a record file: every value is stored scrambled by the program
// text codec, each with its own key, so it takes its length plus 5 bytes.
// Numbers are their raw little-endian bytes, scrambled as a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tamrix {

inline constexpr std::size_t kScrambleOverhead = 5;

std::string ScrambleValue(std::string_view text);
// Unscrambles the value at the start of `bytes`; anything behind it is
// ignored. A key byte outside the table is fault 9; a value cut short of the
// length it promises is fault 5.
std::string UnscrambleValue(std::string_view bytes);

std::string IntegerBytes(std::int32_t value);
std::string DecimalBytes(double value);
// Missing bytes of a short text count as zeros.
std::int32_t IntegerFromBytes(std::string_view bytes);
double DecimalFromBytes(std::string_view bytes);

}  // namespace tamrix
