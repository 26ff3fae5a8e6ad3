#include "commands/format/text_format.h"

#include "core/text.h"

namespace tamrix {
namespace {

bool IsPlace(const FormatToken& token) {
  return token.kind == TokenKind::TextCharacter || token.kind == TokenKind::TextOptional;
}

bool IsControl(const FormatToken& token) {
  return token.kind == TokenKind::LowerCase || token.kind == TokenKind::UpperCase ||
         token.kind == TokenKind::LeftToRight;
}

}  // namespace

std::string FormatText(std::string_view text, const FormatSection& section) {
  std::string value(text);
  bool leftToRight = false;
  std::size_t places = 0;
  for (const auto& token : section) {
    if (token.kind == TokenKind::LowerCase) value = Lower(value);
    if (token.kind == TokenKind::UpperCase) value = Upper(value);
    if (token.kind == TokenKind::LeftToRight) leftToRight = true;
    if (IsPlace(token)) ++places;
  }
  // Characters beyond the places stand in front of the first place (filling
  // from the right) or behind the last (filling from the left).
  const std::size_t extra = value.size() > places ? value.size() - places : 0;
  const std::size_t missing = places > value.size() ? places - value.size() : 0;
  std::string out;
  std::size_t place = 0;
  bool textWritten = false;
  for (const auto& token : section) {
    if (IsControl(token)) {
      // A section without places takes the whole text where its first
      // control character stands.
      if (places == 0 && !textWritten) out += value;
      textWritten = true;
      continue;
    }
    if (!IsPlace(token)) {
      out += token.text;
      continue;
    }
    if (!leftToRight && place == 0) out += value.substr(0, extra);
    // Filling from the right leaves the first places empty; from the left,
    // the last ones.
    if (leftToRight && place < value.size()) {
      out += value[place];
    } else if (!leftToRight && place >= missing) {
      out += value[extra + place - missing];
    } else if (token.kind == TokenKind::TextCharacter) {
      out += ' ';
    }
    ++place;
    if (leftToRight && place == places) out += value.substr(places < value.size() ? places : value.size());
  }
  return out;
}

}  // namespace tamrix
