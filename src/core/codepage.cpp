#include "core/codepage.h"

#include <array>
#include <cstdint>

namespace tamrix {
namespace {

// Code points of the bytes 0x80 to 0x9F; 0 marks the five bytes that
// Windows-1252 leaves undefined, which map to the C1 control of that value.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t CodePointOf(unsigned char byte) {
  if (byte >= 0x80 && byte <= 0x9F) {
    const char32_t mapped = kHighControls[byte - 0x80];
    return mapped != 0 ? mapped : byte;
  }
  return byte;
}

std::optional<unsigned char> ByteOf(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<unsigned char>(cp);
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    const char32_t mapped = kHighControls[i] != 0 ? kHighControls[i] : static_cast<char32_t>(0x80 + i);
    if (mapped == cp) return static_cast<unsigned char>(0x80 + i);
  }
  return std::nullopt;
}

void AppendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

// Decodes one UTF-8 sequence at `i`; nullopt on malformed input.
std::optional<char32_t> NextCodePoint(std::string_view s, std::size_t& i) {
  const auto lead = static_cast<unsigned char>(s[i]);
  int extra = 0;
  char32_t cp = 0;
  if (lead < 0x80) {
    cp = lead;
  } else if ((lead & 0xE0) == 0xC0) {
    extra = 1;
    cp = lead & 0x1F;
  } else if ((lead & 0xF0) == 0xE0) {
    extra = 2;
    cp = lead & 0x0F;
  } else if ((lead & 0xF8) == 0xF0) {
    extra = 3;
    cp = lead & 0x07;
  } else {
    return std::nullopt;
  }
  if (i + extra >= s.size() && extra > 0) return std::nullopt;
  for (int k = 1; k <= extra; ++k) {
    const auto b = static_cast<unsigned char>(s[i + k]);
    if ((b & 0xC0) != 0x80) return std::nullopt;
    cp = (cp << 6) | (b & 0x3F);
  }
  i += extra + 1;
  return cp;
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (char c : bytes) AppendUtf8(out, CodePointOf(static_cast<unsigned char>(c)));
  return out;
}

std::optional<std::string> Utf8ToCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto cp = NextCodePoint(utf8, i);
    if (!cp) return std::nullopt;
    const auto byte = ByteOf(*cp);
    if (!byte) return std::nullopt;
    out += static_cast<char>(*byte);
  }
  return out;
}

std::string Utf8ToCp1252Lossy(std::string_view utf8) {
  std::string out;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto cp = NextCodePoint(utf8, i);
    if (!cp) {
      out += '?';
      ++i;
      continue;
    }
    const auto byte = ByteOf(*cp);
    out += byte ? static_cast<char>(*byte) : '?';
  }
  return out;
}

}  // namespace tamrix
