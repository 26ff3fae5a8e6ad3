#include "core/accent_folding.h"

#include <utility>

namespace tamrix {
namespace {

// Windows-1252 codes of the accented letters and their plain letters. The
// circumflex A has no entry and stays as it is.
constexpr std::pair<unsigned char, char> kFolding[] = {
    {0xC1, 'A'}, {0xC0, 'A'}, {0xC3, 'A'}, {0xE1, 'a'}, {0xE0, 'a'}, {0xE3, 'a'},
    {0xC9, 'E'}, {0xCA, 'E'}, {0xE9, 'e'}, {0xEA, 'e'},
    {0xCD, 'I'}, {0xED, 'i'},
    {0xD3, 'O'}, {0xD5, 'O'}, {0xD4, 'O'}, {0xF3, 'o'}, {0xF5, 'o'}, {0xF4, 'o'},
    {0xDA, 'U'}, {0xFA, 'u'},
    {0xC7, 'C'}, {0xE7, 'c'},
};

char Folded(char c) {
  const auto code = static_cast<unsigned char>(c);
  if (code < 127) return c;
  for (const auto& [from, to] : kFolding) {
    if (from == code) return to;
  }
  return c;
}

}  // namespace

std::string FoldAccents(std::string_view text) {
  std::string out(text.substr(0, kFoldedLength));
  for (char& c : out) c = Folded(c);
  return out;
}

}  // namespace tamrix
