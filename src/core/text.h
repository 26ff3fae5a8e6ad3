// Byte-string helpers shared by the whole core. Every language text is a
// std::string of Windows-1252 bytes; positions here are 0-based.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamrix {

inline constexpr std::size_t npos = std::string::npos;
inline constexpr std::string_view kCrLf = "\r\n";

char UpperChar(char c);
char LowerChar(char c);
std::string Upper(std::string_view text);
std::string Lower(std::string_view text);

// Trimming removes blanks only, never tabs or line ends.
std::string Trim(std::string_view text);
std::string TrimLeft(std::string_view text);
std::string TrimRight(std::string_view text);

bool StartsWith(std::string_view text, std::string_view prefix);
bool EndsWith(std::string_view text, std::string_view suffix);
bool Contains(std::string_view text, std::string_view part);
bool EqualsNoCase(std::string_view a, std::string_view b);

// Replaces every occurrence of `from` by `to`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

// The text between an opening quote (or bracket and quote) and a closing
// quote (or quote and bracket); nothing else is unquoted.
std::string StripQuotes(std::string_view text);

// A number as decimal digits, padded with zeros to `width`.
std::string ZeroPadded(long value, int width);

bool IsDigit(char c);
bool IsLetter(char c);

}  // namespace tamrix
