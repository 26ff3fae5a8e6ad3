#include "core/block_linking.h"

#include <functional>
#include <vector>

#include "core/text.h"

namespace tamrix {
namespace {

// One rule of a linker: at a statement start where `keyword` stands, `tag`
// gives the text that replaces the keyword (its letters and the tag) and
// `skip` how many characters of the edited text the walk then moves past.
struct LinkRule {
  std::string_view keyword;
  std::function<std::string(int& depth)> replacement;
  std::size_t skip;
};

std::string Bracketed(int depth) { return "[" + std::to_string(depth) + "]"; }

// Walks the text once. Tags are only ever inserted at or behind the walk's
// position, so the edited text is built as a stream: `out` is the edited
// text before the position, `text` from `in` on is the edited text behind it.
std::string Link(std::string_view text, const std::vector<LinkRule>& rules) {
  std::string out;
  out.reserve(text.size() + text.size() / 16);
  int depth = 0;
  std::size_t in = 0;
  while (in < text.size()) {
    const bool statementStart = out.size() >= 4 && out[out.size() - 4] == '#';
    const LinkRule* match = nullptr;
    if (statementStart) {
      for (const auto& rule : rules) {
        if (text.substr(in, rule.keyword.size()) == rule.keyword) {
          match = &rule;
          break;
        }
      }
    }
    if (match == nullptr) {
      out += text[in++];
      continue;
    }
    const std::string piece = match->replacement(depth);
    in += match->keyword.size();
    out += piece;
    // Characters skipped beyond the inserted piece are copied unexamined.
    for (std::size_t moved = piece.size(); moved < match->skip && in < text.size(); ++moved) {
      out += text[in++];
    }
  }
  return out;
}

int CountAndBlank(std::string& text, std::string_view marker, std::string_view blank) {
  int count = 0;
  for (auto p = text.find(marker); p != std::string::npos; p = text.find(marker, p + blank.size())) {
    text.replace(p, marker.size(), blank);
    ++count;
  }
  return count;
}

int Count(std::string_view text, std::string_view marker) {
  int count = 0;
  for (auto p = text.find(marker); p != std::string_view::npos; p = text.find(marker, p + marker.size())) {
    ++count;
  }
  return count;
}

}  // namespace

std::string LinkIfBlocks(std::string_view text) {
  static const std::vector<LinkRule> rules = {
      {"Else", [](int& depth) { return "Else" + Bracketed(depth - 1); }, 13},
      {"EndIf", [](int& depth) { return "EndIf" + Bracketed(--depth); }, 0},
      {"If ", [](int& depth) { return "If" + Bracketed(depth++) + " "; }, 0},
  };
  return Link(text, rules);
}

std::string LinkWhileBlocks(std::string_view text) {
  static const std::vector<LinkRule> rules = {
      {"Loop", [](int& depth) { return "Loop" + Bracketed(--depth); }, 6},
      {"While", [](int& depth) { return "While" + Bracketed(depth++); }, 8},
  };
  return Link(text, rules);
}

std::string CheckBlocks(std::string_view text) {
  std::string upper = Upper(text);
  std::string message;
  const int endIfs = CountAndBlank(upper, "ENDIF[", "XXXXXX");
  if (endIfs != Count(upper, "IF[")) message = "If statement without their EndIf!";
  const int loops = CountAndBlank(upper, "LOOP[", "XXXXX");
  if (loops != Count(upper, "WHILE[")) message = "While statement without their Loop!";
  return message;
}

}  // namespace tamrix
