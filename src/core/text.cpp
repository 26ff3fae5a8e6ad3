#include "core/text.h"

#include <algorithm>

namespace tamrix {

char UpperChar(char c) {
  const auto b = static_cast<unsigned char>(c);
  if (b >= 'a' && b <= 'z') return static_cast<char>(b - 32);
  // Windows-1252 letters with accents: lower 0xE0-0xFE (except 0xF7), 0x9A, 0x9C, 0x9E, 0xFF.
  if (b >= 0xE0 && b <= 0xFE && b != 0xF7) return static_cast<char>(b - 32);
  if (b == 0x9A || b == 0x9C || b == 0x9E) return static_cast<char>(b - 16);
  if (b == 0xFF) return static_cast<char>(0x9F);
  return c;
}

char LowerChar(char c) {
  const auto b = static_cast<unsigned char>(c);
  if (b >= 'A' && b <= 'Z') return static_cast<char>(b + 32);
  if (b >= 0xC0 && b <= 0xDE && b != 0xD7) return static_cast<char>(b + 32);
  if (b == 0x8A || b == 0x8C || b == 0x8E) return static_cast<char>(b + 16);
  if (b == 0x9F) return static_cast<char>(0xFF);
  return c;
}

std::string Upper(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = UpperChar(c);
  return out;
}

std::string Lower(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = LowerChar(c);
  return out;
}

std::string TrimLeft(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string TrimRight(std::string_view text) {
  const auto last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

bool StartsWith(std::string_view text, std::string_view prefix) {
  return text.substr(0, prefix.size()) == prefix;
}

bool EndsWith(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(),
                    [](char x, char y) { return UpperChar(x) == UpperChar(y); });
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  out.reserve(text.size());
  std::size_t start = 0;
  for (;;) {
    const auto hit = text.find(from, start);
    if (hit == std::string_view::npos || from.empty()) break;
    out.append(text.substr(start, hit - start));
    out.append(to);
    start = hit + from.size();
  }
  out.append(text.substr(start));
  return out;
}

std::string StripQuotes(std::string_view text) {
  std::size_t begin = 0;
  std::size_t end = text.size();
  if (StartsWith(text, "(\"")) {
    begin = 2;
  } else if (StartsWith(text, "\"")) {
    begin = 1;
  }
  if (EndsWith(text, "\")")) {
    end = text.size() - 2;
  } else if (EndsWith(text, "\"")) {
    end = text.size() - 1;
  }
  if (end <= begin) return {};
  return std::string(text.substr(begin, end - begin));
}

std::string ZeroPadded(long value, int width) {
  std::string digits = std::to_string(value < 0 ? -value : value);
  if (static_cast<int>(digits.size()) < width) digits.insert(0, width - digits.size(), '0');
  return value < 0 ? "-" + digits : digits;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsLetter(char c) {
  const char l = LowerChar(c);
  return l >= 'a' && l <= 'z';
}

}  // namespace tamrix
