// The key filter of a numeric Text box: it looks at the field's text and a
// typed key's code, and gives back the key to let through, or 0 to drop it.
#pragma once

#include <string_view>

namespace tamrix {

inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEscape = 27;

// With no decimals only the digits and Backspace pass. With decimals, Esc,
// Enter and Backspace always pass; once the field holds `decimals` figures
// after its "." no further key does; before that digits and one "." pass.
int NumericKeyFilter(std::string_view field, int key, int decimals);

}  // namespace tamrix
