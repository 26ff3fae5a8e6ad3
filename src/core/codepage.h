// Conversions between Windows-1252 (the language's bytes) and UTF-8 (the
// window system, file names and the trace).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tamrix {

std::string Cp1252ToUtf8(std::string_view bytes);
// Empty when the text holds a character that Windows-1252 cannot store or is
// not valid UTF-8.
std::optional<std::string> Utf8ToCp1252(std::string_view utf8);
// As above, with '?' in place of characters that have no Windows-1252 form.
std::string Utf8ToCp1252Lossy(std::string_view utf8);

}  // namespace tamrix
