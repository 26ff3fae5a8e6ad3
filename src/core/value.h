// A language value: a text, a 32-bit integer or a float, as the evaluator
// and the variable store hand them around.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

namespace tamrix {

using Value = std::variant<std::string, std::int32_t, double>;

inline bool IsText(const Value& v) { return std::holds_alternative<std::string>(v); }

// The longest text a program may build; beyond it the run ends with the
// run-time's memory fault rather than exhausting the machine.
inline constexpr std::size_t kMaxTextBytes = std::size_t{512} * 1024 * 1024;
// Faults with "Out of memory" when a text grows past the limit.
void CheckTextSize(std::size_t bytes);
// Lowers the limit for the whole process; only tests and fuzzing do, as a
// text that doubles takes seconds and gigabytes to reach the full limit.
void SetTextLimit(std::size_t bytes);

// The ordinary text form: integers in decimal, floats with up to 15
// significant digits and the regional decimal sign.
std::string TextOf(const Value& v);

// True for an integer, and for a float that is a whole number below 1E15
// (not a negative zero): values whose text form reads back as themselves.
bool IsPlainWholeNumber(const Value& v);

// The numeric value; a text is read by the regional rules and a text that is
// no number is a type mismatch fault.
double NumberOf(const Value& v);

// "+" on two values: two texts join, anything else is a sum (integers stay
// integers while they fit).
Value AddValues(const Value& a, const Value& b);
Value SubtractValues(const Value& a, const Value& b);

}  // namespace tamrix
