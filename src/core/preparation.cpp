#include "core/preparation.h"

#include "core/text.h"

namespace tamrix {

std::string NumberUnit(std::string_view text, int unit) {
  std::string out;
  out.reserve(text.size() + text.size() / 4 + 32);
  const std::string unitDigits = ZeroPadded(unit, 2);
  std::size_t start = 0;
  long line = 0;
  // The text gets a CR LF behind it, so every piece, the last one included,
  // ends at a CR LF.
  while (start <= text.size()) {
    auto end = text.find(kCrLf, start);
    if (end == std::string_view::npos) end = text.size();
    out += kSourceTagMark;
    out += '#';
    out += ZeroPadded(line, 5);
    out += "$#";
    out += unitDigits;
    out += ' ';
    out += Trim(text.substr(start, end - start));
    out += kCrLf;
    ++line;
    if (end == text.size()) break;
    start = end + 2;
  }
  return out;
}

namespace {

std::string RemoveComments(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  bool inString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') inString = !inString;
    if (c == '\'' && !inString) {
      while (i < text.size() && text[i] != '\r') ++i;
      if (i < text.size()) out += '\r';
      continue;
    }
    out += c;
  }
  return out;
}

std::string SplitAtSeparators(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  bool inString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') inString = !inString;
    if (c == ';' && !inString) {
      out += kCrLf;
      if (i + 1 < text.size() && text[i + 1] == ' ') {
        ++i;
      } else if (i + 1 < text.size() && text[i + 1] == '\r') {
        i += 2;  // the ";" ended the line: its CR LF goes
      }
      continue;
    }
    out += c;
  }
  return out;
}

std::string SpaceOperators(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') {
      const auto close = text.find('"', i + 1);
      const auto end = close == std::string_view::npos ? text.size() : close + 1;
      out.append(text.substr(i, end - i));
      i = end - 1;
      continue;
    }
    const std::string_view two = text.substr(i, 2);
    if (two == "<=" || two == ">=" || two == "<>") {
      out += ' ';
      out += two;
      out += ' ';
      ++i;
    } else if (c == '<' || c == '=' || c == '>') {
      if (i > 0 && text[i - 1] != ' ') {
        out += ' ';
        out += c;
        out += ' ';
      } else {
        out += c;
      }
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace

std::string NormaliseStatements(std::string_view text) {
  return SpaceOperators(SplitAtSeparators(RemoveComments(text)));
}

std::string TagStatements(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 4);
  std::string tag;
  long number = 0;
  std::size_t start = 0;
  while (start < text.size()) {
    auto end = text.find(kCrLf, start);
    if (end == std::string_view::npos) end = text.size();
    std::string line = Trim(text.substr(start, end - start));
    start = end + 2;
    if (!(line.size() >= 2 && line[0] == kSourceTagMark && line[1] == '#')) {
      line = tag + " " + line;  // split off by a ";": it shares the source position
    }
    tag = line.substr(0, 11);
    if (line.size() > 12) {
      out += "&#";
      out += ZeroPadded(number, 5);
      out += line;
      out += kCrLf;
      ++number;
    }
  }
  return out;
}

std::string PrepareSource(const std::array<std::string, 7>& codes) {
  std::string joined = NumberUnit(codes[0] + "\r\nEndProgram\r\n", 0);
  for (int unit = 1; unit <= 6; ++unit) {
    if (codes[static_cast<std::size_t>(unit)].empty()) continue;
    joined += kCrLf;
    joined += NumberUnit(codes[static_cast<std::size_t>(unit)], unit);
  }
  return TagStatements(NormaliseStatements(joined));
}

}  // namespace tamrix
