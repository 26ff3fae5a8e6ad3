// The pattern language of Format: a pattern is cut into sections at ";"
// and each section into tokens. A token means the same in every kind of
// section; the number, date and text formatters each give meaning to their
// own tokens and print the others as written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

enum class TokenKind {
  Literal,        // text in quotes, an escaped character, any other character
  DigitZero,      // "0"
  DigitHash,      // "#"
  DecimalPoint,   // "."
  Comma,          // ","
  Percent,        // "%"
  Exponent,       // "E+", "E-", "e+", "e-"
  DateSeparator,  // "/"
  TimeSeparator,  // ":"
  DatePart,       // "d" ... "dddddd", "w", "ww", "m" ... "mmmm", "q", "y", "yy", "yyyy",
                  // "h", "hh", "n", "nn", "s", "ss", "ttttt" (code in lower case)
  AmPm,           // "AM/PM", "am/pm", "A/P", "a/p", "AMPM"
  TextCharacter,  // "@"
  TextOptional,   // "&"
  LowerCase,      // "<"
  UpperCase,      // ">"
  LeftToRight,    // "!"
};

struct FormatToken {
  TokenKind kind;
  std::string code;  // DatePart: the lower-case code; AmPm: the form as written
  std::string text;  // the characters as they stand in the pattern, unescaped
};

using FormatSection = std::vector<FormatToken>;

// The sections between the ";" that stand outside quotes and escapes.
std::vector<std::string> SplitSections(std::string_view pattern);
FormatSection Tokenize(std::string_view section);
std::vector<FormatSection> ParsePattern(std::string_view pattern);

struct SectionTraits {
  bool digits = false;     // "0" or "#"
  bool dateParts = false;  // a date or time token or a clock marker
  bool textParts = false;  // "@", "&", "<", ">" or "!"
};
SectionTraits TraitsOf(const FormatSection& section);

}  // namespace tamrix
