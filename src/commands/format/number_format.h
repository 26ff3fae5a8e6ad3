// The number side of Format: one section of a number pattern applied to a
// value, rounding half away from zero to the section's decimal places.
#pragma once

#include <string>

#include "commands/format/format_pattern.h"

namespace tamrix {

// With `withSign` a negative value that doesn't round to zero gets a minus
// sign in front; without it the value's magnitude is shown (the negative
// section of a pattern brings its own signs).
std::string FormatNumber(double value, const FormatSection& section, bool withSign);

}  // namespace tamrix
