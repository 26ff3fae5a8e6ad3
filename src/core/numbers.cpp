#include "core/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/fault.h"
#include "core/regional.h"
#include "core/text.h"

namespace tamrix {
namespace {

bool IsSkippedByVal(char c) { return c == ' ' || c == '\t' || c == '\n'; }

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char u = UpperChar(c);
  if (u >= 'A' && u <= 'F') return u - 'A' + 10;
  return 99;
}

// Reads "&H..." or "&O..." from `i`; the value is that of a 32-bit word.
double ReadRadix(std::string_view s, std::size_t i, int radix) {
  long long value = 0;
  bool any = false;
  for (; i < s.size(); ++i) {
    if (IsSkippedByVal(s[i])) continue;
    const int d = DigitValue(s[i]);
    if (d >= radix) break;
    value = value * radix + d;
    any = true;
    if (value > 0xFFFFFFFFLL) Throw(kOverflow);
  }
  if (!any) return 0;
  if (value > 0xFFFF && value <= 0xFFFFFFFFLL && value > 0x7FFFFFFFLL) value -= 0x100000000LL;
  return static_cast<double>(value);
}

}  // namespace

double Val(std::string_view text) {
  // Plain whole numbers, the common case, need no general reading.
  if (!text.empty() && text.size() <= 15 &&
      std::all_of(text.begin(), text.end(), [](char c) { return IsDigit(c); })) {
    double whole = 0;
    for (char c : text) whole = whole * 10 + (c - '0');
    return whole;
  }
  std::size_t i = 0;
  while (i < text.size() && IsSkippedByVal(text[i])) ++i;
  if (i + 1 < text.size() && text[i] == '&') {
    const char kind = UpperChar(text[i + 1]);
    if (kind == 'H') return ReadRadix(text, i + 2, 16);
    if (kind == 'O') return ReadRadix(text, i + 2, 8);
  }
  std::string number;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) number += text[i++];
  bool point = false;
  bool digits = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (IsSkippedByVal(c)) continue;
    if (IsDigit(c)) {
      number += c;
      digits = true;
    } else if (c == '.' && !point) {
      number += c;
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return 0;
  // An exponent needs at least one digit behind it.
  if (i < text.size() && (UpperChar(text[i]) == 'E' || UpperChar(text[i]) == 'D')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && (text[j] == '-' || text[j] == '+')) exponent += text[j++];
    bool expDigits = false;
    for (; j < text.size(); ++j) {
      if (IsSkippedByVal(text[j])) continue;
      if (!IsDigit(text[j])) break;
      exponent += text[j];
      expDigits = true;
    }
    if (expDigits) number += exponent;
  }
  const double value = std::strtod(number.c_str(), nullptr);
  if (std::isinf(value)) Throw(kOverflow);
  return value;
}

std::optional<double> ParseRegionalNumber(std::string_view text) {
  const Regional& regional = Regional::Current();
  std::string s = Trim(text);
  if (s.empty()) return std::nullopt;
  if (s.size() > 2 && s[0] == '&' && (UpperChar(s[1]) == 'H' || UpperChar(s[1]) == 'O')) {
    const int radix = UpperChar(s[1]) == 'H' ? 16 : 8;
    for (std::size_t i = 2; i < s.size(); ++i) {
      if (DigitValue(s[i]) >= radix) return std::nullopt;
    }
    return ReadRadix(s, 2, radix);
  }
  bool negative = false;
  std::size_t i = 0;
  const auto takeSign = [&](std::size_t at) {
    if (at < s.size() && (s[at] == '-' || s[at] == '+')) {
      negative = s[at] == '-';
      return true;
    }
    return false;
  };
  bool signSeen = false;
  if (takeSign(i)) {
    signSeen = true;
    ++i;
    while (i < s.size() && s[i] == ' ') ++i;
  }
  std::string number;
  bool digits = false;
  bool point = false;
  for (; i < s.size(); ++i) {
    const char c = s[i];
    if (IsDigit(c)) {
      number += c;
      digits = true;
    } else if (c == regional.decimalSign && !point) {
      number += '.';
      point = true;
    } else if (c == regional.groupingSign && !point && digits) {
      continue;
    } else {
      break;
    }
  }
  if (!digits) return std::nullopt;
  if (i < s.size() && (UpperChar(s[i]) == 'E' || UpperChar(s[i]) == 'D')) {
    std::size_t j = i + 1;
    std::string exponent = "e";
    if (j < s.size() && (s[j] == '-' || s[j] == '+')) exponent += s[j++];
    const std::size_t firstDigit = j;
    while (j < s.size() && IsDigit(s[j])) exponent += s[j++];
    if (j == firstDigit) return std::nullopt;
    number += exponent;
    i = j;
  }
  while (i < s.size() && s[i] == ' ') ++i;
  if (i < s.size() && !signSeen && takeSign(i)) ++i;
  if (i != s.size()) return std::nullopt;
  const double value = std::strtod(number.c_str(), nullptr);
  if (std::isinf(value)) return std::nullopt;
  return negative ? -value : value;
}

std::string NumberText(double value) {
  if (value == 0) return "0";
  char buffer[40];
  // Whole numbers below 1E15 print as their digits.
  if (std::abs(value) < 1e15 && value == std::trunc(value)) {
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, static_cast<long long>(value));
    return std::string(buffer, result.ptr);
  }
  // The form of printf's "%.15G": to_chars gives it with a lower-case "e".
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  std::string text(buffer, result.ptr);
  const char sign = Regional::Current().decimalSign;
  for (char& c : text) {
    if (c == 'e') c = 'E';
    if (c == '.' && sign != '.') c = sign;
  }
  return text;
}

std::int32_t ToInt32(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) Throw(kOverflow);
  return static_cast<std::int32_t>(rounded);
}

std::int16_t ToInt16(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) Throw(kOverflow);
  return static_cast<std::int16_t>(rounded);
}

}  // namespace tamrix
