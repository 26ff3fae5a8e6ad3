// The date side of Format: one section of a date pattern applied to a date
// value, and the text form that a date value has by itself.
#pragma once

#include <string>
#include <string_view>

#include "commands/dates/date_time.h"
#include "commands/format/format_pattern.h"

namespace tamrix {

std::string FormatDate(const DateTime& value, const FormatSection& section);
// The first section of `pattern` applied to `value`.
std::string FormatDate(const DateTime& value, std::string_view pattern);

// The regional short date, with the regional time behind it when the time
// isn't midnight; a time alone (on the zero date) shows only the time.
std::string DateText(const DateTime& value);

}  // namespace tamrix
