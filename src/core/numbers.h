// Number reading and writing as the run-time does it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tamrix {

// The leading number of a text with "." as the only decimal point; blanks,
// tabs and line feeds inside are skipped; 0 when there is none. "&H" and
// "&O" prefixes read hexadecimal and octal.
double Val(std::string_view text);

// The value of a text that is numeric by the regional rules (decimal and
// grouping sign, signs, exponent, "&H"); nullopt when it is not numeric.
std::optional<double> ParseRegionalNumber(std::string_view text);
inline bool IsNumeric(std::string_view text) { return ParseRegionalNumber(text).has_value(); }

// The general text form of a float: up to 15 significant digits, exponent
// form below 1E-4 and from 1E15 on, regional decimal sign.
std::string NumberText(double value);

// Conversions that round half to even and fail with an overflow fault.
std::int32_t ToInt32(double value);
std::int16_t ToInt16(double value);

}  // namespace tamrix
