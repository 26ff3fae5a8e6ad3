// The text side of Format: "@" a character or a blank, "&" a character or
// nothing, filled from the right unless "!" stands in the section; "<" and
// ">" change the case of the text.
#pragma once

#include <string>
#include <string_view>

#include "commands/format/format_pattern.h"

namespace tamrix {

std::string FormatText(std::string_view text, const FormatSection& section);

}  // namespace tamrix
