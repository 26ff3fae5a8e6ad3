// The commands on text: joining, cutting, measuring, searching and testing.
#include <algorithm>
#include <array>

#include "commands/command_families.h"
#include "commands/library_commands.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/regional.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kMaxJoined = 100;

char CharacterOfCode(double code) {
  const std::int32_t value = ToInt32(code);
  if (value < 0 || value > 255) Throw(kInvalidCall);
  return static_cast<char>(value);
}

// A start position of a search or a cut: 1 or more.
std::int32_t Position(CommandArguments& args, std::size_t i) {
  const std::int32_t position = ToInt32(NumberArgument(args, i));
  if (position < 1) Throw(kInvalidCall);
  return position;
}

Value JoinStr(CommandCall& call) {
  CommandArguments args(call, kMaxJoined);
  std::string joined;
  for (std::size_t i = 0; i < args.UsedCount(); ++i) {
    joined += TextArgument(args, i);
    CheckTextSize(joined.size());
  }
  return Quoted(joined);
}

Value SubStr(CommandCall& call) {
  CommandArguments args(call, 3);
  const std::string text = TextArgument(args, 0);
  const std::int16_t start = ToInt16(NumberArgument(args, 1));
  if (start < 1) Throw(kInvalidCall);
  std::size_t length = std::string::npos;
  if (!args.Raw(2).empty()) {
    const std::int16_t asked = ToInt16(NumberArgument(args, 2));
    if (asked < 0) Throw(kInvalidCall);
    length = static_cast<std::size_t>(asked);
  }
  const auto from = static_cast<std::size_t>(start - 1);
  return Quoted(from < text.size() ? text.substr(from, length) : std::string());
}

Value StrLen(CommandCall& call) {
  CommandArguments args(call, 1);
  return static_cast<std::int32_t>(TextArgument(args, 0).size());
}

Value TrimCommand(CommandCall& call) {
  CommandArguments args(call, 1);
  return Quoted(Trim(TextArgument(args, 0)));
}

Value SeqStr(CommandCall& call) {
  CommandArguments args(call, 2);
  const std::int32_t count = ToInt32(NumberArgument(args, 0));
  const Value what = args.Number(1);
  char character = '\0';
  if (const auto* text = std::get_if<std::string>(&what)) {
    if (text->empty()) Throw(kInvalidCall);
    character = text->front();
  } else {
    character = CharacterOfCode(NumberOf(what));
  }
  if (count < 0) Throw(kInvalidCall);
  CheckTextSize(static_cast<std::size_t>(count));
  return Quoted(std::string(static_cast<std::size_t>(count), character));
}

// The last occurrence of `search` that ends at or before `end`.
std::int32_t SearchBackward(const std::string& text, const std::string& search, std::int32_t end) {
  if (search.empty()) return end;
  const auto last = static_cast<std::size_t>(end);
  if (last < search.size()) return 0;
  const auto at = text.rfind(search, last - search.size());
  return at == std::string::npos ? 0 : static_cast<std::int32_t>(at + 1);
}

std::int32_t SearchForward(const std::string& text, const std::string& search, std::int32_t start) {
  if (search.empty()) return start;
  const auto from = static_cast<std::size_t>(start - 1);
  if (from >= text.size()) return 0;
  const auto at = text.find(search, from);
  return at == std::string::npos ? 0 : static_cast<std::int32_t>(at + 1);
}

Value StrPos(CommandCall& call) {
  CommandArguments args(call, 4);
  const std::string text = TextArgument(args, 0);
  const std::string search = TextArgument(args, 1);
  if (!args.Raw(2).empty() && Upper(TextArgument(args, 2)) == "REVERSE") {
    const std::int32_t end = args.Raw(3).empty() ? static_cast<std::int32_t>(text.size()) : Position(args, 3);
    return SearchBackward(text, search, end);
  }
  const std::int32_t start = args.Raw(2).empty() ? 1 : Position(args, 2);
  return SearchForward(text, search, start);
}

// Overwrites characters of a variable in place; its length stays.
Value RepStr(CommandCall& call) {
  CommandArguments args(call, 4);
  std::string target = TextArgument(args, 0);
  const std::string replacement = TextArgument(args, 1);
  const std::int32_t start = Position(args, 2);
  if (static_cast<std::size_t>(start) > target.size()) Throw(kInvalidCall);
  std::size_t count = replacement.size();
  if (!args.Raw(3).empty()) {
    const std::int32_t length = ToInt32(NumberArgument(args, 3));
    if (length < 0) Throw(kInvalidCall);
    if (length > 0) count = std::min(count, static_cast<std::size_t>(length));
  }
  const auto from = static_cast<std::size_t>(start - 1);
  count = std::min(count, target.size() - from);
  target.replace(from, count, replacement, 0, count);
  call.interpreter.Variables().SetVariable(args.Raw(0), target, true);
  return std::string();
}

// The number's text with "." whatever the settings, and without the blank
// that the conversion leaves for positive numbers; as there, a zero in
// front of the point is not written (".5").
Value ConvStr(CommandCall& call) {
  CommandArguments args(call, 1);
  std::string text = NumberText(NumberArgument(args, 0));
  std::replace(text.begin(), text.end(), Regional::Current().decimalSign, '.');
  if (StartsWith(text, "0.")) text.erase(0, 1);
  if (StartsWith(text, "-0.")) text.erase(1, 1);
  return Quoted(text);
}

Value Chr(CommandCall& call) {
  CommandArguments args(call, 1);
  return Quoted(std::string(1, CharacterOfCode(NumberArgument(args, 0))));
}

Value Asc(CommandCall& call) {
  CommandArguments args(call, 1);
  const std::string text = TextArgument(args, 0);
  if (text.empty()) Throw(kInvalidCall);
  return static_cast<std::int32_t>(static_cast<unsigned char>(text.front()));
}

// Only these few tests are made: "a@b.c" fails for its length, ".....@x"
// passes.
Value TestEmail(CommandCall& call) {
  CommandArguments args(call, 1);
  const std::string text = TextArgument(args, 0);
  const auto ats = std::count(text.begin(), text.end(), '@');
  const bool refused = !Contains(text, ".") || ats != 1 || Trim(text).size() < 7 || text.front() == '@' ||
                       text.back() == '@';
  return Quoted(refused ? "FALSE" : "TRUE");
}

}  // namespace

void RegisterStringCommands(Dispatcher& dispatcher) {
  const std::array<LibraryCommand, 11> commands{{
      {"JoinStr", JoinStr},
      {"SubStr", SubStr},
      {"StrLen", StrLen},
      {"Trim", TrimCommand},
      {"SeqStr", SeqStr},
      {"StrPos", StrPos},
      {"RepStr", RepStr},
      {"ConvStr", ConvStr},
      {"Chr", Chr, LibraryGuard::Command, FailureResult::Empty, {}, "CHR"},
      {"Asc", Asc},
      {"TestEmail", TestEmail},
  }};
  RegisterLibraryCommands(dispatcher, commands);
}

}  // namespace tamrix
