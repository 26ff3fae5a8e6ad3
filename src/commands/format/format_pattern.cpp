#include "commands/format/format_pattern.h"

#include <array>

#include "core/text.h"

namespace tamrix {
namespace {

// The longest token of each date letter; a longer run is cut into tokens
// from the left, each as long as it may be.
struct DateLetter {
  char letter;
  std::size_t longest;
};
constexpr std::array<DateLetter, 8> kDateLetters{{
    {'d', 6}, {'w', 2}, {'m', 4}, {'q', 1}, {'y', 4}, {'h', 2}, {'n', 2}, {'s', 2}}};

const DateLetter* DateLetterOf(char c) {
  const char lower = LowerChar(c);
  for (const auto& entry : kDateLetters) {
    if (entry.letter == lower) return &entry;
  }
  return nullptr;
}

// "yyy" is no token: it reads as "yy" and "y".
std::size_t DateTokenLength(const DateLetter& letter, std::size_t run) {
  const std::size_t length = run < letter.longest ? run : letter.longest;
  return letter.letter == 'y' && length == 3 ? 2 : length;
}

constexpr std::array<std::string_view, 3> kMarkers{"AM/PM", "A/P", "AMPM"};

std::size_t MarkerLength(std::string_view rest) {
  for (const auto marker : kMarkers) {
    if (rest.size() >= marker.size() && EqualsNoCase(rest.substr(0, marker.size()), marker)) {
      return marker.size();
    }
  }
  return 0;
}

TokenKind SingleCharacterKind(char c) {
  switch (c) {
    case '0': return TokenKind::DigitZero;
    case '#': return TokenKind::DigitHash;
    case '.': return TokenKind::DecimalPoint;
    case ',': return TokenKind::Comma;
    case '%': return TokenKind::Percent;
    case '/': return TokenKind::DateSeparator;
    case ':': return TokenKind::TimeSeparator;
    case '@': return TokenKind::TextCharacter;
    case '&': return TokenKind::TextOptional;
    case '<': return TokenKind::LowerCase;
    case '>': return TokenKind::UpperCase;
    case '!': return TokenKind::LeftToRight;
    default: return TokenKind::Literal;
  }
}

}  // namespace

std::vector<std::string> SplitSections(std::string_view pattern) {
  std::vector<std::string> sections(1);
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char c = pattern[i];
    if (c == ';') {
      sections.emplace_back();
      continue;
    }
    sections.back() += c;
    if (c == '\\' && i + 1 < pattern.size()) {
      sections.back() += pattern[++i];
    } else if (c == '"') {
      const auto close = pattern.find('"', i + 1);
      const auto end = close == std::string_view::npos ? pattern.size() : close + 1;
      sections.back() += pattern.substr(i + 1, end - i - 1);
      i = end - 1;
    }
  }
  return sections;
}

FormatSection Tokenize(std::string_view section) {
  FormatSection tokens;
  const auto add = [&](TokenKind kind, std::string code, std::string_view text) {
    tokens.push_back({kind, std::move(code), std::string(text)});
  };
  for (std::size_t i = 0; i < section.size();) {
    const char c = section[i];
    const std::string_view rest = section.substr(i);
    if (c == '"') {
      const auto close = section.find('"', i + 1);
      const auto end = close == std::string_view::npos ? section.size() : close;
      add(TokenKind::Literal, {}, section.substr(i + 1, end - i - 1));
      i = end + 1;
    } else if (c == '\\') {
      if (i + 1 < section.size()) add(TokenKind::Literal, {}, section.substr(i + 1, 1));
      i += 2;
    } else if (const std::size_t marker = MarkerLength(rest); marker > 0) {
      add(TokenKind::AmPm, std::string(rest.substr(0, marker)), rest.substr(0, marker));
      i += marker;
    } else if ((c == 'E' || c == 'e') && rest.size() > 1 && (rest[1] == '+' || rest[1] == '-')) {
      add(TokenKind::Exponent, std::string(rest.substr(0, 2)), rest.substr(0, 2));
      i += 2;
    } else if (const DateLetter* letter = DateLetterOf(c)) {
      std::size_t run = 1;
      while (run < rest.size() && LowerChar(rest[run]) == letter->letter) ++run;
      const std::size_t length = DateTokenLength(*letter, run);
      add(TokenKind::DatePart, std::string(length, letter->letter), rest.substr(0, length));
      i += length;
    } else if (LowerChar(c) == 't' && rest.size() >= 5 && EqualsNoCase(rest.substr(0, 5), "ttttt")) {
      add(TokenKind::DatePart, "ttttt", rest.substr(0, 5));
      i += 5;
    } else {
      add(SingleCharacterKind(c), {}, rest.substr(0, 1));
      ++i;
    }
  }
  return tokens;
}

std::vector<FormatSection> ParsePattern(std::string_view pattern) {
  std::vector<FormatSection> sections;
  for (const auto& section : SplitSections(pattern)) sections.push_back(Tokenize(section));
  return sections;
}

SectionTraits TraitsOf(const FormatSection& section) {
  SectionTraits traits;
  for (const auto& token : section) {
    switch (token.kind) {
      case TokenKind::DigitZero:
      case TokenKind::DigitHash: traits.digits = true; break;
      case TokenKind::DatePart:
      case TokenKind::AmPm: traits.dateParts = true; break;
      case TokenKind::TextCharacter:
      case TokenKind::TextOptional:
      case TokenKind::LowerCase:
      case TokenKind::UpperCase:
      case TokenKind::LeftToRight: traits.textParts = true; break;
      default: break;
    }
  }
  return traits;
}

}  // namespace tamrix
